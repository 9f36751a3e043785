#include <benchmark/benchmark.h>
#include <iterator>

#include "forms/scripted_system.h"
#include "large_document.h"
#include "model/structure.h"
#include "shell/main_window.h"

/// Single commands as the author feels them, in a document about as large as the key counter allows.
namespace nimbrel {
namespace {

constexpr int most = 32'700;  // leaves keys for what is added
constexpr int some = 3'000;

struct Program {
  ScriptedSystem system;
  frmMain window{system.ports, "C:\\program"};

  explicit Program(Document document) {
    system.settings.SaveSetting("Settings", "Show Tips at Startup", "0");
    system.settings.SaveSetting("Settings", "ShowPreviewOnStartup", "False");
    window.Activate();
    window.editor.open(std::move(document));
    window.tvTreeView_NodeClick(window.document.tvTreeView.root());
  }

  /// So that a command can be timed more often than there are keys.
  void undo(int steps) {
    for (; steps > 0; --steps) window.run("mnuEditUndo");
  }

  /// An item in the midst of the main menu, without a submenu.
  const Node* item() const {
    const Node* node = window.document.tvTreeView.root()->Child();
    for (auto steps = window.document.tvTreeView.root()->Children() / 2; steps > 0; --steps)
      node = node->Next();
    while (node->Child() != nullptr) node = node->Next();
    return node;
  }
};

Program large() { return Program(largeDocument(most)); }

void select(benchmark::State& state) {
  auto program = large();
  const Node* node = program.item();
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
  for (auto _ : state) {
    program.window.run("mnuItemMoveItemUp");
    program.undo(1);
  }
}

void addAndDelete(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  for (auto _ : state) {
    program.window.run("mnuItemAddItem");
    program.system.asker.answers = {BoxButton::Yes};
    program.window.run("mnuItemDeleteItem");
    program.undo(2);
    program.system.asker.boxes.clear();
  }
}

void cutAndPaste(benchmark::State& state) {
  auto program = large();
  program.window.tvTreeView_NodeClick(program.item());
  for (auto _ : state) {
    program.window.run("mnuEditCut");
    program.window.run("mnuEditPaste");
    program.undo(2);
  }
}

/// A style over the whole menu, taken back and done again.
void undoAndRedo(benchmark::State& state) {
  Program program(largeDocument(static_cast<int>(state.range(0))));
  Edit edit("Apply Style");
  const auto& document = program.window.document;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    auto element = *document.element(*node);
    std::visit([](auto& object) { SetDefaultValues(object); }, element);
    edit.set(document, *node, std::move(element));
  }
  program.window.editor.apply(std::move(edit));
  for (auto _ : state) program.window.run(program.window.editor.undoName() ? "mnuEditUndo" : "mnuEditRedo");
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
BENCHMARK(undoAndRedo)->Arg(1000)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(cutAndPasteHalf)->Arg(some)->Arg(20'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace nimbrel
