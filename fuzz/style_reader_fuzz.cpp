// Reads any bytes as a style of the gallery, applies it to the sample menu and compiles that.
#include <algorithm>
#include <string>

#include "compiler/script_assembly.h"
#include "gallery/sample_menu.h"
#include "platform/memory/memory_file_system.h"
#include "require.h"

using namespace nimbrel;

namespace {

constexpr const char* program = "C:\\p";

struct Reading {
  MenuStyle style;
  bool isWhole = false;
};

Reading read(const MemoryFileSystem& files, std::string_view name) {
  Reading reading;
  SubmenuCarryOver carryOver;
  try {
    ReadNotes notes;
    reading.isWhole = ReadStyleFile(files, program, name, carryOver, reading.style, notes);
  } catch (const FileError& error) {
    require(!error.finding().reason.empty());
  }
  return reading;
}

Document withStyle(const MenuStyle& style) {
  static const Document blank = BuildSampleMenu();
  Document sample = blank;
  ApplyStyleToSample(sample, style);
  return sample;
}

/// Saves the style of the sample menu and returns the style file.
std::string saved(MemoryFileSystem& files, const Document& sample) {
  StepReport report;
  const auto& menu = std::get<MenuObj>(*sample.ElementColl.find("M0"));
  const auto& item = std::get<ItemObj>(*sample.ElementColl.find("I2"));  // has the "has submenu" image
  SaveStyle(files, program, "saved", styleOfMenu(&menu, &item), report);
  return files.read(styleFilePath(program, "saved"));
}

template <class E>
bool namesPictureWithComma(const E& element) {
  return std::ranges::any_of(imageRows<E>, [&](const auto* row) {
    return (element.*std::get<SharedText E::*>(row->field)).str().find(',') != std::string::npos;
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryFileSystem files;
  files.folders = {"C:", program};
  files.files["C:\\p\\gallery\\any.nbs"] = std::string(reinterpret_cast<const char*>(data), size);
  Document sample = withStyle(read(files, "any").style);
  StepReport report;
  FileSteps steps(files, report);
  const ScriptTarget target{galleryFolder(program), "nbrData", "nbrData", "gallery"};
  const auto menu = compiledMenu(sample, false, files);
  require(
      !ScriptMaker(steps, program).CreateMenuScript(ScriptMode::Gallery, sample, menu.main, target).empty());

  // A comma in a value or a picture's name shifts the following values. A style that is read back whole and without
  // such a picture must survive unchanged.
  saved(files, sample);
  const Reading once = read(files, "saved");
  if (!once.isWhole || namesPictureWithComma(once.style.submenu) || namesPictureWithComma(once.style.item))
    return 0;
  const auto text = saved(files, withStyle(once.style));
  const Reading again = read(files, "saved");
  require(again.isWhole);
  require(saved(files, withStyle(again.style)) == text);
  return 0;
}
