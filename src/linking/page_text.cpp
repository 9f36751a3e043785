#include "linking/page_text.h"

#include <algorithm>

#include "text/ascii.h"

namespace nimbrel {
namespace {

/// Linking spends most of its time searching. The loops over one block have no early exit, so that the compiler can
/// vectorise them.
constexpr std::size_t blockSize = 256;

/// Whether each CR is followed by an LF and each LF preceded by a CR.
bool hasCrLfAlone(std::string_view bytes) {
  if (bytes.empty()) return true;
  if (bytes.front() == '\n' || bytes.back() == '\r') return false;
  const auto isTorn = [](const char* c) -> unsigned char { return (c[0] == '\r') != (c[1] == '\n'); };

  const char* const last = bytes.data() + bytes.size() - 1;
  const char* c = bytes.data();
  for (; last - c >= static_cast<std::ptrdiff_t>(blockSize); c += blockSize) {
    unsigned char torn = 0;
    for (std::size_t i = 0; i < blockSize; ++i) torn |= isTorn(c + i);
    if (torn != 0) return false;
  }
  while (c != last && isTorn(c) == 0) ++c;
  return c == last;
}

/// Compares the byte at an offset, ignoring the case of letters.
struct Probe {
  Probe(std::string_view wanted, std::size_t at)
      : offset(at), low(toLower(wanted[at])), caseBit(low >= 'a' && low <= 'z' ? 'a' ^ 'A' : 0) {}

  unsigned char matches(const char* start) const { return (start[offset] | caseBit) == low; }

  std::size_t offset;
  char low;
  char caseBit;
};

bool matchesAt(std::string_view text, std::size_t place, std::string_view wanted) {
  return equalIgnoringCase(text.substr(place, wanted.size()), wanted);
}

/// Finds text that begins with "<!". The exclamation mark is rare in pages, and searching for a single byte is
/// fastest.
std::size_t findComment(std::string_view text, std::string_view wanted, std::size_t from) {
  auto mark = text.find('!', from + 1);
  while (mark != std::string_view::npos && !matchesAt(text, mark - 1, wanted))
    mark = text.find('!', mark + 1);
  return mark == std::string_view::npos ? mark : mark - 1;
}

/// Finds text by its first, middle and last byte, which rarely match together elsewhere.
std::size_t findByProbes(std::string_view text, std::string_view wanted, std::size_t from) {
  if (wanted.size() > text.size()) return std::string_view::npos;
  const Probe first(wanted, 0), middle(wanted, wanted.size() / 2), last(wanted, wanted.size() - 1);
  const auto mayMatchAt = [=](const char* start) -> unsigned char {
    return first.matches(start) & middle.matches(start) & last.matches(start);
  };

  const std::size_t end = text.size() - wanted.size() + 1;
  for (std::size_t block = from; block < end; block += blockSize) {
    if (end - block >= blockSize) {
      unsigned char any = 0;
      for (std::size_t i = 0; i < blockSize; ++i) any |= mayMatchAt(text.data() + block + i);
      if (any == 0) continue;
    }
    for (std::size_t place = block; place < std::min(block + blockSize, end); ++place) {
      if (mayMatchAt(text.data() + place) != 0 && matchesAt(text, place, wanted)) return place;
    }
  }
  return std::string_view::npos;
}

}  // namespace

std::string withCrLf(std::string bytes) {
  if (hasCrLfAlone(bytes)) return bytes;
  constexpr auto npos = std::string::npos;
  std::string result;
  result.reserve(bytes.size() + bytes.size() / 16);
  std::size_t done = 0;
  std::size_t cr = bytes.find('\r');
  std::size_t lf = bytes.find('\n');
  while (cr != npos || lf != npos) {
    const std::size_t end = std::min(cr, lf);
    result.append(bytes, done, end - done) += "\r\n";
    done = end + (end == cr && lf == cr + 1 ? 2 : 1);
    // Search again only for what has been passed, so that the text is scanned once.
    if (cr < done) cr = bytes.find('\r', done);
    if (lf < done) lf = bytes.find('\n', done);
  }
  return result.append(bytes, done, npos);
}

std::size_t findIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from) {
  return wanted.starts_with("<!") ? findComment(text, wanted, from) : findByProbes(text, wanted, from);
}

}  // namespace nimbrel
