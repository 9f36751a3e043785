#include "recovery/recovery_file.h"

#include <charconv>

namespace nimbrel {
namespace {

constexpr std::string_view magic = "Nimbrel recovery file 1\n";

/// A value is its length, a colon, its bytes and a line end, since a path can hold any byte.
void append(std::string& out, std::string_view value) {
  out.append(std::to_string(value.size())).append(":").append(value).append("\n");
}

template <class Number>
std::optional<Number> numberIn(std::string_view text) {
  Number number{};
  const auto* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, number);
  if (parsed.ec != std::errc{} || parsed.ptr != end) return std::nullopt;
  return number;
}

std::optional<std::string> takeValue(std::string_view& bytes) {
  const auto colon = bytes.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto size = numberIn<std::size_t>(bytes.substr(0, colon));
  bytes.remove_prefix(colon + 1);
  if (!size || *size >= bytes.size() || bytes[*size] != '\n') return std::nullopt;
  std::string value(bytes.substr(0, *size));
  bytes.remove_prefix(*size + 1);
  return value;
}

template <class Number>
std::optional<Number> takeNumber(std::string_view& bytes) {
  const auto value = takeValue(bytes);
  return value ? numberIn<Number>(*value) : std::nullopt;
}

}  // namespace

std::string recoveryHeadText(const RecoveryHead& head) {
  std::string out(magic);
  append(out, std::to_string(head.time));
  append(out, head.folder);
  append(out, head.name);
  append(out, head.file.path());
  append(out, std::to_string(head.file.hash()));
  append(out, head.isPartlyRead ? "1" : "0");
  return out;
}

/// A file is replaced whole, so the menu goes to its end.
std::optional<RecoveryFile> readRecoveryFile(std::string_view bytes) {
  if (!bytes.starts_with(magic)) return std::nullopt;
  bytes.remove_prefix(magic.size());
  const auto time = takeNumber<std::int64_t>(bytes);
  auto folder = takeValue(bytes);
  auto name = takeValue(bytes);
  auto path = takeValue(bytes);
  const auto hash = takeNumber<std::size_t>(bytes);
  const auto isPartlyRead = takeNumber<int>(bytes);
  if (!time || !folder || !name || !path || !hash || !isPartlyRead) return std::nullopt;
  return RecoveryFile{
      {*std::move(folder), *std::move(name), KnownFile(*std::move(path), *hash), *isPartlyRead != 0, *time},
      std::string(bytes)};
}

}  // namespace nimbrel
