#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "editing/edit.h"
#include "model/document.h"

namespace nimbrel {

/// Whether `text` contains `wanted`, whatever the case of letters in Windows-1252. An empty `wanted` is in no text.
bool containsText(std::string_view text, std::string_view wanted);

/// The nodes whose text, names, addresses, tooltips, commands or picture paths contain a text, in tree order.
std::vector<const Node*> nodesWith(const Document& document, std::string_view wanted);

/// The texts in which an author can replace.
enum class TextKind : std::uint8_t { All, Names, Addresses, Hints, Commands, Pictures };

/// The kinds by name, in order: "all", "names", "addresses", "hints", "commands", "pictures".
std::optional<TextKind> textKindNamed(std::string_view name);

/// Replaces each `wanted`, whatever its case, by `by` in texts of this kind, as one edit. The texts of nodes follow their
/// names. `count` is how many were replaced; the edit has no steps if it is 0.
struct Replacing {
  Edit edit;
  std::size_t count = 0;
};
Replacing replacing(const Document& document, std::string_view wanted, std::string_view by, TextKind kind);

}  // namespace nimbrel
