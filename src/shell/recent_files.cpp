#include "shell/recent_files.h"

#include <algorithm>

namespace nimbrel {
namespace {

constexpr std::string_view section = "Settings";

std::string key(std::size_t slot, std::string_view what) {
  return "mru" + std::to_string(slot + 1) + std::string(what);
}

}  // namespace

RecentFiles readRecentFiles(const SettingsStore& settings) {
  RecentFiles files;
  for (std::size_t slot = 0; slot < files.size(); ++slot) {
    files.at(slot) = {settings.GetSetting(section, key(slot, "fp"), ""),
                      settings.GetSetting(section, key(slot, "fn"), "")};
  }
  return files;
}

RecentFiles addRecentFile(SettingsStore& settings, const RecentFile& file) {
  auto files = readRecentFiles(settings);
  if (std::ranges::find(files, file) != files.end()) return files;
  std::ranges::move_backward(files.begin(), files.end() - 1, files.end());
  files.front() = file;
  for (std::size_t slot = 0; slot < files.size(); ++slot) {
    settings.SaveSetting(section, key(slot, "fp"), files.at(slot).folder);
    settings.SaveSetting(section, key(slot, "fn"), files.at(slot).name);
  }
  return files;
}

namespace {

/// Characters outside Windows-1252 are stored as references, which must not be cut in two.
std::size_t afterReference(std::string_view path, std::size_t cut) {
  const auto begin = path.rfind("&#", cut);
  const auto end = begin == std::string_view::npos ? begin : path.find_first_not_of("0123456789", begin + 2);
  return end != std::string_view::npos && begin < cut && end >= cut && path[end] == ';' ? end + 1 : cut;
}

}  // namespace

/// Quirk: the length test does not count the backslash, but the cut does, so 41 characters of a long path remain.
std::string recentFileCaption(int slot, const RecentFile& file) {
  constexpr std::size_t longest = 40;
  const auto path = file.folder + '\\' + file.name;
  const auto number = std::to_string(slot) + ". ";
  if (file.folder.size() + file.name.size() <= longest) return number + path;
  return number + "..." + path.substr(afterReference(path, path.size() - longest - 1));
}

}  // namespace nimbrel
