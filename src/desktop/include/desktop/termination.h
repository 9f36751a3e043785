#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace nimbrel {

/// The system's wish that the program end, by SIGTERM or SIGHUP: so ends a session that has no manager which asks.
/// One at a time.
class Termination {
 public:
  Termination();
  Termination(const Termination&) = delete;
  Termination& operator=(const Termination&) = delete;
  ~Termination();

  /// `asked` is called from the event loop.
  void onAsked(std::function<void()> asked) { asked_ = std::move(asked); }

 private:
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void()> asked_;
};

}  // namespace nimbrel
