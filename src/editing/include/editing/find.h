#pragma once

#include <string_view>
#include <vector>

#include "model/document.h"

namespace nimbrel {

/// Whether `text` contains `wanted`, whatever the case of letters in Windows-1252. An empty `wanted` is in no text.
bool containsText(std::string_view text, std::string_view wanted);

/// The nodes whose text, names, addresses, tooltips, commands or picture paths contain a text, in tree order.
std::vector<const Node*> nodesWith(const Document& document, std::string_view wanted);

}  // namespace nimbrel
