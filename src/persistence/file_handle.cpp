#include "persistence/file_handle.h"

#include "text/short_hash.h"

namespace nimbrel {

std::string_view FileHandle::next() {
  std::string_view value;
  if (!values_.next(value))
    fail(record_ == 0 ? "the file ends inside its header" : "the file ends inside a record");
  return value;
}

const SharedText& FileHandle::shared(std::string_view text) {
  SharedText& recent = recent_[shortHash(text) % recentTexts];
  if (!(recent == text)) recent = text;
  return recent;
}

void FileHandle::fail(const std::string& reason) const { throw FileError(finding(reason)); }

void FileHandle::note(const std::string& reason) { notes_.findings.push_back(finding(reason)); }

void FileHandle::noteUnknown(std::size_t values, const std::string& why) {
  notes_.unknownValues += values;
  note(std::to_string(values) + (values == 1 ? " unknown value: " : " unknown values: ") + why);
}

std::string quoted(std::string_view value) {
  constexpr std::size_t longest = 40;
  std::string text = "\"";
  for (const char c : value.substr(0, longest)) text += static_cast<unsigned char>(c) < ' ' ? '?' : c;
  return text + (value.size() > longest ? "...\"" : "\"");
}

}  // namespace nimbrel
