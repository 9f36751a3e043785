#include <benchmark/benchmark.h>
#include <iterator>

#include "large_document.h"
#include "model/structure.h"
#include "platform/memory/scripted_system.h"
#include "shell/main_window.h"

/// Single commands as the author feels them, in a document about as large as the key counter allows.
namespace nimbrel {
namespace {

constexpr int most = 32'700;  // leaves keys for what is added
constexpr int some = 3'000;

struct Program {
  ScriptedSystem system;
  frmMain window{system.ports, "C:\\program"};

  explicit Program(Document document) : numbers_(document.NextKeyNumber) {
    system.settings.SaveSetting("Settings", "Show Tips at Startup", "0");
    system.settings.SaveSetting("Settings", "ShowPreviewOnStartup", "False");
    window.Activate();
    window.document = std::move(document);
    window.tvTreeView_NodeClick(window.document.tvTreeView.root());
  }

  /// Keys of removed elements are used again, so that a command can be timed more often than there are keys.
  void reuseKeys() { window.document.NextKeyNumber = numbers_; }

  /// An item in the midst of the main menu, without a submenu.
  Node* item() const {
    Node* node = window.document.tvTreeView.root()->Child();
    for (auto steps = window.document.tvTreeView.root()->Children() / 2; steps > 0; --steps)
      node = node->Next();
    while (node->Child() != nullptr) node = node->Next();
    return node;
  }

 private:
  std::int16_t numbers_;
};

Program large() { return Program(largeDocument(most)); }

void select(benchmark::State& state) {
  auto program = large();
  Node* node = program.item();
  for (auto _ : state) {
    program.window.tvTreeView_NodeClick(node);
    node = following(node);
    if (node == nullptr) node = program.window.document.tvTreeView.root();
  }
}

void editCell(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  bool odd = false;
  for (auto _ : state) {
    program.window.prctlItem.EnterCell(0, column::Normal);
    program.window.prctlItem.type(odd ? "One name" : "Another");
    program.window.LeaveCells();
    odd = !odd;
  }
}

void move(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  bool up = true;
  for (auto _ : state) {
    program.window.run(up ? "mnuItemMoveItemUp" : "mnuItemMoveItemDown");
    program.reuseKeys();
    up = !up;
  }
}

void addAndDelete(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  for (auto _ : state) {
    program.window.run("mnuItemAddItem");
    program.system.asker.answers = {BoxButton::Yes};
    program.window.run("mnuItemDeleteItem");
    program.reuseKeys();
    program.system.asker.boxes.clear();
  }
}

void cutAndPaste(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  for (auto _ : state) {
    program.window.run("mnuEditCut");
    program.window.run("mnuEditPaste");
    program.reuseKeys();
    program.window.tvTreeView_NodeClick(program.window.selected->Next());
  }
}

/// A main menu whose first item holds half of the document in its submenu.
Document halved(int elements) {
  Document document;
  BuildDefaultDocument(document);
  const auto first = document.tvTreeView.root()->Child()->Key;
  auto within = AddSubmenu(document, first)->Key;
  for (int i = 0; i < elements / 2; ++i) AddItem(document, within);
  for (int i = 0; i < elements / 2; ++i) AddItem(document, "M0");
  return document;
}

void cutAndPasteHalf(benchmark::State& state) {
  const auto document = halved(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    {
      Program program(document);
      program.window.tvTreeView_NodeClick(program.window.document.tvTreeView.root()->Child());
      state.ResumeTiming();
      program.window.run("mnuEditCut");
      program.window.run("mnuEditPaste");
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.counters["s/element"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(select)->Unit(benchmark::kMillisecond);
BENCHMARK(editCell)->Unit(benchmark::kMillisecond);
BENCHMARK(move)->Unit(benchmark::kMillisecond);
BENCHMARK(addAndDelete)->Unit(benchmark::kMillisecond);
BENCHMARK(cutAndPaste)->Unit(benchmark::kMillisecond);
BENCHMARK(cutAndPasteHalf)->Arg(some)->Arg(20'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nimbrel
