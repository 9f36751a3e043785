#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace nimbrel {

/// Keeps a listener connected until it is destroyed. May outlive the notifier.
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::function<void()> disconnect) : disconnect_(std::move(disconnect)) {}
  Connection(Connection&& other) noexcept : disconnect_(std::exchange(other.disconnect_, nullptr)) {}
  Connection& operator=(Connection&& other) noexcept {
    std::swap(disconnect_, other.disconnect_);
    return *this;
  }
  ~Connection() {
    if (disconnect_) disconnect_();
  }

 private:
  std::function<void()> disconnect_;
};

/// Calls its listeners in the order in which they connected. A listener must neither throw nor connect or disconnect
/// listeners of the same notifier.
template <class... Args>
class Notifier {
 public:
  using Listener = std::function<void(Args...)>;

  [[nodiscard]] Connection connect(Listener listener) {
    auto added = std::make_shared<Listener>(std::move(listener));
    listeners_->push_back(added);
    return Connection([list = std::weak_ptr(listeners_), added] {
      if (const auto alive = list.lock()) std::erase(*alive, added);
    });
  }

  void notify(Args... args) const {
    for (const auto& listener : *listeners_) (*listener)(args...);
  }

 private:
  using Listeners = std::vector<std::shared_ptr<Listener>>;
  std::shared_ptr<Listeners> listeners_ = std::make_shared<Listeners>();
};

}  // namespace nimbrel
