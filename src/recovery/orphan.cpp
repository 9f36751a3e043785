#include "recovery/orphan.h"

#include <utility>

#include "persistence/menu_file.h"

namespace nimbrel {
namespace {

Orphan read(RecoveryFolder folder) {
  Orphan orphan{std::move(folder), std::nullopt, {}};
  try {
    auto file = orphan.folder.read();
    if (!file) return orphan;
    SubmenuCarryOver carryOver;  // for older versions only
    ReadNotes notes;
    readMenuFile(file->menu, file->head.name, file->head.folder, carryOver, orphan.document, notes);
    orphan.head = std::move(file->head);
  } catch (const FileError&) {
    return orphan;
  }
  return orphan;
}

}  // namespace

std::vector<Orphan> findOrphans(FileSystem& files, const std::string& stateFolder) {
  std::vector<Orphan> orphans;
  for (auto& folder : RecoveryFolder::orphans(files, stateFolder)) orphans.push_back(read(std::move(folder)));
  return orphans;
}

}  // namespace nimbrel
