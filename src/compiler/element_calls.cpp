#include "compiler/element_calls.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

#include "text/ascii.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

/// Appends the arguments of a call, and on destruction its end, to a script that ends in an open parenthesis.
class Call {
 public:
  explicit Call(std::string& script) : script_(script) {}
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;
  ~Call() { script_ += ");"; }

  void number(std::uint8_t value) { appendGeneral(next(), value); }
  void number(float value) { appendGeneral(next(), value); }
  void constant(std::string_view value) { next() += value; }
  void null() { constant("n"); }
  void number(std::int32_t value) { next() += std::to_string(value); }
  /// Of a picture or look; without one, null.
  void numberOrNull(std::int32_t number) {
    if (number == ElementNumbers::none) {
      null();
    } else {
      this->number(number);
    }
  }
  /// Of a look that the element must have. One that the structure of a file hides has none.
  void id(std::int32_t number) {
    if (number == ElementNumbers::none) {
      constant("");
    } else {
      this->number(number);
    }
  }

  void text(std::string_view value) {
    std::string& out = next();
    out += '"';
    appendEscaped(out, value);
    out += '"';
  }

  void name(std::string_view value) {
    const bool hasEdge = value.starts_with(' ') || value.ends_with(' ');
    if (hasEdge) {
      text(EscapeEdgeSpaces(value));
    } else {
      text(value);
    }
  }

  /// The author's script code, with single quotes in place of double ones.
  void command(const SharedText& value) {
    if (value == notSet) return null();
    std::string& out = next();
    out += '"';
    const auto begin = static_cast<std::ptrdiff_t>(out.size());
    out += value.view();
    std::replace(out.begin() + begin, out.end(), '"', '\'');
    out += '"';
  }

  void plain(const SharedText& value) {
    if (value == notSet) return null();
    next().append(1, '"').append(value.view()).append(1, '"');
  }

 private:
  static void appendEscaped(std::string& out, std::string_view value) {
    for (const char c : value) {
      if (c == '\\' || c == '"') out += '\\';
      out += c;
    }
  }

  std::string& next() {
    if (std::exchange(hasArguments_, true)) script_ += ',';
    return script_;
  }

  std::string& script_;
  bool hasArguments_ = false;
};

// Arguments that several calls share, in the order of the runtime's parameters.

void titleText(Call& call, const TitledContainer& container, const ElementNumbers& numbers,
               const SharedText& name) {
  call.id(numbers.looks[0]);
  call.numberOrNull(numbers.looks[1]);
  if (container.DisplayNameAsTitle == 1) {
    call.name(name);
  } else {
    call.null();
  }
  call.text(container.TitleTooltip);
}

/// The callers differ in how they decide `hasImage`.
void titleImage(Call& call, const TitledContainer& container, const ElementNumbers& numbers, bool hasImage) {
  constexpr std::uint8_t noTitle = 2;
  if (container.DisplayNameAsTitle != noTitle && hasImage) {
    call.number(numbers.pictures.front());
  } else {
    call.null();
  }
  if (hasImage) {
    call.number(container.TitleImageAlignment);
  } else {
    call.constant("1");
  }
}

void items(Call& call, const TitledContainer& container, std::uint8_t type) {
  call.number(container.DistanceBetweenItems);
  if (type == 0) {
    call.constant("1");
  } else {
    call.number(container.UniformItemWidths);
  }
  if (type > 0) {
    call.constant("1");
  } else {
    call.number(container.UniformItemHeights);
  }
  call.command(container.JavascriptOnOpen);
  call.command(container.JavascriptOnClose);
}

/// The text of state 2 or 3. Null makes the runtime use the text of the Normal state.
void itemName(Call& call, const ItemObj& item, std::uint8_t display, const SharedText& name) {
  if (display != 1) {
    call.text("");
  } else if (name == item.ItemName1 && item.DisplayNameAsTitle1 != 0) {
    call.null();
  } else {
    call.name(name);
  }
}

/// The image slots of an item: three states each.
constexpr std::size_t states = 3;
constexpr std::size_t firstItemImage = 0;
constexpr std::size_t firstMark = 3;  ///< of an item with a submenu
static_assert(imageRows<ItemObj>[firstItemImage] -> name == "ItemImage1");
static_assert(imageRows<ItemObj>[firstMark] -> name == "HasSubmenuImage1");

void appendCall(const CompiledElement& one, int level, std::string& script) {
  if (one.element == nullptr) return;
  script += lineEnd;
  std::visit([&](const auto& object) { JavascriptInitString(object, one.numbers, level, script); },
             *one.element);
}

/// A submenu at level 0 is written as a main menu.
void appendFirstCall(const CompiledElement& one, std::string& script) {
  const auto* submenu = std::get_if<SubmenuObj>(one.element);
  if (submenu != nullptr && one.node->Parent() != nullptr) {
    JavascriptInitStringMimicMenu(*submenu, one.numbers, script += lineEnd);
  } else {
    appendCall(one, 0, script);
  }
}

}  // namespace

std::string EscapeEdgeSpaces(std::string_view text) {
  constexpr std::string_view blank = "&nbsp";  // Quirk: no semicolon
  const auto repeated = [&](std::size_t count) {
    std::string result;
    while (count-- > 0) result += blank;
    return result;
  };
  const auto leading = std::min(text.find_first_not_of(' '), text.size());
  std::string inner(text.substr(leading));
  // Quirk: if the text is all blanks, this blank is counted as a trailing one.
  if (leading > 0) inner.insert(0, 1, ' ');
  if (inner.empty()) return inner;
  const auto size = inner.find_last_not_of(' ') + 1;
  const auto trailing = inner.size() - size;
  inner.resize(size);
  if (trailing > 0) inner.append(1, ' ').append(repeated(trailing));
  return repeated(leading) + inner;
}

void JavascriptInitString(const MenuObj& menu, const ElementNumbers& numbers, int, std::string& script) {
  Call call(script += "var s0=nbrCreateMenu(");
  call.number(menu.Collapsable);
  call.constant("0,0");
  call.number(menu.MenuHow);
  call.number(menu.UnfoldDirection);
  call.constant("0");
  call.number(menu.Movable);
  call.number(menu.Drifty);
  call.number(menu.CornerForPositioning);
  call.number(menu.HorizontalDistanceFromCorner);
  call.number(menu.VerticalDistanceFromCorner);
  call.number(menu.StickySubmenus);
  call.number(menu.MenuType);
  titleText(call, menu, numbers, menu.menuname);
  titleImage(call, menu, numbers, numbers.pictures.front() != ElementNumbers::none);
  items(call, menu, menu.MenuType);
}

void JavascriptInitString(const SubmenuObj& submenu, const ElementNumbers& numbers, int submenuLevel,
                          std::string& script) {
  Call call(script += "var s" + std::to_string(submenuLevel) + "=it.addSubmenu(");
  call.number(submenu.SubmenuType);
  call.number(submenu.SubmenuWhen);
  call.number(submenu.SubmenuWhere);
  call.number(submenu.SubmenuHow);
  call.number(submenu.UnfoldDirection);
  call.number(submenu.SubmenuAlignment);
  call.number(submenu.OpenDirection);
  titleText(call, submenu, numbers, submenu.SubmenuName);
  titleImage(call, submenu, numbers, numbers.pictures.front() != ElementNumbers::none);
  items(call, submenu, submenu.SubmenuType);
}

void JavascriptInitStringMimicMenu(const SubmenuObj& submenu, const ElementNumbers& numbers,
                                   std::string& script) {
  Call call(script += "var s0=nbrCreateMenu(");
  call.constant("1");
  call.number(submenu.SubmenuWhen);
  call.number(submenu.SubmenuWhere);
  call.number(submenu.SubmenuHow);
  call.number(submenu.UnfoldDirection);
  call.number(submenu.SubmenuAlignment);
  call.constant("0,1,0,0,0,0");
  call.number(submenu.SubmenuType);
  titleText(call, submenu, numbers, submenu.SubmenuName);
  // Quirk: this call tests the property instead of the number, so a title image whose file is missing gets -1.
  titleImage(call, submenu, numbers, submenu.TitleImage != notSet);
  items(call, submenu, submenu.SubmenuType);
}

void JavascriptInitString(const ItemObj& item, const ElementNumbers& numbers, int submenuLevel,
                          std::string& script) {
  // Tests the properties instead of the numbers: a picture whose file is missing counts too.
  const bool withImages =
      std::ranges::any_of(std::array{&item.ItemImage1, &item.ItemImage2, &item.ItemImage3,
                                     &item.HasSubmenuImage1, &item.HasSubmenuImage2, &item.HasSubmenuImage3},
                          [](const SharedText* image) { return *image != notSet; });
  script.append("it=s").append(std::to_string(submenuLevel));
  Call call(script += withImages ? ".addItemWithImages(" : ".addItem(");
  for (const auto look : numbers.looks) call.id(look);
  if (item.DisplayNameAsTitle1 == 1) {
    call.name(item.ItemName1);
  } else {
    call.text("");
  }
  itemName(call, item, item.DisplayNameAsTitle2, item.ItemName2);
  itemName(call, item, item.DisplayNameAsTitle3, item.ItemName3);
  call.text(item.ItemTooltip);
  if (withImages) {
    const auto pictures = std::span(numbers.pictures);
    for (const auto picture : pictures.subspan(firstItemImage, states)) call.numberOrNull(picture);
    for (const auto place : {item.ImageAlignment1, item.ImageAlignment2, item.ImageAlignment3})
      call.number(place);
    for (const auto picture : pictures.subspan(firstMark, states)) call.numberOrNull(picture);
  }
  call.text(item.StatusBarText);
  call.command(item.JavascriptCommand1);
  call.command(item.JavascriptCommand2);
  call.command(item.JavascriptCommand3);
  call.plain(item.URL);
  call.plain(item.TargetFrame);
}

void CollectElementStrings(const CompiledGroup& group, std::string_view afterContainer, std::string& script) {
  const auto& elements = group.elements;
  appendFirstCall(elements.front(), script);
  if (!afterContainer.empty()) script.append(lineEnd).append(afterContainer);

  struct Open {
    std::size_t next;  ///< position of the next item
    std::size_t end;
  };
  std::vector<Open> menus{{1, elements.size()}};  // by level
  while (!menus.empty()) {
    const int level = static_cast<int>(menus.size()) - 1;
    const auto position = menus.back().next;
    if (position == menus.back().end) {
      menus.pop_back();
      continue;
    }
    const auto& item = elements[position];
    menus.back().next = position + item.below + 1;
    appendCall(item, level, script);
    if (!group.includesSubmenus || item.below == 0) continue;
    const auto& submenu = elements[position + 1];
    appendCall(submenu, level + 1, script);
    menus.push_back({position + 2, position + 2 + submenu.below});
  }
}

}  // namespace nimbrel
