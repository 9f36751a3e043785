#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/document.h"
#include "recovery/recovery_folder.h"

namespace nimbrel {

/// The unsaved menu of a program that ended without closing its window. No other program can take it while this exists.
struct Orphan {
  RecoveryFolder folder;
  std::optional<RecoveryHead> head;  ///< nullopt: the file cannot be read, only be discarded or kept
  Document document;
};

/// Reads all orphans in the state folder.
std::vector<Orphan> findOrphans(FileSystem& files, const std::string& stateFolder);

}  // namespace nimbrel
