#include <algorithm>

#include "persistence/file_versions.h"
#include "persistence/menu_file.h"
#include "persistence/menu_file_layout.h"
#include "persistence/property_line.h"
#include "text/ascii.h"
#include "text/numbers.h"

namespace nimbrel {
namespace {

/// A comma would end the value and shift all later ones, so such a value is quoted. Quotes in it become "'"
/// and line breaks blanks, since the format cannot express them.
std::string lineOf(std::string value) {
  if (value.find_first_of(",\r\n") == std::string::npos) return value;
  std::ranges::replace(value, '"', '\'');
  std::ranges::replace_if(
      value, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return '"' + value + '"';
}
std::string lineOf(bool value) { return value ? "True" : "False"; }
std::string lineOf(std::int32_t value) { return printedForm(value); }

void WriteNode(std::string& out, const Document& document, const Node& node) {
  out.append(node.Parent() == nullptr ? printedForm(0) : node.Parent()->Key).append(lineEnd);
  appendMarked(out, node.Text);
  out.append(lineEnd).append(node.Key).append(lineEnd);
  // A node of an unknown kind has no element and gets no property line.
  if (const Element* element = document.element(node)) {
    appendParameterString(out, *element);
    out += lineEnd;
  }
}

}  // namespace

std::string menuFileHead(const CompileSettings& settings) {
  std::string out(currentFormat.menuMagic);
  out += lineEnd;
  for (const CompileSetting& setting : compileSettings) {
    std::visit([&](auto field) { out.append(lineOf(settings.*field)).append(lineEnd); }, setting.field);
  }
  out.append(treeMark).append(lineEnd);
  return out;
}

std::string menuFileRecord(const Document& document, const Node& node) {
  std::string out;
  WriteNode(out, document, node);
  return out;
}

std::string menuFileText(const Document& document) {
  auto out = menuFileHead(document.settings);
  // Quirk: further roots, which only a file can bring, are not written.
  const Node* root = document.tvTreeView.root();
  for (const Node* node = root; node != nullptr; node = following(node, root))
    WriteNode(out, document, *node);
  return out;
}

void SaveMenuFile(FileSystem& files, std::string_view path, const Document& document) {
  files.replace(path, menuFileText(document));
}

}  // namespace nimbrel
