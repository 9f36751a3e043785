#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace nimbrel {

/// Calls back when a signal asks the program to end, as a terminal and a session without a session manager do. There
/// may be only one instance at a time.
class Termination {
 public:
  Termination();
  Termination(const Termination&) = delete;
  Termination& operator=(const Termination&) = delete;
  ~Termination();

  /// `callback` is called from the event loop.
  void onRequest(std::function<void()> callback) { onRequest_ = std::move(callback); }

 private:
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void()> onRequest_;
};

}  // namespace nimbrel
