#include "recovery/recovery_writer.h"

#include <utility>

namespace nimbrel {

RecoveryWriter::RecoveryWriter(FileSystem& files, std::string stateFolder)
    : files_(files), stateFolder_(std::move(stateFolder)), thread_([this] { run(); }) {}

RecoveryWriter::~RecoveryWriter() {
  {
    const std::lock_guard guard(mutex_);
    isEnding_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void RecoveryWriter::post(RecoveryHead head, MenuChange change) {
  {
    const std::lock_guard guard(mutex_);
    if (change.isWhole) changes_.clear();
    changes_.push_back(std::move(change));
    head_ = std::move(head);
    if (due_) return;
    due_ = std::chrono::steady_clock::now() + gathering;
  }
  wake_.notify_one();
}

void RecoveryWriter::discard() {
  const std::lock_guard writing(writing_);
  {
    const std::lock_guard guard(mutex_);
    due_.reset();
  }
  if (!folder_) return;
  try {
    folder_->remove();
  } catch (const FileError& error) {
    note(error);
  }
  folder_.reset();
}

void RecoveryWriter::adopt(RecoveryFolder folder) {
  const std::lock_guard writing(writing_);
  folder_ = std::move(folder);
}

std::optional<Finding> RecoveryWriter::takeFailure() {
  const std::lock_guard guard(mutex_);
  return std::exchange(failure_, std::nullopt);
}

void RecoveryWriter::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    if (!due_) {
      if (isEnding_) return;
      wake_.wait(lock);
    } else if (isEnding_ || std::chrono::steady_clock::now() >= *due_) {
      lock.unlock();
      write();
      lock.lock();
    } else {
      wake_.wait_until(lock, std::chrono::steady_clock::time_point(*due_));
    }
  }
}

/// A write that fails is tried again with the next change.
void RecoveryWriter::write() {
  const std::lock_guard writing(writing_);
  std::vector<MenuChange> changes;
  RecoveryHead head;
  {
    const std::lock_guard guard(mutex_);
    if (!due_) return;  // discarded in the meantime
    due_.reset();
    changes = std::exchange(changes_, {});
    head = head_;
  }
  try {
    for (auto& change : changes) mirror_.apply(std::move(change));
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    head.time = std::chrono::duration_cast<std::chrono::seconds>(now).count();
    auto bytes = recoveryHeadText(head);
    mirror_.appendTo(bytes);
    if (!folder_) folder_ = RecoveryFolder::create(files_, stateFolder_);
    folder_->write(bytes);
    const std::lock_guard guard(mutex_);
    hasFailed_ = false;
  } catch (const FileError& error) {
    note(error);
  } catch (const std::exception& error) {
    note(FileError(stateFolder_, error.what()));
  }
}

void RecoveryWriter::note(const FileError& error) {
  const std::lock_guard guard(mutex_);
  if (!std::exchange(hasFailed_, true)) failure_ = error.finding();
}

}  // namespace nimbrel
