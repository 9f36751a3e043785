#include "compiler/script_assembly.h"

#include "compiler/element_calls.h"
#include "compiler/picture_file.h"
#include "compiler/style_strings.h"
#include "text/ascii.h"
#include "text/numbers.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

constexpr std::string_view dot = "dot.gif";

constexpr std::string_view supportTest =
    R"(var nbrSupported=(navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || )"
    R"(document.all || document.layers || navigator.userAgent.indexOf('Opera')>-1)?1:0;)";

constexpr std::string_view runtimeChoice =
    "var nua=navigator.userAgent,scriptNo=(nua.indexOf('Gecko')>-1)?2:((document.layers)?3:"
    "((nua.indexOf('Opera')>-1)?4:((nua.indexOf('Mac')>-1)?5:1)));";

void append(std::string& script, std::string_view line) { script.append(lineEnd).append(line); }

std::string optimizeLine(const CompileSettings& settings) {
  return settings.nbrOptimize ? "var nbrOptimize=1;" : "var nbrOptimize=0;";
}

std::string lastCompileFolder(const CompileSettings& settings) {
  if (settings.CompiledPath.empty()) return " ";
  std::string doubled;
  for (const char c : settings.CompiledPath) doubled.append(c == '\\' ? 2 : 1, c);
  return doubled;
}

/// The "nbrImagesColl" line.
std::string pictureTable(const std::vector<CompiledPicture>& pictures) {
  std::string line;
  for (const auto& [name, width, height] : pictures) {
    line.append(line.empty() ? "nbrImagesColl=['" : ",'").append(name).append("',");
    line.append(std::to_string(width)).append(1, ',').append(std::to_string(height));
  }
  return line + "];";
}

/// Appends everything that one call of `buildMenu()` builds: pictures, looks, elements.
void appendGroup(const CompiledGroup& group, std::string_view afterContainer, std::string& script) {
  if (!group.pictures.empty()) append(script, pictureTable(group.pictures));
  for (const auto& look : group.looks) {
    StyleString(group.elements[look.owner], look.part, script += lineEnd);
  }
  CollectElementStrings(group, afterContainer, script);
  append(script, "s0.pm.buildMenu();");
}

/// The line with the main menu's stacking order.
std::string zIndexLine(const Document& document) {
  const auto first = document.ElementColl.begin();
  const auto* menu = first == document.ElementColl.end() ? nullptr : std::get_if<MenuObj>(&first->second);
  if (menu == nullptr) return {};
  const auto value = menu->ZIndex == 0 ? "'auto'" : generalForm(menu->ZIndex);
  return "nbrzindex=" + value + ";\r\n";
}

}  // namespace

std::string ScriptMaker::overridden(std::string_view name, std::string_view line) const {
  const auto path = joinPath(programFolder_, name);
  if (!steps_.files().isFile(path)) return std::string(line);
  try {
    return steps_.files().read(path);
  } catch (const FileError& error) {
    steps_.note(error.finding());
    return std::string(line);
  }
}

void ScriptMaker::copyFromProgram(std::string_view name, std::string_view to) {
  steps_.copy(joinPath(programFolder_, name), to);
}

void ScriptMaker::InstallLibraries(const ScriptTarget& target) {
  const auto folder = target.basePath + '\\' + target.libraryFolder;
  constexpr int libraries = 6;
  for (int i = 0; i < libraries; ++i) {
    const auto name = "nbrlib" + std::to_string(i) + ".js";
    copyFromProgram("libraries\\" + name, joinPath(folder, name));
  }
  // Quirk: the one-pixel image goes to the library folder even if there is a separate image folder.
  copyFromProgram(dot, joinPath(folder, dot));
  copyFromProgram(dot, target.basePath + '\\' + std::string(pathImage));
}

std::string ScriptMaker::CreateScriptPrologue(const Document& document, const ScriptTarget& target) const {
  const auto image = "nbrMenuPathImg-" + target.menuName + "'].src;";
  std::string head = "//----------DHTML Menu Created using ";
  head.append(productTitle).append(" ver ").append(productVersion).append("-#").append(productBuild);
  head.append("---------------");
  append(head, "var nbrMenuName='" + target.menuName + "';");
  append(head, "var nbrLibraryPath='/" + target.libraryFolder + "';");
  append(head, "var nbrImagesPath='/" + target.imageFolder + "';");
  append(head, overridden("auc", supportTest));
  append(head, "if (nbrAltUrl!='' && !nbrSupported) window.location.replace(nbrAltUrl);");
  append(head, "if (nbrSupported){");
  append(head, "var nbrMenuPath;");
  append(head, "if (document.all) mpi=document.all['" + image);
  append(head, "if (document.layers) mpi=document.images['" + image);
  append(head, R"(if (navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || )"
               R"(navigator.userAgent.indexOf('Opera')>-1) mpi=document.getElementById('nbrMenuPathImg-)" +
                   target.menuName + "').src;");
  constexpr auto tail = pathImage.size() + 1;  // includes the slash
  append(head, "nbrMenuPath=mpi.substring(0,mpi.length-" + std::to_string(tail) + ");");
  append(head, overridden("bsc", runtimeChoice));
  append(
      head,
      R"(document.write("<SCRIPT SRC='"+nbrMenuPath+nbrLibraryPath+"/nbrlib"+scriptNo+".js'><\/SCRIPT>");)");
  append(head, "var n=null;");
  head.append(lineEnd).append(zIndexLine(document)).append("}").append(lineEnd);
  return head;
}

/// Takes over what the compile found, and copies its pictures.
void ScriptMaker::TakePictures(const CompiledScript& compiled, const ScriptTarget& target) {
  for (const auto& finding : compiled.findings) steps_.note(finding);
  const auto folder = target.basePath + '\\' + target.imageFolder;
  for (const auto& picture : compiled.pictures) steps_.copy(picture, GalleryImagePath(picture, folder));
}

std::string ScriptMaker::CreateMenuScript(ScriptMode mode, const Document& document,
                                          const CompiledScript& compiled, const ScriptTarget& target) {
  if (mode == ScriptMode::Gallery) {
    copyFromProgram(dot, target.basePath + '\\' + target.libraryFolder + '\\' + std::string(dot));
  } else {
    InstallLibraries(target);
  }
  const CompileSettings& settings = document.settings;
  std::string script = CreateScriptPrologue(document, target);
  append(script, "var nbrSubmenusFrame='" +
                     (mode == ScriptMode::Compile ? settings.nbrSubmenusFrame : std::string()) + "';");
  append(script, "var nbrSubmenusFrameOffset;");  // only declared: the submenus file sets the value
  append(script, optimizeLine(settings));
  if (settings.nbrFrontPageSupport) append(script, "document.write('</table>');");
  if (mode == ScriptMode::Preview) append(script, "var nbrprp='" + lastCompileFolder(settings) + "';");
  append(script, "function nbrBuildMenu(){");
  append(script, "if (nbrSupported){");
  TakePictures(compiled, target);
  appendGroup(compiled.groups.front(), {}, script);
  append(script, "}}");
  return script;
}

std::string ScriptMaker::CreateSubmenusScript(const Document& document, const CompiledScript& compiled,
                                              const ScriptTarget& target) {
  std::string list;
  std::string body;
  TakePictures(compiled, target);
  for (const auto& one : compiled.groups) {
    int position = 1;  // of its item, counting items without a submenu too
    for (const Node* item = one.elements.front().node->Parent()->Previous(); item != nullptr;
         item = item->Previous()) {
      ++position;
    }
    const auto group = target.menuName + "_" + std::to_string(position);
    list.append(list.empty() ? "nbr" : ",nbr").append(group);
    append(body, "nbrMenuName='" + group + "';");
    appendGroup(one, "nbr" + group + "=s0;", body);
  }
  if (body.empty()) return {};

  const CompileSettings& settings = document.settings;
  std::string script = CreateScriptPrologue(document, target);
  append(script, "var nbrSubmenusFrame='';");
  append(script, "var nbrSubmenusFrameOffset=" + std::to_string(settings.nbrSubmenusFrameOffset) + ";");
  append(script, optimizeLine(settings));
  append(script, "var " + list + ";");
  // Quirk: unlike in the main file, the test is on the same line and no line break precedes the braces.
  append(script, "function nbrBuildMenu(){if(nbrSupported){" + body + "}}");
  if (settings.nbrFrontPageSupport) append(script, "if (document.layers) document.write('</table>');");
  return script;
}

}  // namespace nimbrel
