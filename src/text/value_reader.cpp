#include "text/value_reader.h"

namespace nimbrel {
namespace {

constexpr bool endsValue(char c) {
  return c == ',' || c == '\r' || c == '\n';
}

}  // namespace

std::optional<std::string_view> ValueReader::next() {
  const std::size_t size = text_.size();
  while (position_ < size && (text_[position_] == ' ' || text_[position_] == '\t')) ++position_;
  if (position_ == size) return std::nullopt;

  line_ = nextLine_;
  std::size_t begin = position_;
  std::size_t end = begin;
  if (text_[begin] == '"') {
    end = ++begin;
    while (end < size && text_[end] != '"' && text_[end] != '\r' && text_[end] != '\n') ++end;
    position_ = end;
    while (position_ < size && !endsValue(text_[position_])) ++position_;
  } else {
    while (end < size && !endsValue(text_[end])) ++end;
    position_ = end;
    while (end > begin && text_[end - 1] == ' ') --end;
  }
  consumeDelimiter();
  return text_.substr(begin, end - begin);
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
