#include "text/windows1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "text/ascii.h"

namespace nimbrel {
namespace {

/// The characters of bytes 128 to 159. All other bytes are as in Latin-1.
constexpr std::array<char16_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// A byte of a host name that is not valid UTF-8 becomes a lone surrogate, which valid text never contains.
constexpr char32_t strayByte = 0xDC00;
constexpr char32_t firstStray = strayByte + 0x80;
constexpr char32_t lastStray = strayByte + 0xFF;

constexpr char32_t character(std::uint8_t byte) {
  return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80U] : byte;
}

std::optional<char> byteOf(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
  const auto found = std::ranges::find(upperControls, c);
  if (found == upperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - upperControls.begin()));
}

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

void appendUtf8(std::string& out, char32_t c) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    tail(6), tail(0);
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    tail(12), tail(6), tail(0);
  }
}

struct Decoded {
  char32_t character;
  std::size_t size;
};

/// The first character of `text`, or nullopt if its bytes are not valid UTF-8.
std::optional<Decoded> decodeUtf8(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const char32_t lead = byte(0);
  if (lead < 0x80) return Decoded{lead, 1};
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < size) return std::nullopt;
  char32_t c = lead & (0x7FU >> size);
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return std::nullopt;
    c = (c << 6) | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
  if (c < least[size] || c > 0x10FFFF || isSurrogate(c)) return std::nullopt;
  return Decoded{c, size};
}

void appendReference(std::string& out, char32_t c) {
  out.append("&#").append(std::to_string(static_cast<std::uint32_t>(c))).append(1, ';');
}

/// The decimal reference at the start of `text`, or nullopt. References with leading zeros do not count.
std::optional<Decoded> decodeReference(std::string_view text) {
  if (!text.starts_with("&#") || text.size() < 4 || !isDigit(text[2]) || text[2] == '0') return std::nullopt;
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), number);
  if (error != std::errc{} || end == text.data() + text.size() || *end != ';') return std::nullopt;
  return Decoded{number, static_cast<std::size_t>(end - text.data()) + 1};
}

/// Whether `fromUtf8` writes this character as a reference because the set lacks it.
bool isOurs(char32_t c) { return c <= 0x10FFFF && !isSurrogate(c) && !byteOf(c); }

bool isOursInNames(char32_t c) {
  return isOurs(c) || c == '&' || c == '\\' || (c >= firstStray && c <= lastStray);
}

template <class IsOurs, class Append>
std::string decode(std::string_view oneByte, IsOurs ours, Append append) {
  std::string out;
  out.reserve(oneByte.size());
  for (std::size_t i = 0; i < oneByte.size();) {
    if (const auto reference = decodeReference(oneByte.substr(i)); reference && ours(reference->character)) {
      append(out, reference->character);
      i += reference->size;
    } else {
      appendUtf8(out, character(static_cast<std::uint8_t>(oneByte[i++])));
    }
  }
  return out;
}

}  // namespace

std::string toUtf8(std::string_view oneByte) { return decode(oneByte, isOurs, appendUtf8); }

std::string nameToHost(std::string_view oneByte) {
  return decode(oneByte, isOursInNames, [](std::string& out, char32_t c) {
    if (c >= firstStray && c <= lastStray) {
      out += static_cast<char>(c - strayByte);
    } else {
      appendUtf8(out, c);
    }
  });
}

std::string fromUtf8(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto rest = utf8.substr(i);
    const auto decoded =
        decodeUtf8(rest).value_or(Decoded{character(static_cast<std::uint8_t>(rest.front())), 1});
    if (const auto byte = byteOf(decoded.character)) {
      out += *byte;
    } else {
      appendReference(out, decoded.character);
    }
    i += decoded.size;
  }
  return out;
}

std::string nameFromHost(std::string_view host) {
  std::string out;
  out.reserve(host.size());
  for (std::size_t i = 0; i < host.size();) {
    const auto rest = host.substr(i);
    const auto decoded =
        decodeUtf8(rest).value_or(Decoded{strayByte + static_cast<std::uint8_t>(rest.front()), 1});
    const auto c = decoded.character;
    const auto literal = decodeReference(rest);
    const auto byte = byteOf(c);
    if (!byte || c == '\\' || (literal && isOursInNames(literal->character))) {
      appendReference(out, c);
    } else {
      out += *byte;
    }
    i += decoded.size;
  }
  return out;
}

}  // namespace nimbrel
