#include "forms/style_forms.h"

#include <utility>

#include "gallery/style_file.h"
#include "platform/settings.h"
#include "text/ascii.h"

namespace nimbrel {
namespace {

constexpr int pickTopic = 1650;

struct HintText {
  std::string_view form;
  std::string_view title;
  std::string_view text;
};

const HintText& hintOf(Kind kind) {
  static constexpr HintText menu{"frmPickStyleMenu", "Main Menu Style Picked",
                                 "The style of the Main Menu has been picked.\r\n"
                                 "You can now apply it to any submenu.\r\n"
                                 "(you cannot apply the Main Menu style to items)"};
  static constexpr HintText submenu{"frmPickStyleSubmenu", "Submenu Style Picked",
                                    "The style of the selected submenu has been picked.\r\n"
                                    "You can now apply it to another submenu, or to the Main Menu.\r\n"
                                    "(you cannot apply a submenu style to items)"};
  static constexpr HintText item{"frmPickStyleItem", "Item Style Picked",
                                 "The style of the selected item has been picked.\r\n"
                                 "You can now apply it to another item.\r\n"
                                 "(you cannot apply an item style to submenus or to the Main Menu)"};
  return kind == Kind::Menu ? menu : kind == Kind::Submenu ? submenu : item;
}

}  // namespace

frmSaveStyle::frmSaveStyle(const FileSystem& files, Asker& asker, std::string programFolder)
    : Form("frmSaveStyle", "Create New Style from Menu"),
      files_(files),
      asker_(asker),
      programFolder_(std::move(programFolder)) {
  txtStyleName.event = [this] { txtStyleName_Change(); };
  btnOk.event = [this] { btnOk_Click(); };
  btnCancel.event = [this] { btnCancel_Click(); };
  cancelButton = btnCancel.name;
  txtStyleName_Change();
}

void frmSaveStyle::txtStyleName_Change() { btnOk.enabled = !trimmed(txtStyleName.text).empty(); }

void frmSaveStyle::btnOk_Click() {
  const auto& style = txtStyleName.text;
  if (const auto* refusal = refusalOfStyleName(style)) {
    auto box = warning(*refusal);
    box.icon = BoxIcon::Critical;
    asker_.MsgBox(box);
    return;
  }
  if (files_.isFile(styleFilePath(programFolder_, style))) {
    const auto answer = asker_.MsgBox(
        {.title = "Style name alreary used",
         .text = "The name \"" + style + "\" is already used by another style.\r\nDo you want to replace it?",
         .icon = BoxIcon::Critical,
         .buttons = {BoxButton::Yes, BoxButton::No},
         .defaultButton = BoxButton::No});
    if (answer != BoxButton::Yes) return;
  }
  StyleName = style;  // not trimmed
  Close();
}

void frmSaveStyle::btnCancel_Click() {
  StyleName.clear();
  Close();
}

PickStyleHint::PickStyleHint(SettingsStore& settings, HelpSystem& help, Kind kind)
    : Form(hintOf(kind).form, hintOf(kind).title) {
  Label1.text = hintOf(kind).text;
  Check1.event = [this, &settings] {
    settings::DontShowPickDialog.write(settings, Check1.value ? "1" : "0");
  };
  cmdOk.event = [this] { Close(); };
  cmdMoreInfo.event = [&help] { help.openTopic(pickTopic); };
}

}  // namespace nimbrel
