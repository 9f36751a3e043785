#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "persistence/known_file.h"

namespace nimbrel {

/// What a recovered document needs besides its menu. `docs/formats.md` describes the file.
struct RecoveryHead {
  std::string folder{};       ///< of the document's file name, or empty
  std::string name{};         ///< of the file that Save writes; empty: the document is untitled
  KnownFile file{};           ///< that the document was last read from or saved to
  bool isPartlyRead = false;  ///< that file was not read whole
  std::int64_t time = 0;      ///< of the file, in seconds since 1970, UTC
};

struct RecoveryFile {
  RecoveryHead head;
  std::string menu;  ///< the bytes of a menu file
};

/// The bytes of a recovery file up to those of the menu.
std::string recoveryHeadText(const RecoveryHead& head);

/// Returns nullopt for bytes that are no whole recovery file of this version.
std::optional<RecoveryFile> readRecoveryFile(std::string_view bytes);

}  // namespace nimbrel
