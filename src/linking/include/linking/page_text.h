#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace nimbrel {

/// The bytes with each line end (CR, LF or CR LF) as CR LF; CR CR LF is two of them.
std::string withCrLf(std::string bytes);

/// Where `wanted`, which is not empty, first stands at `from`, which is in the text, or behind it, or `npos`. The
/// case of ASCII letters is ignored, all other bytes are exact.
std::size_t findIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// A page while it is rewritten: bytes of no known encoding, whose line ends are CR LF from the start.
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

  /// Takes out what stands from `begin` up to `end`.
  void remove(std::size_t begin, std::size_t end) { text_.erase(begin, end - begin); }
  void insert(std::size_t place, std::string_view text) { text_.insert(place, text); }

  /// Gives up the page as it is to be written. Half a line end that a removal left becomes a whole one.
  std::string takeBytes() && { return withCrLf(std::move(text_)); }

 private:
  std::string text_;
};

}  // namespace nimbrel
