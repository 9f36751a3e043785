#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"
#include "text/shared_text.h"
#include "text/value_reader.h"

namespace nimbrel {

/// A file open for reading value by value, which knows where it is: what it throws and notes bears the path,
/// the record and the line.
class FileHandle {
 public:
  /// The bytes are to outlive the handle and the values it gives; what it notes goes into `notes`.
  FileHandle(std::string path, std::string_view bytes, Findings& notes)
      : path_(std::move(path)), values_(bytes), notes_(notes) {}

  /// The next value. Throws `FileError` at the end of the file.
  std::string_view next();

  /// The text as one that others of the file share, if it was met of late.
  const SharedText& shared(std::string_view text);

  /// As in the reader of values.
  std::string_view lastAsItStood() const { return values_.lastAsItStood(); }
  bool skip(std::string_view asItStood) { return values_.skip(asItStood); }
  void passLineEnd() { values_.passLineEnd(); }
  bool atEnd() const { return values_.atEnd(); }

  /// From here on errors tell of the next record.
  void beginRecord() { ++record_; }

  [[noreturn]] void fail(const std::string& reason) const;
  void note(const std::string& reason);
  std::size_t notes() const { return notes_.size(); }

 private:
  Finding finding(const std::string& reason) const { return {path_, reason, {record_, values_.line()}}; }

  static constexpr std::size_t recentTexts = 1024;

  std::string path_;
  ValueReader values_;
  std::size_t record_ = 0;
  Findings& notes_;
  std::vector<SharedText> recent_ = std::vector<SharedText>(recentTexts);
};

/// A value as a message quotes it: short and without control characters.
std::string quoted(std::string_view value);

}  // namespace nimbrel
