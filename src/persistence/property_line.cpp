#include "persistence/property_line.h"

#include <algorithm>
#include <optional>

#include "text/numbers.h"

namespace nimbrel {
namespace {

constexpr char mark = '!';

void appendEscaped(std::string& out, std::string_view text) {
  const auto begin = static_cast<std::ptrdiff_t>(out.size());
  out += text;
  std::replace(out.begin() + begin, out.end(), ',', escapedComma);
}

SharedText unescaped(FileHandle& file, std::string_view value) {
  if (value.find(escapedComma) == std::string_view::npos) return file.shared(value);
  std::string text(value);
  std::ranges::replace(text, escapedComma, ',');
  return file.shared(text);
}

void append(std::string& out, FileForm form, const SharedText& value) {
  switch (form) {
    case FileForm::Marked: appendMarked(out, value); break;
    case FileForm::Escaped: appendEscaped(out, value); break;
    default: out += value;  // Quirk: a comma in a raw value is not escaped and shifts later values
  }
}

void append(std::string& out, FileForm, std::uint8_t value) { appendGeneral(out, value); }

void append(std::string& out, FileForm form, float value) {
  if (form == FileForm::Flag) {
    out += value == 0 ? '0' : '1';
  } else {
    appendGeneral(out, value);
  }
}

template <class Number>
Number converted(FileHandle& file, std::string_view name, std::string_view value,
                 std::optional<Number> number, std::string_view expected) {
  if (!number) {
    file.fail(std::string(name) + ": " + quoted(value) + " is not " + std::string(expected) +
              " (a comma or line break in an earlier value shifts all later ones)");
  }
  return *number;
}

template <class E>
void read(FileHandle& file, std::string_view FPath, const Property<E>& property, SharedText& field) {
  const auto value = file.next();
  switch (property.form) {
    case FileForm::Marked: field = unmarked(file, property.name, value); break;
    case FileForm::Escaped: field = unescaped(file, value); break;
    default: field = file.shared(value);
  }
  if (property.isImage && field.view().starts_with('*')) {
    field = std::string(FPath).append(field.view(), 1);
  }
}

template <class E>
void read(FileHandle& file, std::string_view, const Property<E>& property, std::uint8_t& field) {
  const auto value = file.next();
  field = converted(file, property.name, value, parseByte(value), "a number from 0 to 255");
}

template <class E>
void read(FileHandle& file, std::string_view, const Property<E>& property, float& field) {
  const auto value = file.next();
  if (property.form == FileForm::Flag) {
    constexpr float flagged = -1;
    field = value == "0" ? 0 : flagged;
  } else {
    field = converted(file, property.name, value, parseSingle(value), "a number");
  }
}

}  // namespace

std::string_view closingMarker(Kind kind) {
  switch (kind) {
    case Kind::Menu: return "[nbrEM]";
    case Kind::Submenu: return "[nbrES]";
    case Kind::Item: return "[nbrEI]";
    case Kind::None: break;
  }
  return {};
}

void appendMarked(std::string& out, std::string_view text) {
  out += mark;
  appendEscaped(out, text);
  out += mark;
}

SharedText unmarked(FileHandle& file, std::string_view name, std::string_view value) {
  if (value.size() < 2) file.fail(std::string(name) + ": " + quoted(value) + " is not between \"!\" marks");
  if (value.front() != mark || value.back() != mark) {
    file.note(std::string(name) + ": " + quoted(value) +
              " is not between \"!\" marks, its outer characters are lost");
  }
  return unescaped(file, value.substr(1, value.size() - 2));
}

void appendParameterString(std::string& out, const Element& element) {
  std::visit(
      [&out]<class E>(const E& object) {
        eachProperty<E>([&](const Property<E>& property, auto field) {
          append(out, property.form, object.*field);
          out += ',';
        });
      },
      element);
  out += closingMarker(kindOf(element));
}

std::string ParameterString(const Element& element) {
  std::string line;
  appendParameterString(line, element);
  return line;
}

template <class E>
void readProperty(FileHandle& file, std::string_view FPath, const Property<E>& property, E& element) {
  std::visit([&](auto field) { read(file, FPath, property, element.*field); }, property.field);
}

template void readProperty(FileHandle&, std::string_view, const Property<MenuObj>&, MenuObj&);
template void readProperty(FileHandle&, std::string_view, const Property<SubmenuObj>&, SubmenuObj&);
template void readProperty(FileHandle&, std::string_view, const Property<ItemObj>&, ItemObj&);

}  // namespace nimbrel
