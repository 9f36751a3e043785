#include "linking/page_text.h"

#include <algorithm>

#include "text/ascii.h"

namespace nimbrel {
namespace {

/// Bytes that are looked at together. The loops over them have no way out but their end, so that the compiler
/// turns them into a few vector instructions; that is what makes searching a page cheap.
constexpr std::size_t blockSize = 64;

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

/// A byte to look for, its case ignored if it is a letter.
class Probe {
 public:
  Probe(std::string_view wanted, std::size_t offset)
      : offset_(offset),
        low_(toLower(wanted[offset])),
        caseBit_(low_ >= 'a' && low_ <= 'z' ? 'a' ^ 'A' : 0) {}

  unsigned char matches(const char* start) const { return (start[offset_] | caseBit_) == low_; }

 private:
  std::size_t offset_;
  char low_;
  char caseBit_;
};

/// The first, middle and last byte of what is wanted: together they are rare enough in a page that the whole
/// is seldom compared.
class Probes {
 public:
  explicit Probes(std::string_view wanted)
      : first_(wanted, 0), middle_(wanted, wanted.size() / 2), last_(wanted, wanted.size() - 1) {}

  unsigned char match(const char* start) const {
    return first_.matches(start) & middle_.matches(start) & last_.matches(start);
  }
  bool matchInBlock(const char* start) const {
    unsigned char any = 0;
    for (std::size_t i = 0; i < blockSize; ++i) any |= match(start + i);
    return any != 0;
  }

 private:
  Probe first_;
  Probe middle_;
  Probe last_;
};

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
  if (wanted.size() > text.size()) return std::string_view::npos;
  const Probes probes(wanted);
  const std::size_t end = text.size() - wanted.size() + 1;
  std::size_t start = from;
  while (start < end) {
    const std::size_t blockEnd = start + std::min(blockSize, end - start);
    const bool isWhole = blockEnd - start == blockSize;
    if (isWhole && !probes.matchInBlock(text.data() + start)) start = blockEnd;
    for (; start < blockEnd; ++start) {
      if (probes.match(text.data() + start) != 0 &&
          equalIgnoringCase(text.substr(start, wanted.size()), wanted)) {
        return start;
      }
    }
  }
  return std::string_view::npos;
}

}  // namespace nimbrel
