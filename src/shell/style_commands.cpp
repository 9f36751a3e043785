// The commands of the Style menu.
#include "gallery/gallery_form.h"
#include "gallery/style_forms.h"
#include "platform/settings.h"
#include "shell/main_window.h"

namespace nimbrel {

/// Enables the commands for the picked style. The next selection sets them again.
void frmMain::mnuStylePickStyle() {
  const auto* element = selected == nullptr ? nullptr : document.element(*selected);
  if (element == nullptr) return;
  const auto kind = kindOf(selected->Key);
  sheetOf(kind).LeaveCell();
  PickStyle(*element, picking);
  commands.enable("mnuStyleApplyStyle", true);
  const bool isItem = picking.PickedStyleKind == itemStyle;
  commands.enable("mnuMenuPopupApplyStyle", !isItem);
  commands.enable("mnuSubmenuPopupApplyStyle", !isItem);
  commands.enable("mnuItemPopupApplyStyle", isItem);
  if (settings::DontShowPickDialog.readFlag(ports.settings)) return;
  PickStyleHint hint(ports, kind);
  ports.asker.ShowModal(hint);
}

void frmMain::mnuStyleApplyStyle() {
  auto* element = selected == nullptr ? nullptr : document.element(*selected);
  if (element == nullptr) return;
  if (const auto* refusal = refusalOfPickedStyle(picking, selected->Key)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  sheetOf(kindOf(selected->Key)).LeaveCell();  // otherwise its entry would undo the style later
  ApplyPickedStyle(picking, *element);
  refill(*selected);
  SetIsDirty();
}

/// Quirk: reports success even if a step has failed.
void frmMain::mnuStyleSaveStyle() {
  state.StyleName.clear();
  frmSaveStyle form(ports, state);
  ports.asker.ShowModal(form);
  if (state.StyleName.empty()) return;
  LeaveCells();
  const Node* root = document.tvTreeView.root();
  const auto* menu = root == nullptr ? nullptr : document.get<MenuObj>(*root);
  const auto* first =
      root == nullptr || root->Child() == nullptr ? nullptr : document.get<ItemObj>(*root->Child());
  StepReport report;
  SaveStyle(ports.files, state.programFolder, state.StyleName, styleOfMenu(menu, first), report);
  noteFailures(report.findings);
  ports.asker.MsgBox({.title = "Style created successfully",
                      .text = "The new style has been successfully created.\r\n"
                              "Open the Style Gallery to view it and use it in your menus",
                      .icon = BoxIcon::Information});
}

void frmMain::mnuStyleOpenStyleLibrary() {
  LeaveCells();
  frmGallery form(ports, state, carryOver, selected == nullptr ? Kind::None : kindOf(selected->Key),
                  [this](StyleScope scope, const MenuStyle& style) {
                    if (selected == nullptr) return;
                    ApplyStyle(document, *selected, scope, style);
                    refill(*selected);
                    SetIsDirty();
                  });
  form.Form_Activate();
  ports.asker.ShowModal(form);
}

}  // namespace nimbrel
