#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/settings_store.h"

namespace nimbrel {

/// The menu files opened or saved last, the newest first. An empty slot has neither folder nor name.
struct RecentFile {
  std::string folder;
  std::string name;

  bool empty() const { return folder.empty() && name.empty(); }
  /// What can be opened; a file of the current folder has a name alone.
  std::string path() const { return folder.empty() ? name : folder + '\\' + name; }
  bool operator==(const RecentFile&) const = default;
};

using RecentFiles = std::array<RecentFile, 4>;

RecentFiles readRecentFiles(const SettingsStore& settings);

/// The list with a file at its top, stored. One that is listed already stays where it is.
RecentFiles addRecentFile(SettingsStore& settings, const RecentFile& file);

/// What the File menu says of a slot, counted from 1.
std::string recentFileCaption(int slot, const RecentFile& file);

}  // namespace nimbrel
