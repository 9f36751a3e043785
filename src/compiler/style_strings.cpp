#include "compiler/style_strings.h"

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
std::string contentCall(char marker, const Look& look) {
  std::string call = "nbrCreateCSS(";
  call.append(1, marker).append(",2,");
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
  return call += ')';
}

template <class Container>
std::string titleCall(const Container& c) {
  if (c.DisplayNameAsTitle == 0 && c.TitleImage == notSet) return {};
  constexpr float noImage = 0;
  return contentCall(
      '1', {c.TitleTextAlignment, c.TitleFontColor, c.TitleBGColor, noImage, c.TitleFontBold,
            c.TitleFontItalic, c.TitleFontUnderlined, c.TitleFontSize, c.TitleFontFamily, c.TitleBorderStyle,
            c.TitleBorderWidth, c.TitleBorderColor, c.TitlePadding, c.TitleCursor});
}

template <class Container>
std::string containerCall(const Container& c) {
  std::string call = "nbrCreateCSS(0,1,0,n,";
  appendColor(call, c.BGColor);
  call += ',';
  appendImage(call, c.BGImageNo);
  call += ",n,n,";
  appendBorder(call, c.BorderStyle, c.BorderWidth, c.BorderColor);
  return call += ",0,0);";
}

}  // namespace

std::string TitleStyleString(const MenuObj& element) {
  return titleCall(element);
}
std::string TitleStyleString(const SubmenuObj& element) {
  return titleCall(element);
}
std::string ContainerStyleString(const MenuObj& element) {
  return containerCall(element);
}
std::string ContainerStyleString(const SubmenuObj& element) {
  return containerCall(element);
}

std::string ItemStyleString1(const ItemObj& i) {
  return contentCall('1', {i.ItemAlignment1, i.FontColor1, i.BGColor1, i.BGImage1No, i.FontBold1,
                           i.FontItalic1, i.FontUnderlined1, i.FontSize1, i.FontFamily1, i.BorderStyle1,
                           i.BorderWidth1, i.BorderColor1, i.ItemPadding1, i.ItemCursor});
}

std::string ItemStyleString2(const ItemObj& i) {
  return contentCall('0', {i.ItemAlignment2, i.FontColor2, i.BGColor2, i.BGImage2No, i.FontBold2,
                           i.FontItalic2, i.FontUnderlined2, i.FontSize2, i.FontFamily2, i.BorderStyle2,
                           i.BorderWidth2, i.BorderColor2, i.ItemPadding2, i.ItemCursor});
}

std::string ItemStyleString3(const ItemObj& i) {
  return contentCall('0', {i.ItemAlignment3, i.FontColor3, i.BGColor3, i.BGImage3No, i.FontBold3,
                           i.FontItalic3, i.FontUnderlined3, i.FontSize3, i.FontFamily3, i.BorderStyle3,
                           i.BorderWidth3, i.BorderColor3, i.ItemPadding3, i.ItemCursor});
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
  const auto number = [this](auto& element) {
    using E = std::remove_reference_t<decltype(element)>;
    if constexpr (std::is_same_v<E, ItemObj>) {
      element.ItemStyleID1 = GetStyleID(ItemStyleString1(element));
      element.ItemStyleID2 = GetStyleID(ItemStyleString2(element));
      element.ItemStyleID3 = GetStyleID(ItemStyleString3(element));
    } else {
      element.TitleStyleID = GetStyleID(TitleStyleString(element));
      element.ContainerStyleID = GetStyleID(ContainerStyleString(element));
    }
  };
  std::vector<const Node*> waiting{&container};
  while (!waiting.empty()) {
    const Node* node = waiting.back();
    waiting.pop_back();
    if (auto* menu = document.get<MenuObj>(*node)) number(*menu);
    if (auto* submenu = document.get<SubmenuObj>(*node)) number(*submenu);
    for (const Node* child = node->Child(); child != nullptr; child = child->Next()) {
      if (auto* item = document.get<ItemObj>(*child)) number(*item);
    }
    if (!includeSubmenus || node->Child() == nullptr) continue;
    // The last one first, since the waiting are taken from the end.
    for (const Node* child = node->Child()->LastSibling(); child != nullptr; child = child->Previous()) {
      if (child->Child() != nullptr) waiting.push_back(child->Child());
    }
  }
}

}  // namespace nimbrel
