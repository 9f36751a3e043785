#include "compiler/element_calls.h"

#include <algorithm>
#include <array>
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
  void id(const SharedText& styleId) { constant(styleId); }
  void idOrNull(const SharedText& styleId) { constant(styleId.empty() ? "n" : styleId.view()); }

  /// Image numbers start at 1 in the elements and at 0 in the script.
  void image(float number) {
    if (number == 0) {
      null();
    } else {
      this->number(number - 1);
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

void titleText(Call& call, const TitledContainer& container, const SharedText& name) {
  call.id(container.ContainerStyleID);
  call.idOrNull(container.TitleStyleID);
  if (container.DisplayNameAsTitle == 1) {
    call.name(name);
  } else {
    call.null();
  }
  call.text(container.TitleTooltip);
}

/// The callers differ in how they decide `hasImage`.
void titleImage(Call& call, const TitledContainer& container, bool hasImage) {
  constexpr std::uint8_t noTitle = 2;
  if (container.DisplayNameAsTitle != noTitle && hasImage) {
    call.number(container.TitleImageNo - 1);
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

void appendCall(const Document& document, const Node& node, int level, std::string& script) {
  const Element* element = document.element(node);
  if (element == nullptr) return;
  script += lineEnd;
  std::visit([&](const auto& object) { JavascriptInitString(object, level, script); }, *element);
}

/// A submenu at level 0 is written as a main menu.
void appendFirstCall(const Document& document, const Node& container, std::string& script) {
  const auto* submenu = std::get_if<SubmenuObj>(document.element(container));
  if (submenu != nullptr && container.Key != document.tvTreeView.root()->Key) {
    JavascriptInitStringMimicMenu(*submenu, script += lineEnd);
  } else {
    appendCall(document, container, 0, script);
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

void JavascriptInitString(const MenuObj& menu, int, std::string& script) {
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
  titleText(call, menu, menu.menuname);
  titleImage(call, menu, menu.TitleImageNo != 0);
  items(call, menu, menu.MenuType);
}

void JavascriptInitString(const SubmenuObj& submenu, int submenuLevel, std::string& script) {
  Call call(script += "var s" + std::to_string(submenuLevel) + "=it.addSubmenu(");
  call.number(submenu.SubmenuType);
  call.number(submenu.SubmenuWhen);
  call.number(submenu.SubmenuWhere);
  call.number(submenu.SubmenuHow);
  call.number(submenu.UnfoldDirection);
  call.number(submenu.SubmenuAlignment);
  call.number(submenu.OpenDirection);
  titleText(call, submenu, submenu.SubmenuName);
  titleImage(call, submenu, submenu.TitleImageNo != 0);
  items(call, submenu, submenu.SubmenuType);
}

void JavascriptInitStringMimicMenu(const SubmenuObj& submenu, std::string& script) {
  Call call(script += "var s0=nbrCreateMenu(");
  call.constant("1");
  call.number(submenu.SubmenuWhen);
  call.number(submenu.SubmenuWhere);
  call.number(submenu.SubmenuHow);
  call.number(submenu.UnfoldDirection);
  call.number(submenu.SubmenuAlignment);
  call.constant("0,1,0,0,0,0");
  call.number(submenu.SubmenuType);
  titleText(call, submenu, submenu.SubmenuName);
  // Quirk: this call tests the property instead of the number, so a title image whose file is missing gets -1.
  titleImage(call, submenu, submenu.TitleImage != notSet);
  items(call, submenu, submenu.SubmenuType);
}

void JavascriptInitString(const ItemObj& item, int submenuLevel, std::string& script) {
  // Tests the properties instead of the numbers: a picture whose file is missing counts too.
  const bool withImages =
      std::ranges::any_of(std::array{&item.ItemImage1, &item.ItemImage2, &item.ItemImage3,
                                     &item.HasSubmenuImage1, &item.HasSubmenuImage2, &item.HasSubmenuImage3},
                          [](const SharedText* image) { return *image != notSet; });
  script.append("it=s").append(std::to_string(submenuLevel));
  Call call(script += withImages ? ".addItemWithImages(" : ".addItem(");
  call.id(item.ItemStyleID1);
  call.id(item.ItemStyleID2);
  call.id(item.ItemStyleID3);
  if (item.DisplayNameAsTitle1 == 1) {
    call.name(item.ItemName1);
  } else {
    call.text("");
  }
  itemName(call, item, item.DisplayNameAsTitle2, item.ItemName2);
  itemName(call, item, item.DisplayNameAsTitle3, item.ItemName3);
  call.text(item.ItemTooltip);
  if (withImages) {
    for (const float number : {item.ItemImage1No, item.ItemImage2No, item.ItemImage3No}) call.image(number);
    for (const auto place : {item.ImageAlignment1, item.ImageAlignment2, item.ImageAlignment3})
      call.number(place);
    for (const float number : {item.HasSubmenuImage1No, item.HasSubmenuImage2No, item.HasSubmenuImage3No}) {
      call.image(number);
    }
  }
  call.text(item.StatusBarText);
  call.command(item.JavascriptCommand1);
  call.command(item.JavascriptCommand2);
  call.command(item.JavascriptCommand3);
  call.plain(item.URL);
  call.plain(item.TargetFrame);
}

void CollectElementStrings(const Document& document, const Node& container, bool includeSubmenus,
                           std::string_view afterContainer, std::string& script) {
  appendFirstCall(document, container, script);
  if (!afterContainer.empty()) script.append(lineEnd).append(afterContainer);

  // The next item of each open menu, by level.
  std::vector<const Node*> nextItems{container.Child()};
  while (!nextItems.empty()) {
    const int level = static_cast<int>(nextItems.size()) - 1;
    const Node* item = nextItems.back();
    if (item == nullptr) {
      nextItems.pop_back();
      continue;
    }
    nextItems.back() = item->Next();
    appendCall(document, *item, level, script);
    if (const Node* submenu = item->Child(); includeSubmenus && submenu != nullptr) {
      appendCall(document, *submenu, level + 1, script);
      nextItems.push_back(submenu->Child());
    }
  }
}

}  // namespace nimbrel
