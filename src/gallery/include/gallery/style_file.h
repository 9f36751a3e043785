#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "compiler/file_steps.h"
#include "model/element.h"
#include "persistence/older_records.h"
#include "text/message.h"

/// The style file (".nbs"): the look of a container and of an item, with the pictures that they use beside it.
namespace nimbrel {

struct MenuStyle {
  SubmenuObj submenu;
  ItemObj item;
};

/// The folder of all styles, the names of those in it, and the file of one.
std::string galleryFolder(const std::string& programFolder);
std::vector<std::string> styleNames(const FileSystem& files, const std::string& programFolder);
std::string styleFilePath(const std::string& programFolder, std::string_view name);

/// Reads a style; its pictures then have whole paths. False for a file of no known version. Throws `FileError`
/// where the file breaks off; `style` holds what was read up to there.
bool ReadStyleFile(const FileSystem& files, const std::string& programFolder, std::string_view name,
                   SubmenuCarryOver& carryOver, MenuStyle& style);

/// The look of a menu and of its first item, as a style file holds it. A menu without items gives a default one.
MenuStyle styleOfMenu(const MenuObj* menu, const ItemObj* firstItem);

/// Writes a style into the gallery, in place of one of its name, with copies of its pictures. Steps that fail become
/// findings, and the others are made.
void SaveStyle(FileSystem& files, const std::string& programFolder, const std::string& name, MenuStyle style,
               StepReport& report);

/// Removes a style's file and its pictures; steps that fail become findings.
void removeStyle(FileSystem& files, const std::string& programFolder, const std::string& name,
                 StepReport& report);

/// Why a style cannot have that name; none if it can.
const Message* refusalOfStyleName(std::string_view name);

}  // namespace nimbrel
