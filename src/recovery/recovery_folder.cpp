#include "recovery/recovery_folder.h"

#include <utility>

#include "text/paths.h"

namespace nimbrel {
namespace {

std::string rootIn(const std::string& stateFolder) { return stateFolder + "\\recovery"; }

void makeFolders(FileSystem& files, const std::string& path) {
  if (path.empty() || files.isFolder(path)) return;
  makeFolders(files, std::string(folderName(path)));
  files.makeFolder(path);
}

}  // namespace

RecoveryFolder RecoveryFolder::create(FileSystem& files, const std::string& stateFolder) {
  const auto root = rootIn(stateFolder);
  makeFolders(files, root);
  // A folder that is locked, or an orphan that the author decides about later, keeps its number.
  for (int number = 1;; ++number) {
    auto path = joinPath(root, std::to_string(number));
    if (files.isFolder(path)) continue;
    files.makeFolder(path);
    auto lock = files.tryLock(path);
    if (lock == nullptr) continue;
    RecoveryFolder folder(files, std::move(path), std::move(lock));
    // Another program may have created it at the same moment, and have ended.
    if (!files.isFile(folder.file())) return folder;
  }
}

std::vector<RecoveryFolder> RecoveryFolder::orphans(FileSystem& files, const std::string& stateFolder) {
  std::vector<RecoveryFolder> found;
  const auto root = rootIn(stateFolder);
  for (const auto& name : files.foldersIn(root)) {
    try {
      auto path = joinPath(root, name);
      auto lock = files.tryLock(path);
      if (lock == nullptr) continue;
      RecoveryFolder folder(files, std::move(path), std::move(lock));
      if (files.isFile(folder.file())) {
        found.push_back(std::move(folder));
      } else {
        folder.remove();
      }
    } catch (const FileError&) {  // of another user, or with a folder in it: the others count
      continue;
    }
  }
  return found;
}

std::optional<RecoveryFile> RecoveryFolder::read() const { return readRecoveryFile(files_->read(file())); }

void RecoveryFolder::write(std::string_view bytes) { files_->replace(file(), bytes); }

/// A file that was being written when its program ended is left there too.
void RecoveryFolder::remove() {
  for (const auto& name : files_->filesIn(path_)) files_->remove(joinPath(path_, name));
  files_->removeFolder(path_);
}

}  // namespace nimbrel
