// Links a page twice and checks what must hold for any page. An input is a byte that selects the menu and the kind of
// page, the alternative address up to a line end, and the page.
#include <algorithm>
#include <string>
#include <string_view>

#include "linking/page_rewriting.h"
#include "require.h"
#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr auto npos = std::string::npos;

/// A simple implementation to compare with.
std::string slowlyWithCrLf(std::string_view bytes) {
  std::string result;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && i > 0 && bytes[i - 1] == '\r') continue;
    if (bytes[i] == '\r' || bytes[i] == '\n') {
      result += "\r\n";
    } else {
      result += bytes[i];
    }
  }
  return result;
}

std::size_t slowlyFound(std::string_view text, std::string_view wanted) {
  return lowered(text).find(lowered(wanted));
}

/// Whether the page contains anything that linking might treat as link code.
bool holdsLinkCode(std::string_view page) {
  return slowlyFound(page, "nbr") != npos || slowlyFound(page, "nimbrel") != npos;
}

void checkPage(const std::string& page, const std::string& path, const std::string& compiled,
               const std::string& address) {
  const LinkNames names(path, compiled);
  const auto block =
      beginMarker(names.menu) + BuildLinkSnippet(names, address) + endMarker(names.menu) + "\r\n";
  const auto linked = linkedPage(page, path, compiled, address);
  const auto again = linkedPage(linked, path, compiled, address);
  for (const auto* result : {&linked, &again}) {
    require(*result == slowlyWithCrLf(*result));
    require(result->find(block) != npos);
  }

  const auto given = slowlyWithCrLf(page);
  if (holdsLinkCode(given)) return;

  // Everything except the inserted block or body is unchanged, and the block precedes the first closing tag.
  const auto body = slowlyFound(given, "</body>");
  if (body == npos) {
    const auto place = path.ends_with(".lbi") ? npos : slowlyFound(given, "</html>");
    const auto split = place == npos ? given.size() : place;
    require(linked.starts_with(std::string_view(given).substr(0, split)));
    require(linked.ends_with(std::string_view(given).substr(split)));
    return;
  }
  require(linked == given.substr(0, body) + block + given.substr(body));

  // Linking again removes the block, except for its refresh tag and last line end.
  if (holdsLinkCode(address)) return;
  const auto refresh = block.find("<noscript>");
  const auto rest = refresh == npos
                        ? std::string("\r\n")
                        : block.substr(refresh, block.find("\r\n", refresh) + 2 - refresh) + "\r\n";
  require(again == given.substr(0, body) + rest + block + given.substr(body));
}

}  // namespace
}  // namespace nimbrel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(data, data + size);
  if (input.empty()) return 0;
  const unsigned choice = data[0];
  auto address = input.substr(1, input.find('\n', 1) - 1);
  auto page = input.substr(std::min(input.size(), address.size() + 2));
  // Without "<", the address contains no link code.
  std::erase_if(address, [](char c) { return c == '<' || c == '\r'; });

  constexpr const char* menus[] = {"c:\\site\\m1.js", "c:\\site\\nav.js", "d:\\x\\other.js",
                                   "c:\\site\\js\\.js"};
  nimbrel::checkPage(page, choice & 4 ? "c:\\site\\a\\item.lbi" : "c:\\site\\a\\page.html", menus[choice & 3],
                     address);
  return 0;
}
