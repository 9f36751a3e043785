#include "persistence/older_records.h"

#include <array>
#include <string>
#include <type_traits>

#include "persistence/property_line.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

bool isFontSize(std::string_view name) { return name.find("FontSize") != std::string_view::npos; }

/// Quirk: these versions store font sizes as numbers.
std::string_view fontSizeKeyword(float number) {
  struct Size {
    float number;
    std::string_view keyword;
  };
  static constexpr auto sizes = std::to_array<Size>({{0, "xx-small"},
                                                     {1, "xx-small"},
                                                     {2, "x-small"},
                                                     {3, "small"},
                                                     {4, "medium"},
                                                     {5, "large"},
                                                     {6, "x-large"},
                                                     {7, "xx-large"}});
  for (const Size& size : sizes) {
    if (size.number == number) return size.keyword;
  }
  return "medium";
}

template <class Number>
Number readNumber(FileHandle& file, std::string_view name, std::optional<Number> (*parse)(std::string_view)) {
  const auto value = file.next();
  const auto number = parse(value);
  if (!number) file.fail(std::string(name) + ": " + quoted(value) + " is not a valid number");
  return *number;
}

/// Quirk: the main menu's record has three values for the submenus, after these two of its properties.
template <class E>
void readCarryOver(FileHandle& file, const Property<E>& before, SubmenuCarryOver& carryOver) {
  if constexpr (std::is_same_v<E, MenuObj>) {
    if (before.name == "VerticalDistanceFromCorner") {
      carryOver.bcSubmenusWhen = readNumber(file, "bcSubmenusWhen", parseByte) == 1 ? 0 : 1;
      carryOver.bcSubmenusWhere = readNumber(file, "bcSubmenusWhere", parseSingle);
    } else if (before.name == "UniformItemHeights") {
      carryOver.bcSubmenusHow = readNumber(file, "bcSubmenusHow", parseByte);
    }
  }
}

template <class E>
void readValue(FileHandle& file, std::string_view FPath, const Property<E>& property, E& element) {
  if (isFontSize(property.name)) {
    element.*std::get<SharedText E::*>(property.field) =
        fontSizeKeyword(readNumber(file, property.name, parseSingle));
  } else {
    readProperty(file, FPath, property, element);
  }
}

/// Quirk: some properties that these versions lack are not zero.
void complete(MenuObj& menu, const SubmenuCarryOver&) { menu.UnfoldDirection = 1; }

void complete(SubmenuObj& submenu, const SubmenuCarryOver& carryOver) {
  submenu.SubmenuWhen = carryOver.bcSubmenusWhen;
  submenu.SubmenuWhere = carryOver.bcSubmenusWhere;
  submenu.SubmenuHow = carryOver.bcSubmenusHow;
}

void complete(ItemObj&, const SubmenuCarryOver&) {}

}  // namespace

void readOlderRecord(FileHandle& file, FileVersion version, std::string_view FPath,
                     SubmenuCarryOver& carryOver, Element& element) {
  std::visit(
      [&]<class E>(E& object) {
        for (const Property<E>& property : E::properties()) {
          if (property.since > version) continue;
          readValue(file, FPath, property, object);
          readCarryOver(file, property, carryOver);
        }
        complete(object, carryOver);
      },
      element);
}

}  // namespace nimbrel
