#include "platform/posix/product_copy.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <system_error>

#include "platform/file_error.h"
#include "platform/posix/folder_locks.h"
#include "platform/posix/host_paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

namespace fs = std::filesystem;

/// The version in the first line, then for each file a line with its hash, a blank and its path.
constexpr const char* listName = ".installed";

std::optional<std::string> contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

/// A hash to detect changes. Not secure against forgery.
std::string hashOf(const std::string& bytes) {
  std::uint64_t hash = 14'695'981'039'346'656'037U;
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 1'099'511'628'211U;
  }
  return std::to_string(hash);
}

using Hashes = std::map<std::string, std::string>;  // by path relative to the folder

/// Returns nullopt if any file cannot be read, because it must not be taken for deleted.
std::optional<Hashes> hashesOf(const fs::path& folder) {
  Hashes hashes;
  std::error_code error;
  for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    if (!it->is_regular_file(error) || it->path().filename() == listName) continue;
    const auto bytes = contents(it->path());
    if (!bytes) return std::nullopt;
    hashes[it->path().lexically_relative(folder).string()] = hashOf(*bytes);
  }
  if (error) return std::nullopt;
  return hashes;
}

/// Locks a copy against other processes, by its parent folder.
FolderLocks lockOf(const fs::path& copy) { return FolderLocks({copy.parent_path()}); }

/// The contents of the list. `version` is empty if there is no list.
struct Installed {
  std::string version;
  Hashes hashes;
};

Installed readList(const fs::path& copy) {
  std::ifstream list(copy / listName);
  Installed installed;
  std::getline(list, installed.version);
  for (std::string hash, path; list >> hash && std::getline(list.ignore(), path);)
    installed.hashes[path] = hash;
  return installed;
}

bool writeList(const fs::path& copy, const Hashes& hashes) {
  const fs::path unfinished = copy / (std::string(listName) + ".new");
  {
    std::ofstream list(unfinished);
    list << productBuild << '\n';
    for (const auto& [path, hash] : hashes) list << hash << ' ' << path << '\n';
    if (!list.flush()) return false;
  }
  std::error_code error;
  fs::rename(unfinished, copy / listName, error);
  return !error;
}

/// Copies a file over an older one atomically.
bool replaceFile(const fs::path& from, const fs::path& to) {
  std::error_code error;
  const fs::path unfinished = to.string() + ".new";
  fs::create_directories(to.parent_path(), error);
  fs::copy_file(from, unfinished, fs::copy_options::overwrite_existing, error);
  if (!error) fs::rename(unfinished, to, error);
  return !error;
}

std::error_code makeWhole(const fs::path& product, const Hashes& installed, const fs::path& copy) {
  std::error_code error;
  const fs::path unfinished = copy.string() + ".new";
  fs::remove_all(unfinished, error);
  fs::copy(product, unfinished, fs::copy_options::recursive, error);
  if (!error && !writeList(unfinished, installed)) error = std::make_error_code(std::errc::io_error);
  if (!error) fs::rename(unfinished, copy, error);
  std::error_code ignored;
  if (error) fs::remove_all(unfinished, ignored);
  return error;
}

/// Adds the missing files.
std::error_code complete(const fs::path& product, const Hashes& installed, const fs::path& copy) {
  bool isWhole = true;
  for (const auto& [path, hash] : installed) {
    std::error_code error;
    if (!fs::exists(copy / path, error)) isWhole &= replaceFile(product / path, copy / path);
  }
  return isWhole && writeList(copy, installed) ? std::error_code()
                                               : std::make_error_code(std::errc::io_error);
}

}  // namespace

void makeProductCopy(const fs::path& product, const fs::path& copy) {
  std::error_code error;
  fs::create_directories(copy.parent_path(), error);
  const auto lock = lockOf(copy);
  if (fs::is_directory(copy / "libraries", error)) return;  // another process has created it
  const auto installed = hashesOf(product);
  if (!installed) {
    error = std::make_error_code(std::errc::io_error);
  } else {
    error =
        fs::exists(copy, error) ? complete(product, *installed, copy) : makeWhole(product, *installed, copy);
  }
  if (error) throw FileError(fromHostPath(copy.string()), error.message());
}

void updateProductCopy(const fs::path& product, const fs::path& copy) {
  if (readList(copy).version == productBuild) return;
  const auto lock = lockOf(copy);
  const auto old = readList(copy);
  if (old.version == productBuild) return;
  const auto& before = old.hashes;
  const auto seenProduct = hashesOf(product);
  const auto seenCopy = hashesOf(copy);
  if (!seenProduct || !seenCopy) return;
  const auto& installed = *seenProduct;
  const auto& own = *seenCopy;
  const auto isUntouched = [&](const std::string& path) {
    const auto was = before.find(path);
    const auto is = own.find(path);
    return was != before.end() && is != own.end() && was->second == is->second;
  };
  bool isWhole = true;
  for (const auto& [path, hash] : installed) {
    const bool isNew = !before.contains(path) && !own.contains(path);
    if (isNew || isUntouched(path)) isWhole &= replaceFile(product / path, copy / path);
  }
  for (const auto& [path, hash] : before) {
    std::error_code error;
    if (!installed.contains(path) && isUntouched(path)) fs::remove(copy / path, error);
  }
  if (isWhole) writeList(copy, installed);
}

}  // namespace nimbrel
