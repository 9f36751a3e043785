#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace nimbrel {

/// An immutable one-byte text with a reference count. A document repeats a few texts ("n", "sans-serif",
/// "#FFFFFF") a million times; a copy is one pointer, so elements are small and cheap to copy.
/// Copies may live in different threads; one object may not be changed in one thread and used in another.
class SharedText {
 public:
  SharedText() = default;
  // NOLINTBEGIN(google-explicit-constructor): converts without loss
  SharedText(std::string_view text);
  SharedText(const std::string& text) : SharedText(std::string_view(text)) {}
  SharedText(const char* text) : SharedText(std::string_view(text)) {}
  // NOLINTEND(google-explicit-constructor)
  SharedText(const SharedText& other) noexcept : shared_(other.shared_) {
    if (shared_ != nullptr) shared_->owners.fetch_add(1, std::memory_order_relaxed);
  }
  SharedText(SharedText&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
  SharedText& operator=(SharedText other) noexcept {
    std::swap(shared_, other.shared_);
    return *this;
  }
  ~SharedText() {
    if (shared_ != nullptr) release();
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
  /// The header of the allocation; the bytes follow it.
  struct Shared {
    std::atomic<std::uint32_t> owners;
    std::uint32_t size;
    char* bytes() { return reinterpret_cast<char*>(this + 1); }
  };

  /// Gives up one ownership; the last one frees the text.
  void release() noexcept {
    if (shared_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) free();
  }
  void free() noexcept;

  Shared* shared_ = nullptr;  // nullptr: the empty text
};

}  // namespace nimbrel
