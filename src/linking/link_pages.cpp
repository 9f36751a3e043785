#include "linking/link_pages.h"

#include <utility>

#include "linking/page_rewriting.h"

namespace nimbrel {

namespace {

// Pages are flushed to disk in batches: large enough to make the waits few, small enough to limit memory and the
// number of open files.
constexpr std::size_t batchSize = 128;
constexpr std::size_t batchBytes = std::size_t{16} << 20;

class Batch {
 public:
  Batch(FileSystem& files, Findings& findings) : files_(files), findings_(findings) {}

  void add(NewFile page) {
    bytes_ += page.bytes.size();
    pages_.push_back(std::move(page));
    if (pages_.size() == batchSize || bytes_ >= batchBytes) write();
  }

  void write() {
    const auto failed = files_.replaceAll(pages_);
    findings_.insert(findings_.end(), failed.begin(), failed.end());
    pages_.clear();
    bytes_ = 0;
  }

 private:
  FileSystem& files_;
  Findings& findings_;
  std::vector<NewFile> pages_;
  std::size_t bytes_ = 0;
};

}  // namespace

Findings LinkPages(FileSystem& files, std::string_view compiledPath, const std::vector<std::string>& pages,
                   std::string_view altUrl, const std::function<void(std::size_t)>& onPageDone) {
  Findings findings;
  Batch batch(files, findings);
  std::size_t done = 0;
  for (const auto& page : pages) {
    try {
      batch.add({page, linkedPage(files.read(page), page, compiledPath, altUrl)});
    } catch (const FileError& error) {
      findings.push_back(error.finding());
    }
    if (onPageDone) onPageDone(++done);
  }
  batch.write();
  return findings;
}

}  // namespace nimbrel
