// Reads any bytes behind the magic line NIMBREL_MAGIC as a menu file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "persistence/menu_file.h"

using namespace nimbrel;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

struct Reading {
  Document document;
  bool isWhole = true;
};

Reading read(const std::string& bytes) {
  Reading reading;
  SubmenuCarryOver carryOver;
  Findings notes;
  try {
    readMenuFile(bytes, "C:\\menus\\menu.nbr", "C:\\menus", carryOver, reading.document, notes);
  } catch (const FileError& error) {
    reading.isWhole = false;
    require(!error.finding().reason.empty());
  }
  return reading;
}

/// Each node but a foreign one has an element of its kind, no element is without a node, and a next key is new.
void requireAgreement(const Document& document) {
  std::size_t nodes = 0;
  std::size_t elements = 0;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    ++nodes;
    const Element* element = document.element(*node);
    require((element == nullptr) == (kindOf(node->Key) == Kind::None));
    require(element == nullptr || kindOf(*element) == kindOf(node->Key));
    elements += element == nullptr ? 0U : 1U;
    const int number = std::stoi(node->Key.substr(1));
    require(number < document.NextKeyNumber || number == INT16_MAX);
  }
  require(nodes == document.tvTreeView.size());
  require(elements == document.ElementColl.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const Document document = read(NIMBREL_MAGIC "\r\n" + input).document;
  requireAgreement(document);

  // A foreign file's raw value may hold a comma, which only quotes can bring; written, it shifts what is behind
  // it, and the reader may well stop there. What we wrote has no such value: it is read back as it was.
  const Reading once = read(menuFileText(document));
  requireAgreement(once.document);
  if (!once.isWhole) return 0;
  const auto text = menuFileText(once.document);
  const Reading again = read(text);
  require(again.isWhole);
  require(again.document == once.document);
  require(menuFileText(again.document) == text);
  return 0;
}
