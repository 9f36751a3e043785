#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "forms/form.h"
#include "platform/asker.h"
#include "recovery/orphan.h"

namespace nimbrel {

/// Offers orphans to the author.
class frmRecovery : public Form {
 public:
  /// `orphans` must not be empty. One that the author discards is removed from the disk and from `orphans`.
  frmRecovery(Asker& asker, std::vector<Orphan>& orphans);

  /// The position of the orphan to recover, or nullopt.
  std::optional<std::size_t> chosen() const { return chosen_; }

  Control Label1{*this, "Label1", ControlKind::Label,
                 "These menus have changes that were not saved, because the program or the computer stopped. "
                 "Recover opens the selected menu with its changes; its file stays as it is until you save."};
  Control List1{*this, "List1", ControlKind::List};
  Control lblTree{*this, "lblTree", ControlKind::Label};
  Control cmdRecover{*this, "cmdRecover", ControlKind::Button, "&Recover"};
  Control cmdDiscard{*this, "cmdDiscard", ControlKind::Button, "&Discard"};
  Control cmdLater{*this, "cmdLater", ControlKind::Button, "Decide &Later"};

 private:
  void fill();
  void List1_Click();
  void cmdRecover_Click();
  void cmdDiscard_Click();
  std::size_t position() const;

  Asker& asker_;
  std::vector<Orphan>& orphans_;
  std::optional<std::size_t> chosen_;
};

}  // namespace nimbrel
