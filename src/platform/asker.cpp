#include "platform/asker.h"

namespace nimbrel {

MessageBox warning(const Message& message) {
  return {.title = std::string(message.title), .text = std::string(message.text)};
}

}  // namespace nimbrel
