#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace nimbrel {

/// An immutable one-byte text that its copies share. A document says the same few things ("n", "sans-serif",
/// "#FFFFFF") a million times; a copy here is a pointer, so that elements are small and cheap to copy.
/// Not for use by several threads at once.
class SharedText {
 public:
  SharedText() = default;
  // NOLINTBEGIN(google-explicit-constructor): a text is its bytes
  SharedText(std::string_view text);
  SharedText(const std::string& text) : SharedText(std::string_view(text)) {}
  SharedText(const char* text) : SharedText(std::string_view(text)) {}
  // NOLINTEND(google-explicit-constructor)
  SharedText(const SharedText& other) noexcept : shared_(other.shared_) {
    if (shared_ != nullptr) ++shared_->owners;
  }
  SharedText(SharedText&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
  SharedText& operator=(SharedText other) noexcept {
    std::swap(shared_, other.shared_);
    return *this;
  }
  ~SharedText() {
    if (shared_ != nullptr && --shared_->owners == 0) release();
  }

  std::string_view view() const noexcept {
    return shared_ == nullptr ? std::string_view{} : std::string_view(shared_->bytes(), shared_->size);
  }
  operator std::string_view() const noexcept { return view(); }  // NOLINT(google-explicit-constructor)
  std::string str() const { return std::string(view()); }
  bool empty() const noexcept { return shared_ == nullptr; }

  friend bool operator==(const SharedText& a, const SharedText& b) noexcept {
    return a.shared_ == b.shared_ || a.view() == b.view();
  }
  friend bool operator==(const SharedText& a, std::string_view b) noexcept { return a.view() == b; }
  friend bool operator==(const SharedText& a, const char* b) noexcept { return a.view() == b; }

 private:
  /// Lies directly ahead of the bytes.
  struct Shared {
    std::uint32_t owners;
    std::uint32_t size;
    char* bytes() { return reinterpret_cast<char*>(this + 1); }
  };

  void release() noexcept;

  Shared* shared_ = nullptr;  // none: the empty text
};

}  // namespace nimbrel
