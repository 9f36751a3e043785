#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_error.h"
#include "text/shared_text.h"
#include "text/value_reader.h"

namespace nimbrel {

/// What a reader noticed that did not stop it. Any of it would be lost if the file were written again from what was
/// read.
struct ReadNotes {
  Findings findings;
  std::size_t unknownValues = 0;  ///< values of a later version, which were not read
};

/// A file that is read value by value. Its errors and notes name the path, the record and the line of the
/// value read last.
class FileHandle {
 public:
  /// `bytes` must outlive the handle and its values. Notes are added to `notes`.
  FileHandle(std::string path, std::string_view bytes, ReadNotes& notes)
      : path_(std::move(path)), values_(bytes), notes_(notes) {}

  /// The next value. Throws `FileError` at the end of the file.
  std::string_view next();

  /// Returns the text, sharing memory with an equal recent one. Valid until the next call.
  const SharedText& shared(std::string_view text);

  // See `ValueReader`.
  std::string_view lastSource() const { return values_.lastSource(); }
  bool skip(std::string_view source) { return values_.skip(source); }
  void passLineEnd() { values_.passLineEnd(); }
  bool atEnd() const { return values_.atEnd(); }

  /// Starts the next record, for the place in errors and notes.
  void beginRecord() { ++record_; }

  /// Throws a `FileError` with this reason.
  [[noreturn]] void fail(const std::string& reason) const;
  /// Adds a finding that does not stop the reading.
  void note(const std::string& reason);
  /// The same for values that were not read. `why` says where they may come from.
  void noteUnknown(std::size_t values, const std::string& why);
  /// The number of notes so far.
  std::size_t notes() const { return notes_.findings.size(); }

 private:
  Finding finding(const std::string& reason) const { return {path_, reason, {record_, values_.line()}}; }

  static constexpr std::size_t recentTexts = 1024;

  std::string path_;
  ValueReader values_;
  std::size_t record_ = 0;
  ReadNotes& notes_;
  std::vector<SharedText> recent_ = std::vector<SharedText>(recentTexts);
};

/// A value in double quotes for a message, shortened and without control characters.
std::string quoted(std::string_view value);

}  // namespace nimbrel
