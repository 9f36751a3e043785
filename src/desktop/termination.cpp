#include "desktop/termination.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace nimbrel {
namespace {

constexpr std::array endingSignals{SIGTERM, SIGHUP, SIGINT};

/// Signal handlers may do little: ours writes a byte to this pipe, which the event loop reads.
volatile std::sig_atomic_t writeEnd = -1;

void handleSignal(int /*signal*/) {
  constexpr char byte = 0;
  [[maybe_unused]] const auto written = ::write(writeEnd, &byte, 1);
}

}  // namespace

Termination::Termination() {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  writeEnd = pipe_[1];
  notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    char byte = 0;
    while (::read(pipe_[0], &byte, 1) > 0) continue;
    if (onRequest_) onRequest_();
  });
  for (const int number : endingSignals) static_cast<void>(std::signal(number, handleSignal));
}

Termination::~Termination() {
  if (notifier_ == nullptr) return;
  for (const int number : endingSignals) static_cast<void>(std::signal(number, SIG_DFL));
  notifier_.reset();
  for (const int end : pipe_) ::close(end);
}

}  // namespace nimbrel
