#include "compiler/style_strings.h"

#include <array>
#include <tuple>
#include <vector>

#include "text/numbers.h"

namespace nimbrel {
namespace {

/// The values from which the arguments of one `nbrCreateCSS` call are made.
struct Look {
  std::uint8_t alignment;
  const SharedText& fontColor;
  const SharedText& bgColor;
  float bgImageNo;
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

// Quirk: a negative number is no image here, but counts as one in the element calls.
void appendImage(std::string& call, float number) {
  if (number > 0) {
    appendGeneral(call, number - 1);
  } else {
    call += 'n';
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

/// The look of an item in one state: 0 Normal, 1 Mouse Over, 2 Mouse Click.
template <std::size_t state>
Look lookOf(const ItemObj& item) {
  using I = ItemObj;
  const auto of = [&](auto normal, auto mouseOver, auto mouseClick) -> const auto& {
    return item.*std::array{normal, mouseOver, mouseClick}[state];
  };
  // clang-format off
  return {of(&I::ItemAlignment1,  &I::ItemAlignment2,  &I::ItemAlignment3),
          of(&I::FontColor1,      &I::FontColor2,      &I::FontColor3),
          of(&I::BGColor1,        &I::BGColor2,        &I::BGColor3),
          of(&I::BGImage1No,      &I::BGImage2No,      &I::BGImage3No),
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

/// One state of an item: its look, the call for it, and the property that holds the call's number.
struct State {
  Look (*look)(const ItemObj&);
  void (*styleString)(const ItemObj&, std::string&);
  SharedText ItemObj::*number;
};

constexpr auto states = std::to_array<State>({
    {lookOf<0>, ItemStyleString1, &ItemObj::ItemStyleID1},
    {lookOf<1>, ItemStyleString2, &ItemObj::ItemStyleID2},
    {lookOf<2>, ItemStyleString3, &ItemObj::ItemStyleID3},
});

}  // namespace

void TitleStyleString(const TitledContainer& c, std::string& call) {
  if (c.DisplayNameAsTitle == 0 && c.TitleImage == notSet) return;
  constexpr float noImage = 0;
  appendContent(call, '1',
                {c.TitleTextAlignment, c.TitleFontColor, c.TitleBGColor, noImage, c.TitleFontBold,
                 c.TitleFontItalic, c.TitleFontUnderlined, c.TitleFontSize, c.TitleFontFamily,
                 c.TitleBorderStyle, c.TitleBorderWidth, c.TitleBorderColor, c.TitlePadding, c.TitleCursor});
}

void ContainerStyleString(const TitledContainer& c, std::string& call) {
  call += "nbrCreateCSS(0,1,0,n,";
  appendColor(call, c.BGColor);
  call += ',';
  appendImage(call, c.BGImageNo);
  call += ",n,n,";
  appendBorder(call, c.BorderStyle, c.BorderWidth, c.BorderColor);
  call += ",0,0);";
}

void ItemStyleString1(const ItemObj& element, std::string& call) {
  appendContent(call, '1', lookOf<0>(element));
}
void ItemStyleString2(const ItemObj& element, std::string& call) {
  appendContent(call, '0', lookOf<1>(element));
}
void ItemStyleString3(const ItemObj& element, std::string& call) {
  appendContent(call, '0', lookOf<2>(element));
}

SharedText StyleCollection::GetStyleID(std::string_view styleString) {
  if (styleString.empty()) return {};
  const auto found = numbers_.find(styleString);
  if (found != numbers_.end()) return found->second;
  SharedText number = std::to_string(StyleStrings_.size());
  numbers_.emplace(StyleStrings_.emplace_back(styleString), number);
  return number;
}

void StyleCollection::CollectStyles(Document& document, const Node& container, bool includeSubmenus) {
  std::string call;  // reused for all calls
  const auto numberOf = [&]<class E>(const E& element, void (*styleString)(const E&, std::string&)) {
    call.clear();
    styleString(element, call);
    return GetStyleID(call);
  };
  const auto numberContainer = [&](TitledContainer& titled) {
    titled.TitleStyleID = numberOf(titled, TitleStyleString);
    titled.ContainerStyleID = numberOf(titled, ContainerStyleString);
  };
  std::vector<const Node*> waiting{&container};
  while (!waiting.empty()) {
    const Node* node = waiting.back();
    waiting.pop_back();
    Element* element = document.element(*node);
    if (auto* menu = std::get_if<MenuObj>(element)) numberContainer(*menu);
    if (auto* submenu = std::get_if<SubmenuObj>(element)) numberContainer(*submenu);
    const ItemObj* previous = nullptr;
    for (const Node* child = node->Child(); child != nullptr; child = child->Next()) {
      auto* item = document.get<ItemObj>(*child);
      if (item == nullptr) continue;
      for (const State& state : states) {
        // Most items look like the previous one, and comparing two looks is faster than making a call.
        const bool looksTheSame = previous != nullptr && state.look(*item) == state.look(*previous);
        item->*state.number = looksTheSame ? previous->*state.number : numberOf(*item, state.styleString);
      }
      previous = item;
    }
    if (!includeSubmenus || node->Child() == nullptr) continue;
    // In reverse, because `waiting` is a stack.
    for (const Node* child = node->Child()->LastSibling(); child != nullptr; child = child->Previous()) {
      if (child->Child() != nullptr) waiting.push_back(child->Child());
    }
  }
}

}  // namespace nimbrel
