#include "compiler/file_steps.h"

#include <algorithm>

#include "text/paths.h"

namespace nimbrel {

namespace {

/// Each entry is listed once, even if it occurs twice.
template <class T>
void addNew(std::vector<T>& list, T entry) {
  if (std::ranges::find(list, entry) == list.end()) list.push_back(std::move(entry));
}

}  // namespace

template <class Step>
bool FileSteps::attempt(Step step) {
  try {
    step();
    return true;
  } catch (const FileError& error) {
    note(error.finding());
    report_.isComplete = false;
    return false;
  }
}

void FileSteps::requireInside(std::string_view path) const {
  if (limit_.empty() || files_.isInside(path, limit_)) return;
  throw FileError(std::string(path), "a link here leads out of " + limit_ + " and is not followed");
}

void FileSteps::note(Finding finding) { addNew(report_.findings, std::move(finding)); }

void FileSteps::copy(std::string_view from, std::string_view to) {
  const auto copyInside = [&] {
    requireInside(to);
    files_.copy(from, to);
  };
  if (attempt(copyInside)) addNew(report_.made, std::string(to));
}

void FileSteps::generate(std::string_view path, std::string_view bytes) {
  const auto generateInside = [&] {
    requireInside(path);
    files_.generate(path, bytes);
  };
  if (attempt(generateInside)) addNew(report_.made, std::string(path));
}

void FileSteps::makeFolder(std::string_view path) {
  attempt([&] {
    requireInside(path);
    files_.makeFolder(path);
  });
}

void FileSteps::remove(std::string_view path) {
  attempt([&] { files_.remove(path); });
}

void FileSteps::removeFolder(std::string_view path) {
  attempt([&] { files_.removeFolder(path); });
}

void FileSteps::removeFilesIn(std::string_view folder) {
  for (const auto& name : files_.filesIn(folder)) {
    attempt([&] { files_.remove(joinPath(folder, name)); });
  }
}

}  // namespace nimbrel
