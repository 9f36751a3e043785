#include "text/shared_text.h"

#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

namespace nimbrel {

SharedText::SharedText(std::string_view text) {
  if (text.empty()) return;
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) throw std::length_error("text is too long");
  void* memory = ::operator new(sizeof(Shared) + text.size());
  shared_ = new (memory) Shared{1, static_cast<std::uint32_t>(text.size())};
  std::memcpy(shared_->bytes(), text.data(), text.size());
}

void SharedText::free() noexcept { ::operator delete(shared_); }

}  // namespace nimbrel
