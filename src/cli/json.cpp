#include "cli/json.h"

#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/macro.h"
#include "shell/command_table.h"
#include "text/numbers.h"
#include "text/windows1252.h"

namespace nimbrel {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array iconNames{"exclamation", "critical", "question", "information"};

Json jsonOf(const SharedText& oneByteText) { return toUtf8(oneByteText); }
Json jsonOf(const std::string& oneByteText) { return toUtf8(oneByteText); }
Json jsonOf(bool value) { return value; }
Json jsonOf(std::uint8_t value) { return value; }
Json jsonOf(std::int32_t value) { return value; }
/// Parsed from the text form, so that 0.1F prints as 0.1 and 30 as 30.
Json jsonOf(float value) { return Json::parse(generalForm(value)); }

/// The stored properties by name, in file order.
Json jsonOf(const Element& element) {
  Json properties = Json::object();
  std::visit(
      [&]<class E>(const E& object) {
        eachProperty<E>([&](const Property<E>& property, auto field) {
          properties.emplace(property.name, jsonOf(object.*field));
        });
      },
      element);
  return properties;
}

std::string controlText(const Control& control) {
  const bool isFlag = control.kind == ControlKind::Check || control.kind == ControlKind::Option;
  return isFlag ? (control.value ? "1" : "0") : control.text;
}

Json jsonOfValue(const PropertyValue& value) {
  return std::visit([](const auto& one) { return jsonOf(one); }, value);
}

/// Adds the numbers of looks and pictures that the last compile gave the element: looks as text, pictures from 1.
void addCalculated(Json& properties, const Element& element, const ElementNumbers& numbers) {
  const auto look = [&](const char* name, std::size_t part) {
    const auto number = numbers.looks.at(part);
    properties.emplace(name, number == ElementNumbers::none ? std::string() : std::to_string(number));
  };
  std::visit(
      [&]<class E>(const E&) {
        if constexpr (std::is_same_v<E, ItemObj>) {
          look("ItemStyleID1", 0);
          look("ItemStyleID2", 1);
          look("ItemStyleID3", 2);
        } else {
          look("ContainerStyleID", 0);
          look("TitleStyleID", 1);
        }
        std::size_t slot = 0;
        for (const auto* row : imageRows<E>) {
          properties.emplace(std::string(row->name) + "No",
                             jsonOf(static_cast<float>(numbers.pictures.at(slot++) + 1)));
        }
      },
      element);
}

/// A cell without a value prints as an empty text.
Json rowState(const PropertySheet& sheet, int ordinal) {
  const auto& row = sheet.row(ordinal);
  Json values = Json::array();
  Json texts = Json::array();
  const std::size_t columns = sheet.table().hasStates ? valueColumns.size() : 1;
  for (std::size_t slot = 0; slot < columns; ++slot) {
    const int col = valueColumns.at(slot);
    values.push_back(row.takes(col) ? jsonOfValue(sheet.GetProperty(ordinal, col)) : Json(""));
    texts.push_back(row.takes(col) ? jsonOf(sheet.Shown(ordinal, col)) : Json(""));
  }
  return {{"caption", toUtf8(row.Caption)}, {"values", std::move(values)}, {"shown", std::move(texts)}};
}

Json treeState(const frmMain& window) {
  Json nodes = Json::array();
  for (const Node* node = window.document.tvTreeView.root(); node != nullptr; node = following(node)) {
    nodes.push_back({{"key", jsonOf(node->Key)},
                     {"text", jsonOf(node->Text)},
                     {"image", std::string(node->Image())},
                     {"parent", node->Parent() == nullptr ? Json(nullptr) : jsonOf(node->Parent()->Key)}});
  }
  return {{"tree", std::move(nodes)},
          {"selected", window.selected() == nullptr ? Json(nullptr) : jsonOf(window.selected()->Key)},
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
                     {"BlackPreview", window.browser.BlackPreview},
                     {"isPreviewWindowLoaded", window.browser.isPreviewWindowLoaded},
                     {"isLiveExamplesWindowLoaded", window.liveExamples.isLiveExamplesWindowLoaded},
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
    if (button.key.empty()) continue;
    buttons.emplace(button.key, Json{{"enabled", window.commands.entry(button.command).enabled}});
  }
  return {{"commands", std::move(entries)}, {"toolbar", std::move(buttons)}};
}

Json sheetState(const PropertySheet& sheet) {
  Json rows = Json::array();
  for (int ordinal = 0; ordinal < sheet.RowCount(); ++ordinal) rows.push_back(rowState(sheet, ordinal));
  return {{"name", std::string(sheet.table().name)}, {"rows", std::move(rows)}};
}

Json elementState(std::string_view key, const Element& element, const KeyedNumbers& compiled) {
  Json properties = jsonOf(element);
  const auto found = std::ranges::find(compiled, key, &KeyedNumbers::value_type::first);
  addCalculated(properties, element, found == compiled.end() ? ElementNumbers() : found->second);
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

void printLine(std::ostream& out, const Json& line) {
  out << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

void printEntry(std::ostream& out, const char* name, Json value) {
  Json line = Json::object();
  line.emplace(name, std::move(value));
  printLine(out, line);
}

}  // namespace

void printDocument(std::ostream& out, const Document& document) {
  out << "{\n";
  for (const CompileSetting& setting : compileSettings) {
    std::visit(
        [&](auto field) {
          out << "  " << Json(setting.name) << ": " << jsonOf(document.settings.*field) << ",\n";
        },
        setting.field);
  }
  out << "  \"elements\": [";
  const char* separator = "\n    ";
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    Json entry = {{"key", jsonOf(node->Key)},
                  {"parent", node->Parent() == nullptr ? Json(nullptr) : jsonOf(node->Parent()->Key)},
                  {"text", jsonOf(node->Text)}};
    const Element* element = document.element(*node);
    entry["properties"] = element == nullptr ? Json::object() : jsonOf(*element);
    out << separator << entry;
    separator = ",\n    ";
  }
  out << "\n  ]\n}\n";
}

std::string settingsText(const MemorySettings& settings) {
  return Json{{"settings", settingsState(settings)}}.dump() + "\n";
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

void Transcript::message(const MessageBox& box, BoxButton answer) {
  Json buttons = Json::array();
  for (const auto button : box.buttons) buttons.push_back(nameOf(button));
  printEntry(out_, "message",
             {{"title", toUtf8(box.title)},
              {"text", toUtf8(box.text)},
              {"icon", iconNames.at(static_cast<std::size_t>(box.icon))},
              {"buttons", std::move(buttons)},
              {"default", nameOf(box.standard())},
              {"answer", nameOf(answer)}});
}

void Transcript::fileDialog(const FileDialog& dialog, const std::optional<std::string>& result) {
  printEntry(out_, "fileDialog",
             {{"kind", dialog.kind == FileDialog::Open ? "open" : "save"},
              {"title", toUtf8(dialog.title)},
              {"filter", toUtf8(dialog.filter)},
              {"folder", toUtf8(dialog.folder)},
              {"name", toUtf8(dialog.name)},
              {"result", result ? Json(*result) : Json(nullptr)}});
}

void Transcript::form(const Form& form) {
  printEntry(out_, "form", {{"name", std::string(form.name)}, {"caption", toUtf8(form.caption)}});
}

void Transcript::control(const Form& form, const Control& control) {
  printEntry(out_, "control",
             {{"form", std::string(form.name)},
              {"name", std::string(control.name)},
              {"text", toUtf8(controlText(control))},
              {"enabled", control.enabled},
              {"visible", control.visible}});
}

void Transcript::shell(std::string_view target) { printEntry(out_, "shell", toUtf8(target)); }
void Transcript::help(int topic) { printEntry(out_, "help", topic); }
void Transcript::help(std::string_view page) { printEntry(out_, "help", page); }
void Transcript::refused(std::string_view command) { printEntry(out_, "refused", toUtf8(command)); }
void Transcript::closed(bool isClosed) { printEntry(out_, "closed", isClosed); }

void Transcript::found(const std::vector<const Node*>& nodes) {
  Json keys = Json::array();
  for (const auto* node : nodes) keys.push_back(jsonOf(node->Key));
  printEntry(out_, "found", std::move(keys));
}

void Transcript::replaced(std::size_t count) { printEntry(out_, "replaced", count); }

void Transcript::error(std::string_view text) {
  hadErrors_ = true;
  printEntry(out_, "error", toUtf8(text));
}

void Transcript::tree(const frmMain& window) { printLine(out_, treeState(window)); }
void Transcript::state(const frmMain& window) { printEntry(out_, "state", publicState(window)); }
void Transcript::commands(const frmMain& window) { printLine(out_, commandState(window)); }
void Transcript::sheet(const PropertySheet& sheet) { printEntry(out_, "sheet", sheetState(sheet)); }

void Transcript::element(std::string_view key, const Element& element, const KeyedNumbers& compiled) {
  printEntry(out_, "element", elementState(key, element, compiled));
}

void Transcript::settings(const MemorySettings& settings) {
  printEntry(out_, "settings", settingsState(settings));
}

}  // namespace nimbrel
