#include "text/value_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace nimbrel {
namespace {

/// Which bytes end a value.
constexpr auto endsValue = [] {
  std::array<bool, 256> ends{};
  ends[','] = ends['\r'] = ends['\n'] = true;
  return ends;
}();

/// The lowest bit set in the result is the top bit of the first of eight bytes that equals `wanted`. Zero if
/// none does.
constexpr std::uint64_t holding(std::uint64_t bytes, char wanted) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t topBits = 0x8080808080808080;
  const std::uint64_t different = bytes ^ (ones * static_cast<unsigned char>(wanted));
  return (different - ones) & ~different & topBits;
}

}  // namespace

std::size_t ValueReader::endOfValue(std::size_t position) const {
  constexpr std::size_t word = sizeof(std::uint64_t);
  while (std::endian::native == std::endian::little && position + word <= text_.size()) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text_.data() + position, word);
    const auto ends = holding(bytes, ',') | holding(bytes, '\r') | holding(bytes, '\n');
    if (ends != 0) return position + static_cast<std::size_t>(std::countr_zero(ends)) / 8;
    position += word;
  }
  while (position < text_.size() && !endsValue[static_cast<unsigned char>(text_[position])]) ++position;
  return position;
}

bool ValueReader::next(std::string_view& value) {
  const std::size_t size = text_.size();
  while (position_ < size && (text_[position_] == ' ' || text_[position_] == '\t')) ++position_;
  if (position_ == size) return false;

  line_ = nextLine_;
  const std::size_t first = position_;
  std::size_t begin = first;
  std::size_t end = 0;
  if (text_[begin] == '"') {
    ++begin;
    end = std::min(text_.find_first_of("\"\r\n", begin), size);
    position_ = endOfValue(end);
  } else {
    end = position_ = endOfValue(begin);
    while (end > begin && text_[end - 1] == ' ') --end;
  }
  value = text_.substr(begin, end - begin);
  const bool endsInComma = position_ < size && text_[position_] == ',';
  lastSource_ = text_.substr(first, endsInComma ? position_ + 1 - first : 0);
  consumeDelimiter();
  return true;
}

bool ValueReader::skip(std::string_view source) {
  constexpr std::size_t word = sizeof(std::uint64_t);
  const std::size_t size = source.size();
  if (size == 0 || text_.size() - position_ < std::max(size, word)) return false;
  const char* here = text_.data() + position_;
  // Most values are shorter than a word, and the text has a whole word from both places on.
  if (size <= word && std::endian::native == std::endian::little) {
    std::uint64_t a = 0;
    std::uint64_t b = 0;
    std::memcpy(&a, here, word);
    std::memcpy(&b, source.data(), word);
    if ((a ^ b) << (8 * (word - size)) != 0) return false;
  } else if (std::memcmp(here, source.data(), size) != 0) {
    return false;
  }
  position_ += size;
  line_ = nextLine_;
  return true;
}

void ValueReader::consumeDelimiter() {
  if (position_ == text_.size()) return;
  const char delimiter = text_[position_++];
  if (delimiter == ',') return;
  ++nextLine_;
  if (delimiter == '\r' && position_ < text_.size() && text_[position_] == '\n') ++position_;
}

void ValueReader::passLineEnd() {
  const auto here = text_.find_first_not_of(" \t", position_);
  if (here == std::string_view::npos || (text_[here] != '\r' && text_[here] != '\n')) return;
  position_ = here;
  consumeDelimiter();
}

bool ValueReader::atEnd() const {
  return text_.find_first_not_of(" \t\r\n", position_) == std::string_view::npos;
}

}  // namespace nimbrel
