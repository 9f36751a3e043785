#include "linking/page_rewriting.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace nimbrel {
namespace {

constexpr auto npos = PageText::npos;

/// What is removed together with the link code before it.
enum class Trailing { Nothing, LineEnd, CharacterAndLineEnd };

/// A kind of link code that an earlier release wrote. An empty `end` means that `start` is the whole code.
struct Form {
  std::string_view start;
  std::string_view end;
  Trailing trailing;
};

// clang-format off
constexpr Form nbr110Code{"<!-0-nbr110startshere---", "nbr110endshere--->", Trailing::Nothing};
constexpr Form nbr110hCode{"<!-0-nbr110hstartshere---", "nbr110hendshere--->", Trailing::Nothing};
constexpr Form createdScript{"<SCRIPT>var MenuCreatedBy='Nimbrel", "nbrBuildMenu();</SCRIPT>", Trailing::LineEnd};
constexpr Form refreshTag{"<NOSCRIPT><META HTTP-EQUIV=\"refresh\"", "\"></NOSCRIPT>", Trailing::LineEnd};
constexpr Form pathImage{"<IMG NAME='nbrMenuPathImg'", "nbrmenupath.gif' WIDTH=1 HEIGHT=1>", Trailing::CharacterAndLineEnd};
constexpr Form pageBegin{"<!---------- BEGIN NIMBREL CODE ---------->", "", Trailing::LineEnd};
constexpr Form pageEnd{"<!----------- END NIMBREL CODE ----------->", "", Trailing::LineEnd};
// clang-format on

enum class Outcome { NoStart, NoEnd, Removed };

void removeWithLineEnd(PageText& page, std::size_t begin, std::size_t end) {
  page.remove(begin, page.hasLineEndAt(end) ? end + 2 : end);
}

/// Removes the first code of this form that starts at `from` or later.
/// Quirk: if a page contains the form twice, the second one stays.
Outcome removeForm(PageText& page, const Form& form, std::size_t from = 0) {
  const auto begin = page.find(form.start, from);
  if (begin == npos) return Outcome::NoStart;
  const auto& last = form.end.empty() ? form.start : form.end;
  auto end = page.find(last, begin);
  if (end == npos) return Outcome::NoEnd;
  end += last.size();
  // Quirk: one more character is removed, whatever it is. If it is a CR, the LF stays and makes an empty line.
  if (form.trailing == Trailing::CharacterAndLineEnd) end = std::min(end + 1, page.text().size());
  if (form.trailing == Trailing::Nothing) {
    page.remove(begin, end);
  } else {
    removeWithLineEnd(page, begin, end);
  }
  return Outcome::Removed;
}

/// Removes the script with its refresh tag and path image, or nothing if there is no script. Returns false if the
/// tag or the image has no end.
bool removeScriptGroup(PageText& page) {
  const auto script = page.find(createdScript.start);
  if (script == npos || removeForm(page, createdScript, script) != Outcome::Removed) return true;
  return removeForm(page, refreshTag, script) != Outcome::NoEnd &&
         removeForm(page, pathImage) != Outcome::NoEnd;
}

/// Removes the menu's code from its path image through its last script. Returns false if the code is incomplete.
bool removeMenuCode(PageText& page, std::string_view menu) {
  // Quirk: matches a prefix of the name, so "nav" also finds the code of "nav2".
  const auto image = page.find(std::string("nbrMenuPathImg-").append(menu));
  if (image == npos || image == 0) return false;
  // Quirk: a tag that begins at the first or second character of the page is not found.
  const auto begin = page.text().rfind('<', image - 1);
  if (begin == npos || begin < 2) return false;

  constexpr std::string_view scriptEnd = "</script>";
  const auto build = page.find("nbrBuildMenu();", begin);
  if (build == npos) return false;
  const auto end = page.find(scriptEnd, build);
  if (end == npos) return false;
  // Quirk: the refresh tag of an alternative address follows and stays.
  removeWithLineEnd(page, begin, end + scriptEnd.size());
  return true;
}

}  // namespace

void RemoveOlderLinkBlocks(PageText& page) {
  removeForm(page, nbr110Code);
  removeForm(page, nbr110hCode);
  // Quirk: after a refresh tag or path image without an end, nothing else is removed.
  if (!removeScriptGroup(page)) return;
  removeForm(page, pageBegin);
  removeForm(page, pageEnd);
}

void RemoveCurrentLinkBlock(PageText& page, std::string_view menu) {
  if (!removeMenuCode(page, menu)) return;
  const auto begin = beginMarker(menu);
  if (const auto place = page.find(begin); place != npos)
    removeWithLineEnd(page, place, place + begin.size());
  // Quirk: the line end after the end marker stays, so each relinking adds an empty line.
  const auto end = endMarker(menu);
  if (const auto place = page.find(end); place != npos) page.remove(place, place + end.size());
}

void InsertLinkBlock(PageText& page, std::string_view pagePath, const LinkNames& names,
                     std::string_view altUrl) {
  auto block = beginMarker(names.menu) + BuildLinkSnippet(names, altUrl) + endMarker(names.menu) + "\r\n";
  auto place = page.find("</BODY>");
  // Quirk: only the lower-case extension marks a library item.
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
