#include "forms/recovery_form.h"

#include <ctime>
#include <utility>

#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

/// The local time, in a form that sorts and that everyone reads.
std::string timeText(std::int64_t seconds) {
  const auto time = static_cast<std::time_t>(seconds);
  const auto* local =
      std::localtime(&time);  // NOLINT(concurrency-mt-unsafe): only this thread converts times
  std::string text(sizeof "2000-01-01 00:00", '\0');
  text.resize(local == nullptr ? 0 : std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", local));
  return text;
}

std::string entryOf(const Orphan& orphan) {
  if (!orphan.head) return "A file that cannot be read";
  const auto& head = *orphan.head;
  return (head.name.empty() ? "Untitled" : joinPath(head.folder, head.name)) + ", " + timeText(head.time);
}

/// The first lines of the tree, indented by level.
std::string firstLines(const Document& document) {
  constexpr int most = 8;
  std::string text;
  const Node* root = document.tvTreeView.root();
  int lines = 0;
  for (const Node* node = root; node != nullptr && lines < most; node = following(node, root), ++lines) {
    for (const Node* above = node->Parent(); above != nullptr; above = above->Parent()) text += "    ";
    text.append(node->Text).append("\r\n");
  }
  return text;
}

}  // namespace

frmRecovery::frmRecovery(Asker& asker, std::vector<Orphan>& orphans)
    : Form("frmRecovery", "Recover Menus"), asker_(asker), orphans_(orphans) {
  List1.event = [this] { List1_Click(); };
  List1.doubleClick = [this] { click(cmdRecover); };
  cmdRecover.event = [this] { cmdRecover_Click(); };
  cmdDiscard.event = [this] { cmdDiscard_Click(); };
  cmdLater.event = [this] { Close(); };
  cancelButton = cmdLater.name;
  fill();
  toFocus = &List1;
}

void frmRecovery::fill() {
  List1.list.clear();
  for (const auto& orphan : orphans_) List1.list.push_back(entryOf(orphan));
  List1.selected = {0};
  List1_Click();
}

std::size_t frmRecovery::position() const { return List1.selected.front(); }

void frmRecovery::List1_Click() {
  const bool isOne = !List1.selected.empty();
  List1.text = isOne ? List1.list[position()] : std::string();
  lblTree.text = isOne ? firstLines(orphans_[position()].document) : std::string();
  cmdRecover.enabled = isOne && orphans_[position()].head.has_value();
  cmdDiscard.enabled = isOne;
}

void frmRecovery::cmdRecover_Click() {
  chosen_ = position();
  Close();
}

void frmRecovery::cmdDiscard_Click() {
  if (asker_.MsgBox({.title = std::string(productTitle),
                     .text = "The changes that were not saved will be lost. Discard them?",
                     .icon = BoxIcon::Question,
                     .buttons = {BoxButton::Yes, BoxButton::No},
                     .defaultButton = BoxButton::No}) != BoxButton::Yes) {
    return;
  }
  orphans_[position()].folder.remove();
  orphans_.erase(orphans_.begin() + static_cast<std::ptrdiff_t>(position()));
  if (orphans_.empty()) {
    Close();
  } else {
    fill();
  }
}

}  // namespace nimbrel
