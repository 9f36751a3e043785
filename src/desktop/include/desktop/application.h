#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace nimbrel {

/// Reports what nothing else has caught, and goes on.
class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// Told what went wrong; a form of the author's own is none of its business.
  std::function<void(const QString& text)> report;

  bool notify(QObject* receiver, QEvent* event) override;
  /// Reports what was caught elsewhere.
  void tell(const std::exception& error) const;
  /// File and reason, for the author.
  static QString textOf(const std::exception& error);
};

}  // namespace nimbrel
