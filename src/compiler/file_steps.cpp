#include "compiler/file_steps.h"

#include "text/paths.h"

namespace nimbrel {

template <class Step>
bool FileSteps::attempt(Step step) {
  try {
    step();
    return true;
  } catch (const FileError& error) {
    report_.findings.push_back(error.finding());
    return false;
  }
}

void FileSteps::copy(std::string_view from, std::string_view to) {
  if (attempt([&] { files_.copy(from, to); })) report_.made.emplace_back(to);
}

void FileSteps::generate(std::string_view path, std::string_view bytes) {
  if (attempt([&] { files_.generate(path, bytes); })) report_.made.emplace_back(path);
}

void FileSteps::makeFolder(std::string_view path) {
  attempt([&] { files_.makeFolder(path); });
}

void FileSteps::removeFilesIn(std::string_view folder) {
  for (const auto& name : files_.filesIn(folder)) {
    attempt([&] { files_.remove(joinPath(folder, name)); });
  }
}

}  // namespace nimbrel
