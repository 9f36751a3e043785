// Reads any bytes as a style of the gallery, dresses the sample menu in it and compiles that.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "compiler/script_assembly.h"
#include "gallery/sample_menu.h"
#include "platform/memory/memory_file_system.h"

using namespace nimbrel;

namespace {

constexpr const char* program = "C:\\p";

void require(bool holds) {
  if (!holds) std::abort();
}

struct Reading {
  MenuStyle style;
  bool isWhole = false;
};

Reading read(const MemoryFileSystem& files, std::string_view name) {
  Reading reading;
  SubmenuCarryOver carryOver;
  try {
    reading.isWhole = ReadStyleFile(files, program, name, carryOver, reading.style);
  } catch (const FileError& error) {
    require(!error.finding().reason.empty());
  }
  return reading;
}

Document dressed(const MenuStyle& style) {
  Document sample = BuildSampleMenu();
  ApplyStyleToSample(sample, style);
  return sample;
}

/// Makes a style of the sample menu, under a name that stays the same, and gives its file.
std::string saved(MemoryFileSystem& files, const Document& sample) {
  StepReport report;
  const auto& menu = std::get<MenuObj>(*sample.ElementColl.find("M0"));
  const auto& item = std::get<ItemObj>(*sample.ElementColl.find("I2"));  // keeps the mark of a submenu
  SaveStyle(files, program, "saved", styleOfMenu(&menu, &item), report);
  return files.read(styleFilePath(program, "saved"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryFileSystem files;
  files.folders = {"C:", program};
  files.files["C:\\p\\gallery\\any.nbs"] = std::string(reinterpret_cast<const char*>(data), size);
  Document sample = dressed(read(files, "any").style);
  StepReport report;
  FileSteps steps(files, report);
  const ScriptTarget target{galleryFolder(program), "nbrData", "nbrData", "gallery"};
  require(!ScriptMaker(steps, program).CreateMenuScript(ScriptMode::Gallery, sample, target, true).empty());

  // A value or a picture's name may hold a comma, which shifts what is behind it; a style that is read back
  // whole has none, and is written again as it was.
  saved(files, sample);
  const Reading once = read(files, "saved");
  if (!once.isWhole) return 0;
  const auto text = saved(files, dressed(once.style));
  const Reading again = read(files, "saved");
  require(again.isWhole);
  require(saved(files, dressed(again.style)) == text);
  return 0;
}
