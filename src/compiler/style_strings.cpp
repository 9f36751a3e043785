#include "compiler/style_strings.h"

#include <array>
#include <deque>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "text/numbers.h"

namespace nimbrel {
namespace {

/// The values from which the arguments of one `nbrCreateCSS` call are made.
struct Look {
  std::uint8_t alignment;
  const SharedText& fontColor;
  const SharedText& bgColor;
  std::int32_t bgImageNo;
  std::uint8_t bold;
  std::uint8_t italic;
  std::uint8_t underlined;
  const SharedText& fontSize;
  const SharedText& fontFamily;
  const SharedText& borderStyle;
  std::uint8_t borderWidth;
  const SharedText& borderColor;
  float padding;
  std::uint8_t cursor;

  auto fields() const {
    return std::tie(alignment, fontColor, bgColor, bgImageNo, bold, italic, underlined, fontSize, fontFamily,
                    borderStyle, borderWidth, borderColor, padding, cursor);
  }
  bool operator==(const Look& other) const { return fields() == other.fields(); }
};

constexpr std::uint8_t on = 1;  // any other value of a flag counts as off

void appendQuoted(std::string& call, std::string_view text) {
  call.append(1, '\'').append(text).append(1, '\'');
}

void appendColor(std::string& call, const SharedText& color) {
  if (color == notSet) {
    call += 'n';
  } else {
    appendQuoted(call, color);
  }
}

void appendImage(std::string& call, std::int32_t number) {
  if (number == ElementNumbers::none) {
    call += 'n';
  } else {
    call += std::to_string(number);
  }
}

void appendBorder(std::string& call, const SharedText& style, std::uint8_t width, const SharedText& color) {
  appendQuoted(call, style);
  call += ',';
  appendGeneral(call, width);
  call += ',';
  appendColor(call, color);
}

void appendFont(std::string& call, const Look& look) {
  call += '\'';
  if (look.italic == on) call += "italic ";
  if (look.bold == on) call += "bold ";
  call.append(look.fontSize).append(1, ' ').append(look.fontFamily);
  call += look.underlined == on ? "','underline'" : "',n";
}

/// Quirk: the calls of titles and items end without a semicolon; the line end terminates them.
void appendContent(std::string& call, char marker, const Look& look) {
  call.append("nbrCreateCSS(").append(1, marker).append(",2,");
  appendGeneral(call, look.alignment);
  call += ',';
  appendColor(call, look.fontColor);
  call += ',';
  appendColor(call, look.bgColor);
  call += ',';
  appendImage(call, look.bgImageNo);
  call += ',';
  appendFont(call, look);
  call += ',';
  appendBorder(call, look.borderStyle, look.borderWidth, look.borderColor);
  call += ',';
  appendGeneral(call, look.padding);
  call += ',';
  appendGeneral(call, look.cursor);
  call += ')';
}

/// The slot of the background of the state Normal; those of the other states follow it.
constexpr std::size_t firstBackground = 6;
static_assert(imageRows<ItemObj>[firstBackground] -> name == "BGImage1");
constexpr std::size_t containerBackground = 1;
static_assert(imageRows<MenuObj>[containerBackground] -> name == "BGImage");
static_assert(imageRows<SubmenuObj>[containerBackground] -> name == "BGImage");

/// The look of an item in one state: 0 Normal, 1 Mouse Over, 2 Mouse Click.
template <std::size_t state>
Look lookOf(const ItemObj& item, const ElementNumbers& numbers) {
  using I = ItemObj;
  const auto of = [&](auto normal, auto mouseOver, auto mouseClick) -> const auto& {
    return item.*std::array{normal, mouseOver, mouseClick}[state];
  };
  // clang-format off
  return {of(&I::ItemAlignment1,  &I::ItemAlignment2,  &I::ItemAlignment3),
          of(&I::FontColor1,      &I::FontColor2,      &I::FontColor3),
          of(&I::BGColor1,        &I::BGColor2,        &I::BGColor3),
          numbers.pictures[firstBackground + state],
          of(&I::FontBold1,       &I::FontBold2,       &I::FontBold3),
          of(&I::FontItalic1,     &I::FontItalic2,     &I::FontItalic3),
          of(&I::FontUnderlined1, &I::FontUnderlined2, &I::FontUnderlined3),
          of(&I::FontSize1,       &I::FontSize2,       &I::FontSize3),
          of(&I::FontFamily1,     &I::FontFamily2,     &I::FontFamily3),
          of(&I::BorderStyle1,    &I::BorderStyle2,    &I::BorderStyle3),
          of(&I::BorderWidth1,    &I::BorderWidth2,    &I::BorderWidth3),
          of(&I::BorderColor1,    &I::BorderColor2,    &I::BorderColor3),
          of(&I::ItemPadding1,    &I::ItemPadding2,    &I::ItemPadding3),
          item.ItemCursor};
  // clang-format on
}

constexpr auto itemLooks =
    std::to_array<Look (*)(const ItemObj&, const ElementNumbers&)>({lookOf<0>, lookOf<1>, lookOf<2>});

}  // namespace

void TitleStyleString(const TitledContainer& c, std::string& call) {
  if (c.DisplayNameAsTitle == 0 && c.TitleImage == notSet) return;
  appendContent(
      call, '1',
      {c.TitleTextAlignment, c.TitleFontColor, c.TitleBGColor, ElementNumbers::none, c.TitleFontBold,
       c.TitleFontItalic, c.TitleFontUnderlined, c.TitleFontSize, c.TitleFontFamily, c.TitleBorderStyle,
       c.TitleBorderWidth, c.TitleBorderColor, c.TitlePadding, c.TitleCursor});
}

void ContainerStyleString(const TitledContainer& c, const ElementNumbers& numbers, std::string& call) {
  call += "nbrCreateCSS(0,1,0,n,";
  appendColor(call, c.BGColor);
  call += ',';
  appendImage(call, numbers.pictures[containerBackground]);
  call += ",n,n,";
  appendBorder(call, c.BorderStyle, c.BorderWidth, c.BorderColor);
  call += ",0,0);";
}

void ItemStyleString(const ItemObj& item, const ElementNumbers& numbers, LookPart state, std::string& call) {
  appendContent(call, state == LookPart::Normal ? '1' : '0',
                itemLooks.at(static_cast<std::size_t>(state))(item, numbers));
}

void StyleString(const CompiledElement& owner, LookPart part, std::string& call) {
  if (owner.element == nullptr) return;
  std::visit(
      [&]<class E>(const E& object) {
        if constexpr (std::same_as<E, ItemObj>) {
          ItemStyleString(object, owner.numbers, part, call);
        } else if (part == LookPart::Title) {
          TitleStyleString(object, call);
        } else {
          ContainerStyleString(object, owner.numbers, call);
        }
      },
      *owner.element);
}

namespace {

/// Looks are the same if their calls are.
class LookNumbers {
 public:
  explicit LookNumbers(CompiledGroup& group) : group_(group) {}

  std::int32_t numberOf(std::size_t owner, LookPart part) {
    call_.clear();
    StyleString(group_.elements[owner], part, call_);
    if (call_.empty()) return ElementNumbers::none;
    const auto found = numbers_.find(call_);
    if (found != numbers_.end()) return found->second;
    const auto number = static_cast<std::int32_t>(group_.looks.size());
    numbers_.emplace(calls_.emplace_back(call_), number);
    group_.looks.push_back({owner, part});
    return number;
  }

 private:
  CompiledGroup& group_;
  std::string call_;  // reused for all calls
  std::deque<std::string> calls_;
  std::unordered_map<std::string_view, std::int32_t> numbers_;  // keys view into calls_
};

}  // namespace

void CollectStyles(CompiledGroup& group) {
  LookNumbers looks(group);
  auto& elements = group.elements;
  std::vector<std::size_t> waiting{0};
  std::vector<std::size_t> submenus;
  while (!waiting.empty()) {
    const auto container = waiting.back();
    waiting.pop_back();
    const auto* element = elements[container].element;
    if (element != nullptr && !std::holds_alternative<ItemObj>(*element)) {
      auto& [box, title, unused] = elements[container].numbers.looks;
      title = looks.numberOf(container, LookPart::Title);
      box = looks.numberOf(container, LookPart::Container);
    }
    submenus.clear();
    const CompiledElement* previous = nullptr;
    group.eachChild(container, [&](std::size_t child) {
      auto& one = elements[child];
      if (one.below > 0) submenus.push_back(child + 1);
      const auto* item = one.element == nullptr ? nullptr : std::get_if<ItemObj>(one.element);
      if (item == nullptr) return;
      for (std::size_t state = 0; state < itemLooks.size(); ++state) {
        // Most items look like the previous one, and comparing two looks is faster than making a call.
        const bool looksTheSame =
            previous != nullptr &&
            itemLooks[state](*item, one.numbers) ==
                itemLooks[state](std::get<ItemObj>(*previous->element), previous->numbers);
        one.numbers.looks[state] = looksTheSame ? previous->numbers.looks[state]
                                                : looks.numberOf(child, static_cast<LookPart>(state));
      }
      previous = &one;
    });
    // In reverse, because `waiting` is a stack.
    if (group.includesSubmenus) waiting.insert(waiting.end(), submenus.rbegin(), submenus.rend());
  }
}

}  // namespace nimbrel
