#include "linking/page_rewriting.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace nimbrel {
namespace {

constexpr auto npos = PageText::npos;

enum class Behind { Keep, LineEnd, CharacterAndLineEnd };

/// Link code as an earlier release wrote it: its first and last text (none: the first is all of it), and what
/// goes with it of what follows.
struct Form {
  std::string_view start;
  std::string_view end;
  Behind behind;
};

// clang-format off
constexpr Form nbr110Code{"<!-0-nbr110startshere---", "nbr110endshere--->", Behind::Keep};
constexpr Form nbr110hCode{"<!-0-nbr110hstartshere---", "nbr110hendshere--->", Behind::Keep};
constexpr Form createdScript{"<SCRIPT>var MenuCreatedBy='Nimbrel", "nbrBuildMenu();</SCRIPT>", Behind::LineEnd};
constexpr Form refreshTag{"<NOSCRIPT><META HTTP-EQUIV=\"refresh\"", "\"></NOSCRIPT>", Behind::LineEnd};
constexpr Form pathImage{"<IMG NAME='nbrMenuPathImg'", "nbrmenupath.gif' WIDTH=1 HEIGHT=1>", Behind::CharacterAndLineEnd};
constexpr Form pageBegin{"<!---------- BEGIN NIMBREL CODE ---------->", "", Behind::LineEnd};
constexpr Form pageEnd{"<!----------- END NIMBREL CODE ----------->", "", Behind::LineEnd};
// clang-format on

enum class Outcome { NoStart, NoEnd, Removed };

void removeWithLineEnd(PageText& page, std::size_t begin, std::size_t end) {
  page.remove(begin, page.hasLineEndAt(end) ? end + 2 : end);
}

/// Removes the first code of the form that starts at `from` or behind it.
/// kept: a page that carries a form twice keeps the second.
Outcome removeForm(PageText& page, const Form& form, std::size_t from = 0) {
  const auto begin = page.find(form.start, from);
  if (begin == npos) return Outcome::NoStart;
  const auto& last = form.end.empty() ? form.start : form.end;
  auto end = page.find(last, begin);
  if (end == npos) return Outcome::NoEnd;
  end += last.size();
  // kept: one character goes unseen. Where it is the CR of a line end, the LF stays and is an empty line.
  if (form.behind == Behind::CharacterAndLineEnd) end = std::min(end + 1, page.text().size());
  if (form.behind == Behind::Keep) {
    page.remove(begin, end);
  } else {
    removeWithLineEnd(page, begin, end);
  }
  return Outcome::Removed;
}

/// The script with the refresh tag and the path image that belong to it; without the script they stay.
/// False if one of the two has no end.
bool removeScriptGroup(PageText& page) {
  const auto script = page.find(createdScript.start);
  if (script == npos || removeForm(page, createdScript, script) != Outcome::Removed) return true;
  return removeForm(page, refreshTag, script) != Outcome::NoEnd &&
         removeForm(page, pathImage) != Outcome::NoEnd;
}

/// Removes the code of the menu from its path image through its last script; false if it is not whole.
bool removeMenuCode(PageText& page, std::string_view menu) {
  // kept: what follows the name is not looked at, so that "nav" also finds the code of "nav2".
  const auto image = page.find(std::string("nbrMenuPathImg-").append(menu));
  if (image == npos || image == 0) return false;
  // kept: a tag that begins with the first or second character of the page is not seen.
  const auto begin = page.text().rfind('<', image - 1);
  if (begin == npos || begin < 2) return false;

  constexpr std::string_view scriptEnd = "</script>";
  const auto build = page.find("nbrBuildMenu();", begin);
  if (build == npos) return false;
  const auto end = page.find(scriptEnd, build);
  if (end == npos) return false;
  // kept: the refresh tag of an alternative address stands behind that and stays.
  removeWithLineEnd(page, begin, end + scriptEnd.size());
  return true;
}

}  // namespace

void RemoveOlderLinkBlocks(PageText& page) {
  removeForm(page, nbr110Code);
  removeForm(page, nbr110hCode);
  // kept: a refresh tag or path image without its end saves all that would be removed behind it.
  if (!removeScriptGroup(page)) return;
  removeForm(page, pageBegin);
  removeForm(page, pageEnd);
}

void RemoveCurrentLinkBlock(PageText& page, std::string_view menu) {
  if (!removeMenuCode(page, menu)) return;
  const auto begin = beginMarker(menu);
  if (const auto place = page.find(begin); place != npos)
    removeWithLineEnd(page, place, place + begin.size());
  // kept: the line end behind the end marker stays, an empty line for each time that a page is linked anew.
  const auto end = endMarker(menu);
  if (const auto place = page.find(end); place != npos) page.remove(place, place + end.size());
}

void InsertLinkBlock(PageText& page, std::string_view pagePath, const LinkNames& names,
                     std::string_view altUrl) {
  auto block = beginMarker(names.menu) + BuildLinkSnippet(names, altUrl) + endMarker(names.menu) + "\r\n";
  auto place = page.find("</BODY>");
  // kept: ".LBI" is no library item.
  if (place == npos && !pagePath.ends_with(".lbi")) {
    block = std::string("<body>\r\n") + block + "\r\n</body>";
    place = page.find("</HTML>");
  }
  if (place == npos) {
    page.insert(page.text().size(), std::string("\r\n") + block + "\r\n");
  } else {
    page.insert(place, block);
  }
}

std::string linkedPage(std::string bytes, std::string_view pagePath, std::string_view compiledPath,
                       std::string_view altUrl) {
  const LinkNames names(pagePath, compiledPath);
  PageText page(std::move(bytes));
  RemoveOlderLinkBlocks(page);
  RemoveCurrentLinkBlock(page, names.menu);
  InsertLinkBlock(page, pagePath, names, altUrl);
  return std::move(page).takeBytes();
}

}  // namespace nimbrel
