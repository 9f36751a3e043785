#include "large_document.h"

#include <array>
#include <deque>
#include <string>

#include "model/structure.h"

namespace nimbrel {
namespace {

constexpr int itemsInMenu = 8;
constexpr std::array<std::string_view, 4> colors{"#E0E0F0", "#D8ECD8", "#F4E8D0", "#F0DCE4"};

std::string picture(std::string_view name) {
  return std::string(largeDocumentPictures) + '\\' + std::string(name);
}

void fillItem(ItemObj& item, std::string_view key, int place) {
  const std::string number(key.substr(1));
  setNames(item, "Products and services " + number);
  item.URL =
      "https://www.example.com/section" + std::to_string(place) + "/page" + number + ".html?from=menu,top";
  item.ItemTooltip = place % 2 == 0 ? "What we offer, where and for how much" : "";
  item.StatusBarText = "Page " + number;
  item.TargetFrame = place == 0 ? "new" : notSet;
  if (place == itemsInMenu - 1) item.ItemImage1 = item.ItemImage2 = item.ItemImage3 = picture("star.gif");
}

/// Sets the style of the first item of a menu. The next items get the same style when they are added.
void setStyleOfFirst(ItemObj& item, std::size_t menu) {
  item.BGColor1 = colors[menu % colors.size()];
  item.FontFamily1 = item.FontFamily2 = item.FontFamily3 = menu % 3 == 0 ? "Verdana" : "sans-serif";
  item.BGImage2 = menu % colors.size() == 0 ? picture("glow.jpg") : std::string(notSet);
}

}  // namespace

Document largeDocument(int elements) {
  Document document;
  std::deque<std::string> open{AddMainMenu(document).Key};  // menus that have no items yet
  for (int added = 1, menus = 0; added < elements; ++menus) {
    const std::string menu = open.front();
    open.pop_front();
    for (int place = 0; place < itemsInMenu && added < elements; ++place, ++added) {
      Node& node = *AddItem(document, menu);
      auto& item = *document.get<ItemObj>(node);
      fillItem(item, node.Key, place);
      if (place == 0) setStyleOfFirst(item, static_cast<std::size_t>(menus));
      node.Text = item.ItemName1;
      if (place % 2 == 0 && added + 1 < elements) {
        item.HasSubmenuImage1 = item.HasSubmenuImage2 = item.HasSubmenuImage3 = picture("arrow.gif");
        open.push_back(AddSubmenu(document, node.Key)->Key);
        ++added;
      }
    }
  }
  return document;
}

}  // namespace nimbrel
