#include "linking/page_text.h"

#include <algorithm>

#include "text/ascii.h"

namespace nimbrel {
namespace {

/// Bytes that are looked at together. The loops over them have no way out but their end, so that the compiler
/// makes vector instructions of them: searching is what linking a page spends its time on.
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

/// A byte to look for at an offset, its case ignored if it is a letter.
struct Probe {
  Probe(std::string_view wanted, std::size_t at)
      : offset(at), low(toLower(wanted[at])), caseBit(low >= 'a' && low <= 'z' ? 'a' ^ 'A' : 0) {}

  unsigned char matches(const char* start) const { return (start[offset] | caseBit) == low; }

  std::size_t offset;
  char low;
  char caseBit;
};

bool standsAt(std::string_view text, std::size_t place, std::string_view wanted) {
  return equalIgnoringCase(text.substr(place, wanted.size()), wanted);
}

/// Looks for text that begins with "<!". The exclamation mark is rare in pages, and a single byte is what the
/// standard library finds fastest.
std::size_t findComment(std::string_view text, std::string_view wanted, std::size_t from) {
  auto mark = text.find('!', from + 1);
  while (mark != std::string_view::npos && !standsAt(text, mark - 1, wanted)) mark = text.find('!', mark + 1);
  return mark == std::string_view::npos ? mark : mark - 1;
}

/// Looks for any text by its first, middle and last byte, which are seldom met together elsewhere.
std::size_t findByProbes(std::string_view text, std::string_view wanted, std::size_t from) {
  if (wanted.size() > text.size()) return std::string_view::npos;
  const Probe first(wanted, 0), middle(wanted, wanted.size() / 2), last(wanted, wanted.size() - 1);
  const auto mayStandAt = [=](const char* start) -> unsigned char {
    return first.matches(start) & middle.matches(start) & last.matches(start);
  };

  const std::size_t end = text.size() - wanted.size() + 1;
  for (std::size_t block = from; block < end; block += blockSize) {
    if (end - block >= blockSize) {
      unsigned char any = 0;
      for (std::size_t i = 0; i < blockSize; ++i) any |= mayStandAt(text.data() + block + i);
      if (any == 0) continue;
    }
    for (std::size_t place = block; place < std::min(block + blockSize, end); ++place) {
      if (mayStandAt(text.data() + place) != 0 && standsAt(text, place, wanted)) return place;
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
    // Each is looked for anew only when it has been passed, so that all is read once.
    if (cr < done) cr = bytes.find('\r', done);
    if (lf < done) lf = bytes.find('\n', done);
  }
  return result.append(bytes, done, npos);
}

std::size_t findIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from) {
  return wanted.starts_with("<!") ? findComment(text, wanted, from) : findByProbes(text, wanted, from);
}

}  // namespace nimbrel
