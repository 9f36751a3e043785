#include "linking/link_pages.h"

#include <algorithm>
#include <span>

#include "linking/page_rewriting.h"
#include "text/paths.h"

namespace nimbrel {

namespace {

// Pages are flushed to disk in batches: large enough to make the waits few, small enough to limit memory and the
// number of open files.
constexpr std::size_t batchSize = 128;
constexpr std::size_t batchBytes = std::size_t{16} << 20;

/// Writes the pages that were linked so far.
void write(FileSystem& files, std::vector<NewFile>& linked, Findings& findings) {
  const auto failed = files.replaceAll(linked);
  findings.insert(findings.end(), failed.begin(), failed.end());
  linked.clear();
}

}  // namespace

Findings LinkPages(FileSystem& files, std::string_view compiledPath, const std::vector<std::string>& pages,
                   std::string_view altUrl, const std::function<void(std::size_t)>& onPageDone) {
  Findings findings;
  std::size_t done = 0;
  for (std::size_t first = 0; first < pages.size(); first += batchSize) {
    const auto batch = std::span(pages).subspan(first, std::min(batchSize, pages.size() - first));
    std::vector<std::string> folders;
    for (const auto& page : batch) folders.emplace_back(folderName(page));
    // From the reading of a page to its writing, so that no other program's link is lost.
    const auto lock = files.lock(folders);
    std::vector<NewFile> linked;
    std::size_t bytes = 0;
    for (const auto& page : batch) {
      try {
        linked.push_back({page, linkedPage(files.read(page), page, compiledPath, altUrl)});
        bytes += linked.back().bytes.size();
      } catch (const FileError& error) {
        findings.push_back(error.finding());
      }
      if (bytes >= batchBytes) {
        write(files, linked, findings);
        bytes = 0;
      }
      if (onPageDone) onPageDone(++done);
    }
    write(files, linked, findings);
  }
  return findings;
}

}  // namespace nimbrel
