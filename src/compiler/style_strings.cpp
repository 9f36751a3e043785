#include "compiler/style_strings.h"

#include <array>
#include <tuple>
#include <vector>

#include "text/numbers.h"

namespace nimbrel {
namespace {

/// The look of one box, as the thirteen arguments of `nbrCreateCSS` need it.
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

constexpr std::uint8_t on = 1;  // flags count as on at 1 exactly

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

// kept: here an image counts from above 0 on, in the element calls from unequal to 0 on.
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

/// kept: no semicolon behind the call of a title or an item; the line end ends it.
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

void appendTitle(std::string& call, const TitledContainer& c) {
  if (c.DisplayNameAsTitle == 0 && c.TitleImage == notSet) return;
  constexpr float noImage = 0;
  appendContent(call, '1',
                {c.TitleTextAlignment, c.TitleFontColor, c.TitleBGColor, noImage, c.TitleFontBold,
                 c.TitleFontItalic, c.TitleFontUnderlined, c.TitleFontSize, c.TitleFontFamily,
                 c.TitleBorderStyle, c.TitleBorderWidth, c.TitleBorderColor, c.TitlePadding, c.TitleCursor});
}

void appendContainer(std::string& call, const TitledContainer& c) {
  call += "nbrCreateCSS(0,1,0,n,";
  appendColor(call, c.BGColor);
  call += ',';
  appendImage(call, c.BGImageNo);
  call += ",n,n,";
  appendBorder(call, c.BorderStyle, c.BorderWidth, c.BorderColor);
  call += ",0,0);";
}

Look normalLook(const ItemObj& i) {
  return {i.ItemAlignment1, i.FontColor1,      i.BGColor1,     i.BGImage1No,  i.FontBold1,
          i.FontItalic1,    i.FontUnderlined1, i.FontSize1,    i.FontFamily1, i.BorderStyle1,
          i.BorderWidth1,   i.BorderColor1,    i.ItemPadding1, i.ItemCursor};
}

Look mouseOverLook(const ItemObj& i) {
  return {i.ItemAlignment2, i.FontColor2,      i.BGColor2,     i.BGImage2No,  i.FontBold2,
          i.FontItalic2,    i.FontUnderlined2, i.FontSize2,    i.FontFamily2, i.BorderStyle2,
          i.BorderWidth2,   i.BorderColor2,    i.ItemPadding2, i.ItemCursor};
}

Look mouseClickLook(const ItemObj& i) {
  return {i.ItemAlignment3, i.FontColor3,      i.BGColor3,     i.BGImage3No,  i.FontBold3,
          i.FontItalic3,    i.FontUnderlined3, i.FontSize3,    i.FontFamily3, i.BorderStyle3,
          i.BorderWidth3,   i.BorderColor3,    i.ItemPadding3, i.ItemCursor};
}

/// One state of an item: its look, its call, and where the number of that goes.
struct State {
  Look (*look)(const ItemObj&);
  void (*styleString)(const ItemObj&, std::string&);
  SharedText ItemObj::*number;
};

constexpr auto states = std::to_array<State>({
    {normalLook, ItemStyleString1, &ItemObj::ItemStyleID1},
    {mouseOverLook, ItemStyleString2, &ItemObj::ItemStyleID2},
    {mouseClickLook, ItemStyleString3, &ItemObj::ItemStyleID3},
});

}  // namespace

void TitleStyleString(const MenuObj& element, std::string& call) { appendTitle(call, element); }
void TitleStyleString(const SubmenuObj& element, std::string& call) { appendTitle(call, element); }
void ContainerStyleString(const MenuObj& element, std::string& call) { appendContainer(call, element); }
void ContainerStyleString(const SubmenuObj& element, std::string& call) { appendContainer(call, element); }

void ItemStyleString1(const ItemObj& element, std::string& call) {
  appendContent(call, '1', normalLook(element));
}
void ItemStyleString2(const ItemObj& element, std::string& call) {
  appendContent(call, '0', mouseOverLook(element));
}
void ItemStyleString3(const ItemObj& element, std::string& call) {
  appendContent(call, '0', mouseClickLook(element));
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
  std::string call;  // one buffer for them all
  const auto numberOf = [&]<class E>(const E& element, void (*styleString)(const E&, std::string&)) {
    call.clear();
    styleString(element, call);
    return GetStyleID(call);
  };
  const auto numberContainer = [&](auto& container_) {
    container_.TitleStyleID = numberOf(container_, TitleStyleString);
    container_.ContainerStyleID = numberOf(container_, ContainerStyleString);
  };
  std::vector<const Node*> waiting{&container};
  while (!waiting.empty()) {
    const Node* node = waiting.back();
    waiting.pop_back();
    Element* element = document.element(*node);
    if (auto* menu = std::get_if<MenuObj>(element)) numberContainer(*menu);
    if (auto* submenu = std::get_if<SubmenuObj>(element)) numberContainer(*submenu);
    const ItemObj* ahead = nullptr;
    for (const Node* child = node->Child(); child != nullptr; child = child->Next()) {
      auto* item = document.get<ItemObj>(*child);
      if (item == nullptr) continue;
      for (const State& state : states) {
        // Most items look as the one ahead of them, which is seen sooner than their calls are made.
        const bool looksTheSame = ahead != nullptr && state.look(*item) == state.look(*ahead);
        item->*state.number = looksTheSame ? ahead->*state.number : numberOf(*item, state.styleString);
      }
      ahead = item;
    }
    if (!includeSubmenus || node->Child() == nullptr) continue;
    // The last one first, since the waiting are taken from the end.
    for (const Node* child = node->Child()->LastSibling(); child != nullptr; child = child->Previous()) {
      if (child->Child() != nullptr) waiting.push_back(child->Child());
    }
  }
}

}  // namespace nimbrel
