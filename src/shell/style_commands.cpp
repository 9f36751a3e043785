// The commands of the Style menu.
#include "forms/gallery_form.h"
#include "forms/style_forms.h"
#include "platform/settings.h"
#include "shell/main_window.h"

namespace nimbrel {

/// Enables the commands for the picked style. The next selection sets them again.
void frmMain::mnuStylePickStyle() {
  const auto* element = selectedElement();
  if (element == nullptr) return;
  const auto kind = selectedKind();
  sheetOf(kind).LeaveCell();
  PickStyle(*element, picking);
  commands.enable("mnuStyleApplyStyle", true);
  const bool isItem = picking.PickedStyleKind == itemStyle;
  commands.enable("mnuMenuPopupApplyStyle", !isItem);
  commands.enable("mnuSubmenuPopupApplyStyle", !isItem);
  commands.enable("mnuItemPopupApplyStyle", isItem);
  if (settings::DontShowPickDialog.readFlag(ports.settings)) return;
  PickStyleHint hint(ports.settings, ports.help, kind);
  ports.asker.ShowModal(hint);
}

void frmMain::mnuStyleApplyStyle() {
  if (selectedElement() == nullptr) return;
  if (const auto* refusal = refusalOfPickedStyle(picking, selectedKey_)) {
    ports.asker.MsgBox(warning(*refusal));
    return;
  }
  sheetOf(selectedKind()).LeaveCell();  // otherwise its entry would undo the style later
  Edit edit("Apply Style");
  for (const auto* node : selection()) {
    const auto* old = document.element(*node);
    if (old == nullptr || refusalOfPickedStyle(picking, node->Key) != nullptr) continue;
    Element element = *old;
    ApplyPickedStyle(picking, element);
    edit.set(document, *node, std::move(element));
  }
  apply(std::move(edit));
  refill(*selected());
}

/// Quirk: reports success even if a step has failed.
void frmMain::mnuStyleSaveStyle() {
  frmSaveStyle form(ports.files, ports.asker, state.programFolder);
  ports.asker.ShowModal(form);
  state.StyleName = form.StyleName;
  if (state.StyleName.empty()) return;
  LeaveCells();
  const Node* root = document.tvTreeView.root();
  const auto* menu = root == nullptr ? nullptr : std::get_if<MenuObj>(document.element(*root));
  const auto* first = root == nullptr || root->Child() == nullptr
                          ? nullptr
                          : std::get_if<ItemObj>(document.element(*root->Child()));
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
  frmGallery form({ports.files, ports.previews, ports.asker, ports.opener}, state.programFolder, carryOver,
                  selectedKind(), [this](StyleScope scope, const MenuStyle& style) {
                    const auto* node = selected();
                    if (node == nullptr) return;
                    Edit edit("Apply Style");
                    const auto nodes = scope == StyleScope::Menu ? Nodes{node} : selectedOf(selectedKind());
                    for (const auto* each : nodes) {
                      eachStyled(document, *each, scope, style, [&](const Node& styled, Element element) {
                        edit.set(document, styled, std::move(element));
                      });
                    }
                    apply(std::move(edit));
                    refill(*node);
                  });
  form.Form_Activate();
  ports.asker.ShowModal(form);
}

}  // namespace nimbrel
