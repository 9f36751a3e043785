#pragma once

#include <string>
#include <string_view>

#include "model/element.h"
#include "persistence/file_handle.h"

/// The property line: the stored values of an element in table order, each with a comma after it, then the
/// closing marker of its class. Used in menu files and style files.
namespace nimbrel {

/// Replaces commas in marked and escaped values: the superscript three of Windows-1252.
inline constexpr char escapedComma = '\xB3';

/// The value that ends a property line; empty for `Kind::None`.
std::string_view closingMarker(Kind kind);

/// Write a text between "!" marks with escaped commas, and read it back. `unmarked` throws a `FileError` of
/// `file` if the value is too short for marks, and notes marks other than "!". `name` is used in messages.
void appendMarked(std::string& out, std::string_view text);
SharedText unmarked(FileHandle& file, std::string_view name, std::string_view value);

/// The property line of an element, without a line end.
void appendParameterString(std::string& out, const Element& element);
std::string ParameterString(const Element& element);

/// Reads the next value into one property. In an image that begins with "*", that character is replaced by
/// `FPath`, the folder of the file. Throws `FileError` if the value cannot be converted.
template <class E>
void readProperty(FileHandle& file, std::string_view FPath, const Property<E>& property, E& element);

extern template void readProperty(FileHandle&, std::string_view, const Property<MenuObj>&, MenuObj&);
extern template void readProperty(FileHandle&, std::string_view, const Property<SubmenuObj>&, SubmenuObj&);
extern template void readProperty(FileHandle&, std::string_view, const Property<ItemObj>&, ItemObj&);

}  // namespace nimbrel
