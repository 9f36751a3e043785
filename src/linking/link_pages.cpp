#include "linking/link_pages.h"

#include "linking/page_rewriting.h"

namespace nimbrel {

Findings LinkPages(FileSystem& files, std::string_view compiledPath, const std::vector<std::string>& pages,
                   std::string_view altUrl, const std::function<void(std::size_t)>& onPageDone) {
  Findings findings;
  std::size_t done = 0;
  for (const auto& page : pages) {
    try {
      files.replace(page, linkedPage(files.read(page), page, compiledPath, altUrl));
    } catch (const FileError& error) {
      findings.push_back(error.finding());
    }
    if (onPageDone) onPageDone(++done);
  }
  return findings;
}

}  // namespace nimbrel
