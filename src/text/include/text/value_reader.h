#pragma once

#include <cstddef>
#include <string_view>

namespace nimbrel {

/// Reads one-byte text value by value, as comma-separated input:
/// - blanks and tabs ahead of a value are skipped; an empty line is an empty value;
/// - a value that begins with a double quote is what stands up to the next one, and what follows that up to
///   the comma or line end is dropped;
/// - any other value runs up to the comma or line end, less the blanks (byte 32) behind it;
/// - the comma or line end goes with the value; a line end is CR, LF or CR LF and ends every value.
/// Values are views into the text, which is to outlive them.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : text_(text) {}

  /// Gives the next value; false where nothing but blanks is left. A last value needs no line end.
  bool next(std::string_view& value);

  /// The value read last as it stood there, with its comma; empty if a line end or the end of the text ended
  /// it.
  std::string_view lastAsItStood() const { return lastAsItStood_; }

  /// Passes over the next value if it stands there as an earlier one of the same text stood; it then says the
  /// same. The empty view never does.
  bool skip(std::string_view asItStood);

  /// Passes over a line end that stands right here, behind a comma, and is no empty value.
  void passLineEnd();

  /// Whether blanks, tabs and line ends alone are left.
  bool atEnd() const;

  /// The line, from 1, on which the value read last began.
  std::size_t line() const { return line_; }

 private:
  std::size_t endOfValue(std::size_t position) const;
  void consumeDelimiter();

  std::string_view text_;
  std::string_view lastAsItStood_;
  std::size_t position_ = 0;
  std::size_t line_ = 1;
  std::size_t nextLine_ = 1;
};

}  // namespace nimbrel
