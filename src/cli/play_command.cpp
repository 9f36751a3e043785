#include <array>
#include <charconv>
#include <istream>
#include <ostream>
#include <random>
#include <span>

#include "cli/commands.h"
#include "cli/macro.h"
#include "cli/play_asker.h"
#include "platform/posix/host_paths.h"
#include "platform/posix/program_folder.h"
#include "shell/keys.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace nimbrel {
namespace {

using Words = std::vector<std::string>;

/// The application that a macro drives: everything but the windows.
class Player {
 public:
  /// `macroFolder` is the folder of the macro, in which statements may write files.
  Player(const Console& console, FileSystem& files, const std::string& home, std::string macroFolder,
         MemorySettings& settings, std::string stateFolder)
      : files_(files),
        macroFolder_(std::move(macroFolder)),
        transcript_(console.out()),
        system_(transcript_),
        asker_(transcript_, system_),
        settings_(settings),
        ports_{files,
               files,
               asker_,
               settings,
               system_,
               system_,
               system_,
               clipboard_,
               {},
               [this] { return random_(); },
               std::move(stateFolder)},
        window_(ports_, home) {}

  /// Activates the window, the first time. What is queued before answers the questions of the start.
  void start() { window_.Activate({}, StartWindows::None); }

  /// Runs a statement. Throws `MacroFault`; other exceptions are printed, and the macro continues.
  void play(const Words& words);
  bool hadErrors() const { return transcript_.hadErrors(); }

 private:
  friend struct Statement;
  void run(const Words& words);
  void force(const Words& words);
  void select(const Words& words);
  void drag(const Words& words);
  void key(const Words& words);
  void edit(const Words& words);
  void press(const Words& words);
  void replicate(const Words& words);
  void replace(const Words& words);
  void touch(const Words& words);
  const Node& node(const std::string& key) const;
  void close();
  void print(const Words& words);
  PropertySheet& sheet();

  FileSystem& files_;
  std::string macroFolder_;
  Transcript transcript_;
  PlaySystem system_;
  PlayAsker asker_;
  MemorySettings& settings_;
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): transcripts must be the same on every run
  std::minstd_rand generator_{std::minstd_rand::default_seed};
  double random_() { return static_cast<double>(generator_() - 1) / std::minstd_rand::modulus; }
  ScriptedClipboard clipboard_;
  Ports ports_;
  frmMain window_;
  bool isClosed_ = false;
};

struct Statement {
  std::string_view name;
  std::size_t words;  ///< the minimum, without the name
  void (*play)(Player&, const Words&);
  bool onlyQueues = false;  ///< answers for later statements

  static const Statement* find(std::string_view name);
};

int numberOf(const std::string& word) {
  int number = 0;
  const auto* end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) throw MacroFault("no number: " + word);
  return number;
}

const Statement* Statement::find(std::string_view name) {
  static constexpr auto statements = std::to_array<Statement>({
      {"run", 1, [](Player& p, const Words& w) { p.run(w); }},
      {"force", 1, [](Player& p, const Words& w) { p.force(w); }},
      {"select", 1, [](Player& p, const Words& w) { p.select(w); }},
      {"key", 1, [](Player& p, const Words& w) { p.key(w); }},
      {"edit", 3, [](Player& p, const Words& w) { p.edit(w); }},
      {"leave", 0, [](Player& p, const Words&) { p.window_.LeaveCells(); }},
      {"press", 1, [](Player& p, const Words& w) { p.press(w); }},
      {"replicate", 1, [](Player& p, const Words& w) { p.replicate(w); }},
      {"answer", 1, [](Player& p, const Words& w) { p.asker_.queueAnswer(w[1]); }, true},
      {"choose", 1, [](Player& p, const Words& w) { p.asker_.queueFile(w[1]); }, true},
      {"colour", 1, [](Player& p, const Words& w) { p.asker_.queueColour(w[1]); }, true},
      {"form", 1,
       [](Player& p, const Words& w) {
         p.asker_.queueForm(w[1], {w.begin() + 2, w.end()});
       },
       true},
      {"drag", 3, [](Player& p, const Words& w) { p.drag(w); }},
      {"rename", 2, [](Player& p, const Words& w) { p.window_.rename(p.node(w[1]), w[2]); }},
      {"find", 1, [](Player& p, const Words& w) { p.transcript_.found(p.window_.find(w[1])); }},
      {"replace", 3, [](Player& p, const Words& w) { p.replace(w); }},
      {"touch", 2, [](Player& p, const Words& w) { p.touch(w); }},
      {"close", 0, [](Player& p, const Words&) { p.close(); }},
      {"print", 1, [](Player& p, const Words& w) { p.print(w); }},
  });
  const auto* found = std::ranges::find(statements, name, &Statement::name);
  return found == statements.end() ? nullptr : found;
}

void Player::play(const Words& words) {
  const auto* statement = Statement::find(words.front());
  if (statement == nullptr) throw MacroFault("unknown statement " + words.front());
  if (words.size() - 1 < statement->words) throw MacroFault(words.front() + " needs more words");
  if (isClosed_ && words.front() != "print") throw MacroFault("the window is closed");
  try {
    if (!statement->onlyQueues) start();
    statement->play(*this, words);
  } catch (const MacroFault&) {
    throw;
  } catch (const FileError& error) {
    asker_.noteFailure(error.finding());
  } catch (const std::exception& error) {
    transcript_.error(error.what());
  }
}

void Player::run(const Words& words) {
  if (window_.commands.find(words[1]) == nullptr) throw MacroFault("no command " + words[1]);
  if (!window_.canRun(words[1])) {
    transcript_.refused(words[1]);
  } else if (words[1] == "mnuFileExit") {
    close();
  } else {
    window_.run(words[1]);
  }
}

void Player::force(const Words& words) {
  if (words[1] == "mnuFileExit") {
    close();
  } else if (!window_.run(words[1])) {
    throw MacroFault("no command " + words[1]);
  }
}

void Player::select(const Words& words) {
  Nodes nodes;
  for (const auto& key : std::span(words).subspan(1)) nodes.push_back(&node(key));
  window_.SelectNodes(nodes);
}

void Player::drag(const Words& words) {
  constexpr std::array<std::string_view, 3> places{"before", "after", "into"};
  const auto found = std::ranges::find(places, words[3]);
  if (found == places.end()) throw MacroFault("no place: " + words[3]);
  const auto drop = static_cast<Drop>(found - places.begin());
  const Nodes nodes{&node(words[1])};
  const auto& target = node(words[2]);
  if (window_.canDrop(nodes, target, drop, false)) {
    window_.drop(nodes, target, drop, false);
  } else {
    transcript_.refused("drag");
  }
}

const Node& Player::node(const std::string& key) const {
  const auto* found = window_.document.tvTreeView.find(key);
  if (found == nullptr) throw MacroFault("no node " + key);
  return *found;
}

void Player::key(const Words& words) { window_.tvTreeView_KeyUp(words[1] == "Delete" ? keys::Delete : 0); }

PropertySheet& Player::sheet() {
  auto* sheet = window_.visibleSheet();
  if (sheet == nullptr) throw MacroFault("no sheet is shown");
  return *sheet;
}

void Player::edit(const Words& words) {
  auto& current = sheet();
  const int row = numberOf(words[1]);
  if (row < 0 || row >= current.RowCount()) throw MacroFault("no row " + words[1]);
  current.LeaveCell();
  current.EnterCell(row, numberOf(words[2]));
  current.type(words[3]);
}

void Player::press(const Words& words) {
  auto& current = sheet();
  if (!current.Editing()) throw MacroFault("no cell is open");
  auto* button = current.find(words[1]);
  if (button == nullptr || button->kind != ControlKind::Button) throw MacroFault("no button " + words[1]);
  current.click(*button);
}

void Player::replicate(const Words& words) {
  auto& current = sheet();
  const int row = numberOf(words[1]);
  if (row < 0 || row >= current.RowCount()) throw MacroFault("no row " + words[1]);
  current.LeaveCell();
  current.EnterCell(row, column::Normal);
  current.click(current.btnReplicate);
}

void Player::replace(const Words& words) {
  const auto kind = textKindNamed(words[1]);
  if (!kind) throw MacroFault("no kind of text: " + words[1]);
  transcript_.replaced(window_.replace(words[2], words[3], *kind));
}

/// Does as another program would that the author goes to, and comes back from.
void Player::touch(const Words& words) {
  const auto file = fromHostPath(absoluteHostPath(words[1]));
  if (!files_.isInside(file, macroFolder_)) throw MacroFault(words[1] + " is not in the folder of the macro");
  files_.replace(file, words[2]);
  window_.offerReload();
}

void Player::close() {
  try {
    isClosed_ = window_.QueryClose();
  } catch (const FileError& error) {
    asker_.noteFailure(error.finding());
  }
  transcript_.closed(isClosed_);
}

void Player::print(const Words& words) {
  const auto& what = words[1];
  if (what == "tree") {
    transcript_.tree(window_);
  } else if (what == "state") {
    transcript_.state(window_);
  } else if (what == "commands") {
    transcript_.commands(window_);
  } else if (what == "sheet") {
    transcript_.sheet(sheet());
  } else if (what == "settings") {
    transcript_.settings(settings_);
  } else if (what == "element" && words.size() > 2) {
    const auto* element = window_.document.ElementColl.find(words[2]);
    if (element == nullptr) throw MacroFault("no element " + words[2]);
    transcript_.element(words[2], *element, window_.numbers);
  } else {
    throw MacroFault("nothing to print: " + what);
  }
}

/// A host path in document form; an empty one stays empty.
std::string documentPath(const std::string& hostPath) {
  return hostPath.empty() ? hostPath : fromHostPath(absoluteHostPath(hostPath));
}

/// Of a macro from standard input, the current folder.
std::string folderOf(const PlayCall& call) {
  const auto path = fromHostPath(absoluteHostPath(call.macro == "-" ? "./-" : call.macro));
  return std::string(folderName(path));
}

}  // namespace

ExitStatus playCommand(const Console& console, FileSystem& files, const std::optional<std::string>& home,
                       const PlayCall& call) {
  MemorySettings settings;
  const auto settingsPath = documentPath(call.settings);
  std::size_t line = 0;
  ExitStatus status = done;
  try {
    if (!settingsPath.empty() && files.isFile(settingsPath)) {
      readSettings(settings, files.read(settingsPath), call.settings);
    }
    const bool isPiped = call.macro == "-";
    auto macro = isPiped ? std::vector<MacroLine>() : parseMacro(files.read(documentPath(call.macro)));
    Player player(console, files, documentPath(programFolder(home)), folderOf(call), settings,
                  documentPath(call.state));
    const auto playAll = [&] {
      for (const auto& statement : macro) {
        line = statement.number;
        player.play(statement.words);
      }
    };
    playAll();
    // Each statement is done before the next one is read, so that another program can wait for its result.
    std::size_t number = 0;
    for (std::string text; isPiped && std::getline(console.in(), text);) {
      macro = parseMacro(text, ++number);
      playAll();
      console.out().flush();
    }
    player.start();
    if (player.hadErrors()) status = notAllDone;
  } catch (const MacroFault& fault) {
    console.err() << "nbrc: " << call.macro << ": "
                  << (line == 0 ? "" : "line " + std::to_string(line) + ": ") << toUtf8(fault.what()) << '\n';
    status = wrongCall;
  }
  if (!settingsPath.empty()) {
    files.replace(settingsPath, settingsText(settings));
  }
  return status;
}

}  // namespace nimbrel
