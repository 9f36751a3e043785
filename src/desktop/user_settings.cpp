#include "desktop/user_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include "desktop/display_text.h"
#include "text/product.h"

namespace nimbrel {
namespace {

QString path(std::string_view section, std::string_view key) {
  return toDisplay(section) + '/' + toDisplay(key);
}

}  // namespace

UserSettings::UserSettings()
    : store_(QSettings::IniFormat, QSettings::UserScope, toDisplay(productTitle), toDisplay(productTitle)) {
  constexpr int pause = 1000;  // milliseconds
  retry_.setInterval(pause);
  QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { write(0); });
}

UserSettings::~UserSettings() {
  constexpr int lastWait = 1000;  // milliseconds
  write(lastWait);
}

std::string UserSettings::GetSetting(std::string_view section, std::string_view key,
                                     std::string_view standard) const {
  const auto waiting = waiting_.find(path(section, key));
  if (waiting != waiting_.end()) return fromDisplay(waiting->second);
  const auto value = store_.value(path(section, key));
  return value.isValid() ? fromDisplay(value.toString()) : std::string(standard);
}

/// Writes at once, if possible: another instance may start before this one ends.
void UserSettings::SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
  waiting_[path(section, key)] = toDisplay(value);
  write(0);
}

/// `QSettings` waits for the lock of its file without a limit. So nothing is given to it while that is taken.
void UserSettings::write(int patience) {
  if (waiting_.empty()) return;
  QDir().mkpath(QFileInfo(store_.fileName()).path());
  QLockFile lock(store_.fileName() + ".lock");
  if (!lock.tryLock(patience) && lock.error() == QLockFile::LockFailedError) {
    retry_.start();
    return;
  }
  lock.unlock();
  retry_.stop();
  for (const auto& [name, value] : waiting_) store_.setValue(name, value);
  waiting_.clear();
  store_.sync();
}

}  // namespace nimbrel
