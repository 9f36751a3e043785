#pragma once

#include <QApplication>
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

 private:
  void tell(const QString& text) const;
};

}  // namespace nimbrel
