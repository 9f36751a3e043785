#include "platform/posix/program_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/file_error.h"
#include "platform/posix/host_paths.h"

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

fs::path perUserFolder() {
  if (const auto data = environment("XDG_DATA_HOME")) return fs::path(*data) / "nimbrel";
  return fs::path(environment("HOME").value_or(".")) / ".local" / "share" / "nimbrel";
}

bool holdsLibraries(const fs::path& folder) {
  std::error_code error;
  return fs::is_directory(folder / "libraries", error);
}

/// Copies the installed product files, all or nothing: the folder takes its name once it is whole.
void fill(const fs::path& folder, const fs::path& product) {
  std::error_code error;
  const fs::path unfinished = folder.string() + ".new";
  fs::remove_all(unfinished, error);
  fs::create_directories(folder.parent_path(), error);
  fs::copy(product, unfinished, fs::copy_options::recursive, error);
  if (!error) fs::rename(unfinished, folder, error);
  if (error) throw FileError(fromHostPath(folder.string()), error.message());
}

}  // namespace

std::string programFolder(const std::optional<std::string>& asked) {
  if (asked) return *asked;
  if (const auto home = environment("NIMBREL_HOME")) return *home;
  const fs::path beside = folderOfExecutable();
  if (holdsLibraries(beside)) return beside.string();

  const fs::path folder = perUserFolder();
  const fs::path product = beside.parent_path() / "share" / "nimbrel";
  if (!holdsLibraries(folder) && holdsLibraries(product)) fill(folder, product);
  return folder.string();
}

}  // namespace nimbrel
