#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/settings_store.h"

namespace nimbrel {

/// A menu file that was opened or saved. An empty slot has neither folder nor name.
struct RecentFile {
  std::string folder;
  std::string name;

  bool empty() const { return folder.empty() && name.empty(); }
  /// A file in the current folder has only a name.
  std::string path() const { return folder.empty() ? name : folder + '\\' + name; }
  bool operator==(const RecentFile&) const = default;
};

using RecentFiles = std::array<RecentFile, 4>;

RecentFiles readRecentFiles(const SettingsStore& settings);

/// Puts a file on top of the stored list and returns the list. A file that is in the list keeps its place.
RecentFiles addRecentFile(SettingsStore& settings, const RecentFile& file);

/// The caption in the File menu. Slots start at 1.
std::string recentFileCaption(int slot, const RecentFile& file);

}  // namespace nimbrel
