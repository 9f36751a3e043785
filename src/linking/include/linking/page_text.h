#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace nimbrel {

/// Returns the bytes with each line end (CR, LF or CR LF) as CR LF. CR CR LF is two line ends.
std::string withCrLf(std::string bytes);

/// Returns the first position of `wanted` at or after `from`, or `npos`. Ignores the case of ASCII letters; other
/// bytes must match exactly. `wanted` must not be empty, and `from` must lie within the text.
std::size_t findIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// The text of a page that is being rewritten: bytes of unknown encoding, with CR LF line ends.
class PageText {
 public:
  static constexpr auto npos = std::string::npos;

  explicit PageText(std::string bytes) : text_(withCrLf(std::move(bytes))) {}

  const std::string& text() const { return text_; }
  std::size_t find(std::string_view wanted, std::size_t from = 0) const {
    return findIgnoringCase(text_, wanted, from);
  }
  bool hasLineEndAt(std::size_t place) const {
    return std::string_view(text_).substr(place).starts_with("\r\n");
  }

  /// Removes the text from `begin` up to, not including, `end`.
  void remove(std::size_t begin, std::size_t end) { text_.erase(begin, end - begin); }
  void insert(std::size_t place, std::string_view text) { text_.insert(place, text); }

  /// Moves out the bytes to write. Completes line ends that a removal has split.
  std::string takeBytes() && { return withCrLf(std::move(text_)); }

 private:
  std::string text_;
};

}  // namespace nimbrel
