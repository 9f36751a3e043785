// Reads any bytes after the magic line NIMBREL_MAGIC as a menu file.
#include <string>

#include "persistence/menu_file.h"
#include "require_consistent.h"

using namespace nimbrel;

namespace {

struct Reading {
  Document document;
  bool isWhole = true;
};

Reading read(const std::string& bytes) {
  Reading reading;
  SubmenuCarryOver carryOver;
  ReadNotes notes;
  try {
    readMenuFile(bytes, "C:\\menus\\menu.nbr", "C:\\menus", carryOver, reading.document, notes);
  } catch (const FileError& error) {
    reading.isWhole = false;
    require(!error.finding().reason.empty());
  }
  requireConsistent(reading.document);
  return reading;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const Document document = read(NIMBREL_MAGIC "\r\n" + input).document;

  // In a foreign file, a raw value in quotes may contain a comma, which shifts the following values once it is
  // written, so reading it back may fail. What was read back whole has no such value and must survive unchanged.
  const Reading once = read(menuFileText(document));
  if (!once.isWhole) return 0;
  const auto text = menuFileText(once.document);
  const Reading again = read(text);
  require(again.isWhole);
  require(again.document == once.document);
  require(menuFileText(again.document) == text);
  return 0;
}
