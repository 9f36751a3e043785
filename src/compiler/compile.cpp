#include "compiler/compile.h"

#include "compiler/script_assembly.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr std::size_t extensionSize = 3;

constexpr Message nameHasSpaces{
    "Menu name contains spaces",
    "The compiled menu name cannot contain spaces, as it will not work properly \r"
    "in Netscape browsers. Please remove the spaces from the name."};
constexpr Message nameTooShort{"Compile Menu", "The compiled menu name is too short: it ends in \".js\"."};
constexpr Message noMainMenu{"Compile Menu", "There is no main menu to compile."};

std::string folderOr(const std::string& custom, const std::string& baseName) {
  return custom.empty() ? "nbrData-" + baseName : custom;
}

}  // namespace

CompileLayout compileLayout(const CompileSettings& settings) {
  CompileLayout layout;
  layout.baseName = settings.CompiledName.substr(0, settings.CompiledName.size() - extensionSize);
  layout.libraryFolder = folderOr(settings.nbrLibraryPath, layout.baseName);
  layout.imageFolder = folderOr(settings.nbrImagePath, layout.baseName);
  layout.menuPath = settings.CompiledPath + '\\' + settings.CompiledName;
  layout.submenusPath = settings.CompiledPath + '\\' + layout.baseName + "_sub.js";
  return layout;
}

const Message* refusalOfCompiledName(std::string_view name) {
  if (name.find(' ') != std::string_view::npos) return &nameHasSpaces;
  return name.size() < extensionSize ? &nameTooShort : nullptr;
}

const Message* refusalOfCompile(const Document& document) {
  const Node* root = document.tvTreeView.root();
  const bool hasMenu = root != nullptr && std::get_if<MenuObj>(document.element(*root)) != nullptr;
  return hasMenu ? nullptr : &noMainMenu;
}

void CompileMenu(FileSystem& files, const std::string& programFolder, Document& document,
                 StepReport& report) {
  FileSteps steps(files, report);
  ScriptMaker maker(steps, programFolder);
  const CompileSettings& settings = document.settings;
  const auto layout = compileLayout(settings);
  steps.makeFolder(settings.CompiledPath + '\\' + layout.libraryFolder);
  steps.makeFolder(settings.CompiledPath + '\\' + layout.imageFolder);

  ScriptTarget target{settings.CompiledPath, layout.libraryFolder, layout.imageFolder, layout.baseName};
  const bool crossFrame = !settings.nbrSubmenusFrame.empty();
  const auto write = [&](const std::string& path, std::string script) {
    steps.generate(path, script.append("\r\n"));
  };
  write(layout.menuPath, maker.CreateMenuScript(ScriptMode::Compile, document, target, !crossFrame));
  if (crossFrame) {
    target.menuName += "_sub";
    write(layout.submenusPath, maker.CreateSubmenusScript(document, target));
  }
}

}  // namespace nimbrel
