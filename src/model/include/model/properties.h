#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "text/shared_text.h"

/// Building blocks of the property tables of the three element classes.
///
/// Values have the same encoding in all three: "n" in a text means not set (no image, no colour, no script,
/// no address); a colour is "#" and six capital hexadecimal digits; a font size is the CSS value ("4mm",
/// "small"); a yes-or-no property is the byte 1 or 0; a list property is a byte, the position in its list; an
/// image is a file path. Lengths on the page are in pixels.
namespace nimbrel {

/// The text for "not set".
inline constexpr std::string_view notSet = "n";

/// The versions of the menu file and the style file, oldest first. `persistence/file_versions.h` describes
/// each.
enum class FileVersion : std::uint8_t { V110, V120, V130, V200 };
using enum FileVersion;  // for the first column of the tables

/// How a value is written in the property line of a file.
enum class FileForm : std::uint8_t {
  Marked,   ///< between "!" marks, commas escaped
  Escaped,  ///< commas escaped
  Raw,      ///< as is
  Number,   ///< in general form, see text/numbers.h
  Flag,     ///< "1" if not zero, else "0"
};

/// Which copies of a style include a property.
enum Style : unsigned {
  NoStyle = 0,
  StyleOfClass = 1,  ///< with `CopyStyleValuesFromObject`
  StyleOfMenu = 2,   ///< with `CopyStyleValuesFromMenuObject`
};

/// Whether a text is the path of an image.
enum class Image : bool { No, Yes };

/// The default of the one property that `SetDefaultValues` leaves unchanged.
struct NoDefault {};

/// One stored property of an element class. The table's order is the order in the file, also in older
/// versions.
template <class E>
struct Property {
  using Field = std::variant<SharedText E::*, std::uint8_t E::*, float E::*>;
  using Initial = std::variant<NoDefault, std::string_view, float>;

  // One constructor per type, so that a default of the wrong type does not compile.
  consteval Property(FileVersion v, std::string_view n, SharedText E::*f, std::string_view i, FileForm form_,
                     unsigned s = NoStyle, Image image = Image::No)
      : since(v), name(n), field(f), initial(i), form(form_), style(s), isImage(image == Image::Yes) {}
  consteval Property(FileVersion v, std::string_view n, std::uint8_t E::*f, int i, unsigned s = NoStyle)
      : since(v), name(n), field(f), initial(static_cast<float>(i)), form(FileForm::Number), style(s) {}
  consteval Property(FileVersion v, std::string_view n, std::uint8_t E::*f, NoDefault i)
      : since(v), name(n), field(f), initial(i), form(FileForm::Number), style(NoStyle) {}
  consteval Property(FileVersion v, std::string_view n, float E::*f, int i, unsigned s = NoStyle,
                     FileForm form_ = FileForm::Number)
      : since(v), name(n), field(f), initial(static_cast<float>(i)), form(form_), style(s) {}

  FileVersion since;  ///< the first version whose records have it
  std::string_view name;
  Field field;
  Initial initial;
  FileForm form;
  unsigned style;
  /// Whether it is the path of an image. Images in table order are the image slots.
  bool isImage = false;
};

/// Calls `f(property, member pointer)` for each stored property, in file order.
template <class E, class F>
void eachProperty(F&& f) {
  for (const Property<E>& property : E::properties()) {
    std::visit([&](auto field) { f(property, field); }, property.field);
  }
}

/// Sets one property to its default.
template <class E>
void setDefault(E& element, const Property<E>& property) {
  std::visit(
      [&](auto field) {
        using Value = std::remove_reference_t<decltype(element.*field)>;
        if constexpr (std::is_same_v<Value, SharedText>) {
          element.*field = std::get<std::string_view>(property.initial);
        } else if (const auto* number = std::get_if<float>(&property.initial)) {
          element.*field = static_cast<Value>(*number);
        }
      },
      property.field);
}

/// The row with that name, or nullptr.
template <class E>
constexpr const Property<E>* findProperty(std::string_view name) {
  for (const Property<E>& property : E::properties()) {
    if (property.name == name) return &property;
  }
  return nullptr;
}

/// The rows of all images in table order, the order of the image slots.
template <class E>
inline constexpr auto imageRows = [] {
  constexpr auto count = std::ranges::count_if(E::properties(), &Property<E>::isImage);
  std::array<const Property<E>*, static_cast<std::size_t>(count)> rows{};
  std::size_t slot = 0;
  for (const auto& property : E::properties()) {
    if (property.isImage) rows[slot++] = &property;
  }
  return rows;
}();

/// Whether two elements are equal in all stored properties.
template <class E>
bool sameProperties(const E& a, const E& b) {
  bool same = true;
  eachProperty<E>([&](const Property<E>&, auto field) { same = same && a.*field == b.*field; });
  return same;
}

}  // namespace nimbrel
