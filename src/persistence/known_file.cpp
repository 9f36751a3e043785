#include "persistence/known_file.h"

#include <functional>
#include <utility>

namespace nimbrel {
namespace {

std::size_t contentHash(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

}  // namespace

KnownFile::KnownFile(std::string path, std::string_view bytes)
    : path_(std::move(path)), hash_(contentHash(bytes)) {}

bool KnownFile::hasChanged(const FileSystem& files) {
  // The status before the bytes: if the file changes in between, the next call sees another status.
  const auto status = files.status(path_);
  if (!status || status == status_) return false;
  try {
    if (contentHash(files.read(path_)) != hash_) return true;
  } catch (const FileError&) {
    return false;
  }
  status_ = status;
  return false;
}

void KnownFile::accept(const FileSystem& files) {
  const auto status = files.status(path_);
  try {
    hash_ = contentHash(files.read(path_));
    status_ = status;
  } catch (const FileError&) {
    status_.reset();
  }
}

}  // namespace nimbrel
