#pragma once

#include <cstddef>
#include <string_view>

namespace nimbrel {

/// Reads comma-separated values from one-byte text:
/// - Blanks and tabs before a value are skipped. An empty line is an empty value.
/// - A value that begins with a double quote ends at the next one. Text between that and the comma or line
///   end is dropped.
/// - Any other value ends at the comma or line end, without trailing blanks (byte 32).
/// - The comma or line end is consumed with its value. A line end is CR, LF or CR LF and ends every value.
///   Values are views of the text, which must outlive them.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : text_(text) {}

  /// Reads the next value. Returns false if only blanks are left. The last value needs no line end.
  bool next(std::string_view& value);

  /// The source text of the value read last, with its comma. Empty if the value ended at a line end or at the
  /// end of the text.
  std::string_view lastSource() const { return lastSource_; }

  /// Skips the next value if its source text is `source`, a result of `lastSource()`; the two values are then
  /// equal. Returns whether it skipped a value. The empty view never matches.
  bool skip(std::string_view source);

  /// Skips a line end directly after a comma, which would otherwise be read as an empty value.
  void passLineEnd();

  /// Whether only blanks, tabs and line ends are left.
  bool atEnd() const;

  /// The line, from 1, on which the value read last begins.
  std::size_t line() const { return line_; }

 private:
  std::size_t endOfValue(std::size_t position) const;
  void consumeDelimiter();

  std::string_view text_;
  std::string_view lastSource_;
  std::size_t position_ = 0;
  std::size_t line_ = 1;
  std::size_t nextLine_ = 1;
};

}  // namespace nimbrel
