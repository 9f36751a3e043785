#pragma once

#include <cstddef>
#include <list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace nimbrel {

/// A collection in order of insertion with hashed lookup by key. Values keep their address until they are
/// removed.
template <class T>
class KeyedList {
 public:
  using Entry = std::pair<const std::string, T>;

  KeyedList() = default;
  ~KeyedList() = default;
  KeyedList(KeyedList&&) noexcept = default;
  KeyedList& operator=(KeyedList&&) noexcept = default;
  KeyedList(const KeyedList& other) : entries_(other.entries_) { index(); }
  KeyedList& operator=(const KeyedList& other) {
    if (this != &other) *this = KeyedList(other);
    return *this;
  }

  std::size_t size() const { return entries_.size(); }
  bool empty() const { return entries_.empty(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  auto begin() { return entries_.begin(); }
  auto end() { return entries_.end(); }

  /// Reserves space in the index for `size` entries.
  void reserve(std::size_t size) { byKey_.reserve(size); }

  /// Adds a value at the end. Throws `std::invalid_argument` if the key exists.
  Entry& add(std::string key, T value) {
    entries_.emplace_back(std::move(key), std::move(value));
    const auto added = std::prev(entries_.end());
    if (!byKey_.try_emplace(added->first, added).second) {
      const auto text = "key " + added->first + " is taken";
      entries_.pop_back();
      throw std::invalid_argument(text);
    }
    return *added;
  }

  /// The value with that key, or nullptr.
  T* find(std::string_view key) {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : &found->second->second;
  }
  const T* find(std::string_view key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : &found->second->second;
  }

  /// The value at a position, counted from 1, or nullptr if out of range. Takes time linear in the position.
  T* at(std::size_t position) {
    if (position < 1 || position > entries_.size()) return nullptr;
    return &std::next(entries_.begin(), static_cast<std::ptrdiff_t>(position - 1))->second;
  }

  const T* at(std::size_t position) const {
    if (position < 1 || position > entries_.size()) return nullptr;
    return &std::next(entries_.begin(), static_cast<std::ptrdiff_t>(position - 1))->second;
  }

  /// Does nothing if the key does not exist.
  void remove(std::string_view key) {
    const auto found = byKey_.find(key);
    if (found == byKey_.end()) return;
    const auto entry = found->second;
    byKey_.erase(found);  // before the entry, which owns the key
    entries_.erase(entry);
  }

  void clear() {
    byKey_.clear();
    entries_.clear();
  }

 private:
  void index() {
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) byKey_.emplace(entry->first, entry);
  }

  /// Keys are a letter and a number. Consecutive numbers get neighbouring buckets, so that a walk through a
  /// large document uses the cache well.
  struct Hash {
    std::size_t operator()(std::string_view key) const {
      std::size_t hash = 0;
      for (const char c : key) hash = hash * 10 + static_cast<unsigned char>(c) - '0';
      return hash;
    }
  };

  std::list<Entry> entries_;
  std::unordered_map<std::string_view, typename std::list<Entry>::iterator, Hash>
      byKey_;  // views of the keys in entries_
};

}  // namespace nimbrel
