// Uses the whole program in memory. Each byte of the input is a choice of the author: commands, edits, clicks in the
// tree, answers to questions, and disk failures. After each step the document must be consistent, and unsaved changes
// must be marked as such. In the end, undoing all gives the document that was opened, and redoing all the last one.
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "forms/scripted_system.h"
#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
#include "require_consistent.h"
#include "shell/command_table.h"
#include "shell/keys.h"
#include "shell/main_window.h"

namespace nimbrel {
namespace {

/// The author's choices, in order. After the last byte they start again from the first.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  bool isUsedUp() const { return next_ >= size_; }
  /// Returns a number below `count`, which must be positive.
  std::size_t below(std::size_t count) { return size_ == 0 ? 0 : data_[next_++ % size_] % count; }
  template <class C>
  const auto& one(const C& of) {
    return of[below(std::size(of))];
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t next_ = 0;
};

constexpr std::array<const char*, 8> paths{
    "C:\\m\\a.nbr",   "C:\\m\\b.nbr", "C:\\m\\cut.nbr", "C:\\m\\foreign",
    "C:\\m\\menu.js", "D:\\none",     "page.html",      ""};
constexpr std::array<const char*, 12> texts{"",   "n",    "Item1 - x", "#ff0",     "#00AA00", "12.5",
                                            "-1", "9999", "C:\\p.gif", "\"a\", b", "Larger",  "\x81\xFF&#1;"};
const NodeClipboard::Content outline{{}, "One\tone.html\n\tBelow\n"};
constexpr int deepestForm = 4;
constexpr int stepsInForm = 6;

class FuzzedAuthor : public Asker {
 public:
  explicit FuzzedAuthor(Choices& choices) : choices_(choices) {}

  BoxButton MsgBox(const MessageBox& box) override {
    const auto answer = choices_.one(box.buttons);
    if (box.buttons.size() == 3 && box.buttons.front() == BoxButton::Yes) savePrompt = answer;
    return answer;
  }
  std::optional<std::string> chooseFile(const FileDialog&) override {
    const std::string path = choices_.one(paths);
    return path.empty() ? std::nullopt : std::optional(path);
  }
  std::optional<std::uint32_t> chooseColour(std::uint32_t) override {
    return choices_.below(2) == 0 ? std::nullopt : std::optional<std::uint32_t>(0xA0B0C0);
  }
  void ShowModal(Form& form) override {
    form.isOpen = true;
    ++depth_;
    for (int step = 0; form.isOpen && depth_ <= deepestForm && step < stepsInForm; ++step) use(form);
    --depth_;
    if (form.isOpen) form.QueryClose();
  }
  void noteFailure(const Finding&) override {}

  void use(Form& form) {
    if (form.controls().empty()) return;
    auto& control = *choices_.one(form.controls());
    switch (choices_.below(5)) {
      case 0: form.enter(control, choices_.one(texts)); break;
      case 1: form.check(control, choices_.below(2) == 1); break;
      case 2:
        if (!control.list.empty()) form.choose(control, {choices_.below(control.list.size())});
        break;
      case 3:
        if (control.doubleClick && control.usable()) control.doubleClick();
        break;
      default: form.click(control); break;
    }
  }

  std::optional<BoxButton> savePrompt;  ///< the last answer to the question whether to save

 private:
  Choices& choices_;
  int depth_ = 0;
};

struct QuietSystem : Opener, HelpSystem, ClassesRoot {
  void ShellExecuteA(std::string_view, std::string_view, std::string_view, std::string_view, int) override {}
  bool openTopic(int) override { return true; }
  bool openContents() override { return true; }
  bool openSearch() override { return true; }
  void CreateClassKey(std::string_view) override {}
  void SetClassValue(std::string_view, std::string_view, std::string_view) override {}
};

/// Requires that menus, submenus and items are nested as the author's commands allow.
void requireNesting(const Document& document) {
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    const auto* parent = node->Parent();
    const auto above = parent == nullptr ? Kind::None : kindOf(parent->Key);
    switch (kindOf(node->Key)) {
      case Kind::Menu: require(parent == nullptr && node->Next() == nullptr); break;
      case Kind::Submenu: require(above == Kind::Item && parent->Children() == 1); break;
      default: require(above == Kind::Menu || above == Kind::Submenu); break;
    }
  }
}

/// Compares all but the counter and the settings: a compile sets some of those without counting as a change.
bool sameMenu(const Document& a, const Document& b) {
  if (!(a.tvTreeView == b.tvTreeView)) return false;
  for (const Node* node = a.tvTreeView.root(); node != nullptr; node = following(node)) {
    const auto* element = a.element(*node);
    const auto* other = b.element(*node);
    if ((element == nullptr) != (other == nullptr) || (element != nullptr && !(*element == *other)))
      return false;
  }
  return true;
}

/// The file of the document that New creates.
const std::string& newMenuFile() {
  static const auto text = [] {
    Document document;
    BuildDefaultDocument(document);
    return menuFileText(document);
  }();
  return text;
}

class Session {
 public:
  explicit Session(Choices& choices)
      : choices_(choices),
        author_(choices),
        ports_{files_,  files_,  author_,    settings_,           system_,
               system_, system_, clipboard_, {"Liberation Sans"}, [] { return 0.5; }},
        window_(ports_, "C:\\p") {
    const auto& text = newMenuFile();
    files_.files["C:\\m\\a.nbr"] = text;
    files_.files["C:\\m\\cut.nbr"] = text.substr(0, text.size() * 3 / 4);
    files_.files["C:\\m\\foreign"] = "no menu";
    files_.files["C:\\p\\TIPOFDAY.TXT"] = "that\r\nthis";
    window_.Activate({}, StartWindows::None);  // commands open the same windows
    clean_ = window_.document;
    opened_ = window_.document;
  }

  void requireWayBack() {
    window_.LeaveCells();
    while (window_.editor.redoName()) window_.run("mnuEditRedo");
    const Document last = window_.document;
    while (window_.editor.undoName()) window_.run("mnuEditUndo");
    require(sameMenu(window_.document, opened_));
    while (window_.editor.redoName()) window_.run("mnuEditRedo");
    require(sameMenu(window_.document, last));
  }

  void step() {
    if (choices_.below(8) == 0) files_.failsNow = failingFrom(static_cast<int>(choices_.below(4)));
    author_.savePrompt.reset();
    isFileCommand_ = false;
    wasDirty_ = window_.state.IsDirty;
    try {
      act();
    } catch (const FileError&) {  // shown to the author, who continues
    }
    files_.failsNow = nullptr;
    requireConsistent(window_.document);
    requireNesting(window_.document);
    requireSelection();
    if (isFileCommand_) {
      requireSafeFileCommand();
      if (!window_.state.IsDirty) clean_ = window_.document;
    } else {
      require(window_.state.IsDirty || sameMenu(window_.document, clean_));
    }
  }

 private:
  void act() {
    switch (choices_.below(8)) {
      case 0: {
        constexpr std::array commands{"mnuFileNew",  "mnuFileOpen", "mnuFileSave", "mnuFileSaveAs",
                                      "mnuFileMRU1", "mnuFileMRU2", "mnuFileExit"};
        run(choices_.one(commands));
        break;
      }
      case 1: select(); break;
      case 2:
      case 3: edit(); break;
      case 4:
        if (auto* sheet = window_.visibleSheet()) author_.use(*sheet);
        break;
      case 5: useTree(); break;
      case 6: useWindow(); break;
      default: run(choices_.one(menuBar()).name); break;
    }
  }

  /// A file command commits the open cell first. It must not lose the resulting document.
  void run(std::string_view name) {
    isFileCommand_ = name.starts_with("mnuFile");
    if (isFileCommand_) {
      before_ = window_.document;
      window_.LeaveCells();  // may fail
      before_ = window_.document;
      wasDirty_ = window_.state.IsDirty;
    }
    window_.run(name);
  }

  const Node* anyNode() {
    const auto& tree = window_.document.tvTreeView;
    return tree.empty() ? nullptr : tree.at(choices_.below(tree.size()) + 1);
  }

  void select() {
    Nodes nodes;
    for (auto count = choices_.below(4); count > 0; --count) {
      const auto* node = anyNode();
      if (node != nullptr && std::ranges::find(nodes, node) == nodes.end()) nodes.push_back(node);
    }
    window_.SelectNodes(nodes);
  }

  void useTree() {
    const auto* target = anyNode();
    const auto drop = static_cast<Drop>(choices_.below(3));
    const auto nodes = topmost(window_.document, window_.selection());
    switch (choices_.below(6)) {
      case 0: window_.tvTreeView_KeyUp(keys::Delete); break;
      case 1: window_.replace(choices_.one(texts), choices_.one(texts), TextKind::All); break;
      case 2:
        if (target != nullptr) window_.rename(*target, choices_.one(texts));
        break;
      case 3:
        if (target != nullptr)
          window_.drop(choices_.below(2) == 0 ? window_.contentOf(nodes) : outline, *target, drop);
        break;
      default:
        const bool copies = choices_.below(2) == 0;
        if (target != nullptr && window_.canDrop(nodes, *target, drop, copies)) {
          window_.drop(nodes, *target, drop, copies);
        }
    }
  }

  void edit() {
    auto* sheet = window_.visibleSheet();
    if (sheet == nullptr) return;
    sheet->EnterCell(static_cast<int>(choices_.below(static_cast<std::size_t>(sheet->RowCount()))),
                     static_cast<int>(choices_.below(5)));
    sheet->type(choices_.one(texts));
    if (choices_.below(2) == 0) sheet->LeaveCell();
  }

  /// Uses the preview or the live examples.
  void useWindow() {
    Form& form = choices_.below(2) == 0 ? static_cast<Form&>(window_.browser) : window_.liveExamples;
    if (!form.isOpen) return;
    if (choices_.below(3) == 0) {
      form.QueryClose();
    } else {
      author_.use(form);
    }
  }

  void requireSelection() {
    const auto* selected = window_.selected();
    require((selected == nullptr) == window_.document.tvTreeView.empty());
    require(selected == nullptr || window_.visibleSheet() == &window_.sheetOf(kindOf(selected->Key)));
  }

  /// Changes may only be lost if the author answers No; otherwise they are still there or in a file.
  void requireSafeFileCommand() {
    const bool isUnchanged = sameMenu(window_.document, before_);
    if (author_.savePrompt == BoxButton::Cancel) require(isUnchanged && window_.state.IsDirty);
    if (!wasDirty_ || author_.savePrompt == BoxButton::No) return;
    if (isUnchanged && window_.state.IsDirty) return;
    require(std::ranges::any_of(
        files_.files, [saved = menuFileText(before_)](const auto& file) { return file.second == saved; }));
  }

  Choices& choices_;
  FuzzedAuthor author_;
  MemoryFileSystem files_;
  MemorySettings settings_;
  QuietSystem system_;
  ScriptedClipboard clipboard_;
  Ports ports_;
  frmMain window_;
  Document clean_;   // as last created, opened or saved
  Document opened_;  // as last created or opened
  Connection replaced_ = window_.editor.documentReplaced.connect([this] { opened_ = window_.document; });
  Document before_;  // before the file command
  bool wasDirty_ = false;
  bool isFileCommand_ = false;
};

}  // namespace
}  // namespace nimbrel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Many short sessions find more than few long ones in the same time.
  constexpr std::size_t longest = 32;
  nimbrel::Choices choices(data, std::min(size, longest));
  nimbrel::Session session(choices);
  while (!choices.isUsedUp()) session.step();
  session.requireWayBack();
  return 0;
}
