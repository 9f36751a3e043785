#include <benchmark/benchmark.h>

#include "compiler/compile.h"
#include "large_document.h"
#include "linking/page_rewriting.h"
#include "persistence/menu_file.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

constexpr int few = 100;
constexpr int many = 3'000;
constexpr int most = 32'767;  // the limit of the key counter

/// Reports bytes per second, and the time per element, which should be the same for every size.
void report(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
  state.counters["s/element"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// A large document as read from a file.
Document documentOf(const benchmark::State& state) {
  Document document;
  SubmenuCarryOver carryOver;
  ReadNotes notes;
  readMenuFile(menuFileText(largeDocument(static_cast<int>(state.range(0)))), "", "", carryOver, document,
               notes);
  return document;
}

/// The program's files, all small, and no pictures, so that mainly our own work is timed.
MemoryFileSystem productFiles() {
  MemoryFileSystem files;
  files.files["C:\\program\\dot.gif"] = "GIF89a";
  for (const char* number : {"0", "1", "2", "3", "4", "5"}) {
    files.files[std::string("C:\\program\\libraries\\nbrlib") + number + ".js"] = "//";
  }
  files.folders.insert("C:\\site");
  return files;
}

void load(benchmark::State& state) {
  const auto text = menuFileText(documentOf(state));
  for (auto _ : state) {
    Document document;
    SubmenuCarryOver carryOver;
    ReadNotes notes;
    readMenuFile(text, "large.nbr", "", carryOver, document, notes);
    benchmark::DoNotOptimize(document);
  }
  report(state, text.size());
}

void save(benchmark::State& state) {
  const auto document = documentOf(state);
  std::size_t size = 0;
  for (auto _ : state) size = menuFileText(document).size();
  report(state, size);
}

void compile(benchmark::State& state) {
  auto document = documentOf(state);
  document.settings.CompiledPath = "C:\\site";
  document.settings.CompiledName = "menu.js";
  auto files = productFiles();
  for (auto _ : state) {
    StepReport made;
    CompileMenu(files, "C:\\program", document, made);
    benchmark::DoNotOptimize(made);
  }
  report(state, files.files["C:\\site\\menu.js"].size());
}

/// The page grows with the menu, like a page that lists the links.
void link(benchmark::State& state) {
  std::string page = "<html><head><title>Links</title></head>\r\n<body>\r\n";
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    page.append("<p><a href=\"page")
        .append(std::to_string(i))
        .append(".html\">A page of this site</a></p>\r\n");
  }
  page += "</body></html>\r\n";
  for (auto _ : state) {
    benchmark::DoNotOptimize(linkedPage(page, "C:\\site\\links.html", "C:\\site\\menu.js", ""));
  }
  report(state, page.size());
}

BENCHMARK(load)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(save)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(compile)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(link)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nimbrel
