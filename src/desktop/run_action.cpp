#include "desktop/run_action.h"

#include <QDebug>
#include <QStringList>

#include "desktop/display_text.h"
#include "platform/file_error.h"

namespace nimbrel {
namespace {

void log(const QString& error) { qCritical().noquote() << error; }

std::function<void(const QString&)>& errorReporter() {
  static std::function<void(const QString&)> reporter = log;
  return reporter;
}

void report(const QString& error) {
  try {
    errorReporter()(error);
  } catch (const std::exception& failure) {
    log(error);
    log(errorText(failure));
  }
}

}  // namespace

void setErrorReporter(std::function<void(const QString& text)> reporter) {
  errorReporter() = reporter ? std::move(reporter) : log;
}

void runAction(const Action& action, std::initializer_list<Action> afterwards) {
  QStringList errors;
  const auto run = [&errors](const Action& one) {
    try {
      one();
    } catch (const std::exception& error) {
      errors += errorText(error);
    }
  };
  run(action);
  for (const auto& next : afterwards) run(next);
  for (const auto& error : errors) report(error);
}

QString errorText(const std::exception& error) {
  const auto* file = dynamic_cast<const FileError*>(&error);
  return file == nullptr ? QString::fromUtf8(error.what())
                         : toDisplayPath(file->finding().path) + ": " + toDisplay(file->finding().text());
}

}  // namespace nimbrel
