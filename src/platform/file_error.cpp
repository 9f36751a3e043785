#include "platform/file_error.h"

namespace nimbrel {

std::string Finding::text() const {
  std::string text;
  if (place.record != 0) text += "record " + std::to_string(place.record);
  if (place.line != 0) text += (text.empty() ? "line " : ", line ") + std::to_string(place.line);
  return text.empty() ? reason : text + ": " + reason;
}

}  // namespace nimbrel
