#include "platform/file_system.h"

namespace nimbrel {

Findings FileSystem::replaceAll(std::span<const NewFile> newFiles) {
  Findings findings;
  for (const auto& file : newFiles) {
    try {
      replace(file.path, file.bytes);
    } catch (const FileError& error) {
      findings.push_back(error.finding());
    }
  }
  return findings;
}

}  // namespace nimbrel
