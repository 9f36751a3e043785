#include "text/value_reader.h"

#include <algorithm>
#include <array>

namespace nimbrel {
namespace {

/// The bytes that end a value, by byte.
constexpr auto endsValue = [] {
  std::array<bool, 256> ends{};
  ends[','] = ends['\r'] = ends['\n'] = true;
  return ends;
}();

}  // namespace

std::size_t ValueReader::endOfValue(std::size_t position) const {
  while (position < text_.size() && !endsValue[static_cast<unsigned char>(text_[position])]) ++position;
  return position;
}

bool ValueReader::next(std::string_view& value) {
  const std::size_t size = text_.size();
  while (position_ < size && (text_[position_] == ' ' || text_[position_] == '\t')) ++position_;
  if (position_ == size) return false;

  line_ = nextLine_;
  std::size_t begin = position_;
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
  consumeDelimiter();
  return true;
}

void ValueReader::consumeDelimiter() {
  if (position_ == text_.size()) return;
  const char delimiter = text_[position_++];
  if (delimiter == ',') return;
  ++nextLine_;
  if (delimiter == '\r' && position_ < text_.size() && text_[position_] == '\n') ++position_;
}

bool ValueReader::atEnd() const {
  return text_.find_first_not_of(" \t\r\n", position_) == std::string_view::npos;
}

}  // namespace nimbrel
