#include "cli/play_state.h"

#include <set>

#include "cli/macro.h"
#include "shell/command_table.h"

namespace nimbrel {
namespace {

Json jsonOfValue(const PropertyValue& value) {
  return std::visit([](const auto& one) { return jsonOf(one); }, value);
}

/// What a compile has calculated: the numbers of styles and pictures.
void addCalculated(Json& properties, const Element& element) {
  std::visit(
      [&]<class E>(const E& object) {
        if constexpr (std::is_same_v<E, ItemObj>) {
          properties.emplace("ItemStyleID1", jsonOf(object.ItemStyleID1));
          properties.emplace("ItemStyleID2", jsonOf(object.ItemStyleID2));
          properties.emplace("ItemStyleID3", jsonOf(object.ItemStyleID3));
        } else {
          properties.emplace("ContainerStyleID", jsonOf(object.ContainerStyleID));
          properties.emplace("TitleStyleID", jsonOf(object.TitleStyleID));
        }
        for (const auto* row : imageRows<E>) {
          properties.emplace(std::string(row->name) + "No", jsonOf(object.*row->imageNo));
        }
      },
      element);
}

/// A cell that holds no value is an empty text.
Json rowState(const PropertySheet& sheet, int ordinal) {
  const auto& row = sheet.row(ordinal);
  Json values = Json::array();
  Json shown = Json::array();
  const std::size_t columns = sheet.table().hasStates ? valueColumns.size() : 1;
  for (std::size_t slot = 0; slot < columns; ++slot) {
    const int col = valueColumns.at(slot);
    values.push_back(row.takes(col) ? jsonOfValue(sheet.GetProperty(ordinal, col)) : Json(""));
    shown.push_back(row.takes(col) ? jsonOf(sheet.Shown(ordinal, col)) : Json(""));
  }
  return {{"caption", toUtf8(row.Caption)}, {"values", std::move(values)}, {"shown", std::move(shown)}};
}

}  // namespace

Json treeState(const frmMain& window) {
  Json nodes = Json::array();
  for (const Node* node = window.document.tvTreeView.root(); node != nullptr; node = following(node)) {
    nodes.push_back({{"key", jsonOf(node->Key)},
                     {"text", jsonOf(node->Text)},
                     {"image", std::string(node->Image())},
                     {"parent", node->Parent() == nullptr ? Json(nullptr) : jsonOf(node->Parent()->Key)}});
  }
  return {{"tree", std::move(nodes)},
          {"selected", window.selected == nullptr ? Json(nullptr) : jsonOf(window.selected->Key)},
          {"nextKeyNumber", window.document.NextKeyNumber}};
}

Json publicState(const frmMain& window) {
  const auto& state = window.state;
  Json fields = {{"title", jsonOf(window.title)},
                 {"IsDirty", state.IsDirty},
                 {"FilePath", jsonOf(state.FilePath)},
                 {"FileTitle", jsonOf(state.FileTitle)}};
  for (const CompileSetting& setting : compileSettings) {
    std::visit([&](auto field) { fields.emplace(setting.name, jsonOf(window.document.settings.*field)); },
               setting.field);
  }
  const Json rest = {{"nbrUseSharedBorders", state.nbrUseSharedBorders},
                     {"WebPagePath", jsonOf(state.WebPagePath)},
                     {"WebPageName", jsonOf(state.WebPageName)},
                     {"altURL", jsonOf(state.altURL)},
                     {"MultipleSelection", state.MultipleSelection},
                     {"StyleName", jsonOf(state.StyleName)},
                     {"bcSubmenusHow", window.carryOver.bcSubmenusHow},
                     {"bcSubmenusWhere", jsonOf(window.carryOver.bcSubmenusWhere)},
                     {"bcSubmenusWhen", window.carryOver.bcSubmenusWhen},
                     {"BlackPreview", state.BlackPreview},
                     {"isPreviewWindowLoaded", state.isPreviewWindowLoaded},
                     {"isLiveExamplesWindowLoaded", state.isLiveExamplesWindowLoaded},
                     {"tmpFontSize", jsonOf(state.tmpFontSize)},
                     {"LastWebPageDir", jsonOf(state.LastWebPageDir)}};
  fields.update(rest);
  return fields;
}

Json commandState(const frmMain& window) {
  Json entries = Json::object();
  const auto add = [&](std::string_view name, std::string_view caption) {
    const auto* entry = window.commands.find(name);
    if (caption == "-" || entry == nullptr) return;
    entries.emplace(name, Json{{"caption", toUtf8(entry->caption)},
                               {"enabled", entry->enabled},
                               {"visible", entry->visible},
                               {"checked", entry->checked}});
  };
  for (const auto& entry : menuBar()) add(entry.name, entry.caption);
  for (const auto& menu : contextMenus()) {
    for (const auto& entry : menu.entries) add(entry.name, entry.caption);
  }
  Json buttons = Json::object();
  for (const auto& button : toolbar()) {
    if (!button.key.empty())
      buttons.emplace(button.key, Json{{"enabled", window.commands.button(button.key)}});
  }
  return {{"commands", std::move(entries)}, {"toolbar", std::move(buttons)}};
}

Json sheetState(frmMain& window) {
  const auto* sheet = window.visibleSheet();
  if (sheet == nullptr) throw MacroFault("no sheet is shown");
  Json rows = Json::array();
  for (int ordinal = 0; ordinal < sheet->RowCount(); ++ordinal) rows.push_back(rowState(*sheet, ordinal));
  return {{"name", std::string(sheet->table().name)}, {"rows", std::move(rows)}};
}

Json elementState(frmMain& window, std::string_view key) {
  const auto* element = window.document.ElementColl.find(key);
  if (element == nullptr) throw MacroFault("no element " + std::string(key));
  Json properties = jsonOf(*element);
  addCalculated(properties, *element);
  return {{"key", toUtf8(key)}, {"properties", std::move(properties)}};
}

Json settingsState(const MemorySettings& settings) {
  Json sections = Json::object();
  for (const auto& [section, entries] : settings.sections) {
    Json texts = Json::object();
    for (const auto& [key, text] : entries) texts.emplace(toUtf8(key), toUtf8(text));
    sections.emplace(toUtf8(section), std::move(texts));
  }
  return sections;
}

void readSettings(MemorySettings& settings, std::string_view text, const std::string& path) {
  try {
    const auto parsed = Json::parse(text);
    for (const auto& [section, entries] : parsed.at("settings").items()) {
      for (const auto& [key, value] : entries.items()) {
        settings.SaveSetting(fromUtf8(section), fromUtf8(key), fromUtf8(value.get<std::string>()));
      }
    }
  } catch (const Json::exception& error) {
    throw MacroFault(path + " holds no settings: " + error.what());
  }
}

}  // namespace nimbrel
