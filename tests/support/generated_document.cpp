#include "support/generated_document.h"

#include <random>
#include <string>
#include <vector>

#include "model/structure.h"

namespace nimbrel {
namespace {

/// Random numbers that are the same everywhere; standard distributions differ between libraries.
class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}

  /// A number from 0 to `end` - 1.
  std::size_t below(std::size_t end) { return engine_() % end; }
  bool oneIn(std::size_t n) { return below(n) == 0; }

 private:
  std::mt19937 engine_;
};

/// A text that survives writing and reading in this form.
std::string anyText(Chance& chance, FileForm form) {
  constexpr std::string_view special = " ,\"!*n\\'";
  constexpr char escape = '\xB3';  // read from a file as a comma
  std::string text;
  for (auto count = chance.below(40); count > 0; --count) {
    const char any = static_cast<char>(' ' + chance.below(256 - ' '));
    const char c = chance.oneIn(2) ? any : special[chance.below(special.size())];
    if (c != escape && (c != ',' || form != FileForm::Raw)) text += c;
  }
  if (form == FileForm::Marked) return text;
  // Outer blanks and a quote at the start are lost, a star at the start means a folder.
  text.erase(0, text.find_first_not_of(" \"*"));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

void vary(Chance& chance, FileForm form, SharedText& value) { value = anyText(chance, form); }

void vary(Chance& chance, FileForm, std::uint8_t& value) {
  value = static_cast<std::uint8_t>(chance.below(256));
}

void vary(Chance& chance, FileForm form, float& value) {
  constexpr float flagged = -1;
  const auto whole = static_cast<float>(chance.below(2001)) - 1000;
  const auto fraction = static_cast<float>(chance.below(16)) / 16;
  value = form == FileForm::Flag ? (chance.oneIn(2) ? flagged : 0) : whole + (chance.oneIn(2) ? fraction : 0);
}

void vary(Chance& chance, std::string& value) { value = anyText(chance, FileForm::Raw); }
void vary(Chance& chance, bool& value) { value = chance.oneIn(2); }
void vary(Chance& chance, std::int32_t& value) {
  value = static_cast<std::int32_t>(chance.below(2'000'001)) - 1'000'000;
}

void varyProperties(Chance& chance, Element& element) {
  std::visit(
      [&]<class E>(E& object) {
        eachProperty<E>([&](const Property<E>& row, auto field) { vary(chance, row.form, object.*field); });
      },
      element);
}

}  // namespace

Document generatedDocument(unsigned seed, int elements) {
  Chance chance(seed);
  Document document;
  for (const CompileSetting& setting : compileSettings) {
    std::visit([&](auto field) { vary(chance, document.settings.*field); }, setting.field);
  }
  std::vector<std::string> keys{AddMainMenu(document).Key};
  while (keys.size() < static_cast<std::size_t>(elements)) {
    const std::string at = keys[chance.below(keys.size())];
    const Node* node = chance.oneIn(2) ? AddSubmenu(document, at) : nullptr;
    keys.push_back(node != nullptr ? node->Key : AddItem(document, at)->Key);
  }
  for (auto& [key, element] : document.ElementColl) {
    varyProperties(chance, element);
    document.tvTreeView.find(key)->Text = NodeText(element);
  }
  return document;
}

}  // namespace nimbrel
