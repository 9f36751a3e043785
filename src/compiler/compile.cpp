#include "compiler/compile.h"

#include <utility>

#include "compiler/picture_file.h"
#include "compiler/script_assembly.h"
#include "compiler/script_literals.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr std::size_t extensionSize = 3;

constexpr Message nameHasSpaces{
    "Menu name contains spaces",
    "The compiled menu name cannot contain spaces, as it will not work properly \r"
    "in Netscape browsers. Please remove the spaces from the name."};
constexpr Message nameTooShort{"Compile Menu", "The compiled menu name is too short: it ends in \".js\"."};
constexpr Message librariesLeadOut{"Folder outside of the menu's folder",
                                   "The libraries folder must be inside the folder of the compiled menu: its "
                                   "name cannot begin or end with a slash, name "
                                   "a drive, or have a part that is empty, \".\" or \"..\"."};
constexpr Message imagesLeadOut{"Folder outside of the menu's folder",
                                "The images folder must be inside the folder of the compiled menu: its name "
                                "cannot begin or end with a slash, name a "
                                "drive, or have a part that is empty, \".\" or \"..\"."};
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

const Message* refusalOfFolders(const CompileSettings& settings) {
  const auto isFit = [](const std::string& folder) { return folder.empty() || staysInside(folder); };
  if (!isFit(settings.nbrLibraryPath)) return &librariesLeadOut;
  return isFit(settings.nbrImagePath) ? nullptr : &imagesLeadOut;
}

const Message* refusalOfCompile(const Document& document) {
  const Node* root = document.tvTreeView.root();
  const bool hasMenu = root != nullptr && std::get_if<MenuObj>(document.element(*root)) != nullptr;
  return hasMenu ? nullptr : &noMainMenu;
}

CompiledMenu CompileMenu(FileSystem& files, const std::string& programFolder, const Document& document,
                         StepReport& report) {
  const CompileSettings& settings = document.settings;
  const auto layout = compileLayout(settings);
  FileSteps steps(files, report, settings.CompiledPath);
  ScriptMaker maker(steps, programFolder);
  steps.makeFolder(settings.CompiledPath + '\\' + layout.libraryFolder);
  steps.makeFolder(settings.CompiledPath + '\\' + layout.imageFolder);

  for (auto& flaw : flawedLiterals(document, layout.menuPath)) steps.note(std::move(flaw));
  if (const auto* flaw = flawOfLiteral(layout.baseName, '\'')) {
    steps.note({layout.menuPath,
                std::string("the name of the compiled menu ") + flaw + ", which breaks the script"});
  }

  ScriptTarget target{settings.CompiledPath, layout.libraryFolder, layout.imageFolder, layout.baseName};
  const bool crossFrame = !settings.nbrSubmenusFrame.empty();
  const auto write = [&](const std::string& path, std::string script) {
    steps.generate(path, script.append("\r\n"));
  };
  auto menu = compiledMenu(document, crossFrame, files);
  write(layout.menuPath, maker.CreateMenuScript(ScriptMode::Compile, document, menu.main, target));
  if (crossFrame) {
    target.menuName += "_sub";
    write(layout.submenusPath, maker.CreateSubmenusScript(document, menu.submenus, target));
  }
  return menu;
}

}  // namespace nimbrel
