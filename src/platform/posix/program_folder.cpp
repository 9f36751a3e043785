#include "platform/posix/program_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/posix/product_copy.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

fs::path folderOfExecutable() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

std::optional<std::string> environment(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): read once, at the start
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

/// `variable` names the folder of the programs' folders, which is `standard` in the user's `.local` without it.
fs::path perUserFolder(const char* variable, const char* standard) {
  if (const auto folder = environment(variable)) return fs::path(*folder) / "nimbrel";
  return fs::path(environment("HOME").value_or(".")) / ".local" / standard / "nimbrel";
}

bool holdsLibraries(const fs::path& folder) {
  std::error_code error;
  return fs::is_directory(folder / "libraries", error);
}

}  // namespace

std::string programFolder(const std::optional<std::string>& asked) {
  if (asked) return *asked;
  if (const auto home = environment("NIMBREL_HOME")) return *home;
  const fs::path beside = folderOfExecutable();
  if (holdsLibraries(beside)) return beside.string();

  const fs::path folder = perUserFolder("XDG_DATA_HOME", "share");
  const fs::path product = beside.parent_path() / "share" / "nimbrel";
  if (!holdsLibraries(product)) return folder.string();
  if (holdsLibraries(folder)) {
    updateProductCopy(product, folder);
  } else {
    makeProductCopy(product, folder);
  }
  return folder.string();
}

std::string stateFolder() {
  const auto folder = perUserFolder("XDG_STATE_HOME", "state");
  std::error_code error;
  // The menus of one user are nobody else's business.
  if (fs::create_directories(folder, error)) fs::permissions(folder, fs::perms::owner_all, error);
  return folder.string();
}

}  // namespace nimbrel
