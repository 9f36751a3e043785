#pragma once

#include <string>
#include <string_view>

#include "model/element.h"
#include "persistence/file_handle.h"

/// The property line: the stored values of an element in table order, a comma behind each, then the closing
/// marker of its class. Menu files and style files share it.
namespace nimbrel {

/// Stands for a comma inside a marked or escaped value: the superscript three of Windows-1252.
inline constexpr char escapedComma = '\xB3';

std::string_view closingMarker(Kind kind);

/// A text between "!" marks, its commas escaped, and back. `unmarked` fails at the place of the handle where
/// there is nothing to strip; marks that are not "!" are noted.
void appendMarked(std::string& out, std::string_view text);
SharedText unmarked(FileHandle& file, std::string_view name, std::string_view value);

/// The property line, without a line end.
void appendParameterString(std::string& out, const Element& element);
std::string ParameterString(const Element& element);

/// Reads one value into one property. An image that begins with "*" has that character replaced by `FPath`,
/// the folder of the load. Throws `FileError` where a number does not convert.
template <class E>
void readProperty(FileHandle& file, std::string_view FPath, const Property<E>& property, E& element);

extern template void readProperty(FileHandle&, std::string_view, const Property<MenuObj>&, MenuObj&);
extern template void readProperty(FileHandle&, std::string_view, const Property<SubmenuObj>&, SubmenuObj&);
extern template void readProperty(FileHandle&, std::string_view, const Property<ItemObj>&, ItemObj&);

}  // namespace nimbrel
