#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "compiler/file_steps.h"
#include "model/element.h"
#include "persistence/older_records.h"
#include "text/message.h"

/// The style file (".nbs"): the look of menus and items. Its pictures are in a folder next to it.
namespace nimbrel {

/// A style. Only the properties that style copies include are used.
struct MenuStyle {
  SubmenuObj submenu;
  ItemObj item;
};

/// The folder of all styles, the names of the styles in it, and the path of one style. Paths are in document
/// form.
std::string galleryFolder(const std::string& programFolder);
std::vector<std::string> styleNames(const FileSystem& files, const std::string& programFolder);
std::string styleFilePath(const std::string& programFolder, std::string_view name);

/// Reads a style. Its pictures get full paths. Returns false for a file of no known version. Throws
/// `FileError` if the file cannot be read completely; `style` then has what could be read, and empty values
/// for the rest.
bool ReadStyleFile(const FileSystem& files, const std::string& programFolder, std::string_view name,
                   SubmenuCarryOver& carryOver, MenuStyle& style, ReadNotes& notes);

/// The style of a main menu and its first item. A part given as nullptr gets defaults.
MenuStyle styleOfMenu(const MenuObj* menu, const ItemObj* firstItem);

/// Writes a style with copies of its pictures to the gallery. Replaces a style of the same name. Steps that
/// fail are added to `report`; the other steps are still done.
void SaveStyle(FileSystem& files, const std::string& programFolder, const std::string& name, MenuStyle style,
               StepReport& report);

/// Removes the file and the pictures of a style. Steps that fail are added to `report`.
void removeStyle(FileSystem& files, const std::string& programFolder, const std::string& name,
                 StepReport& report);

/// Returns why a style cannot have that name, or nullptr if it can.
const Message* refusalOfStyleName(std::string_view name);

}  // namespace nimbrel
