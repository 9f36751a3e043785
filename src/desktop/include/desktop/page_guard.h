#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWebEnginePage;

namespace nimbrel {

/// Watches the process of a page: tells if it does not answer, and ends it if it takes too much memory.
class PageGuard : public QObject {
  Q_OBJECT

 public:
  explicit PageGuard(QWebEnginePage& page);
  /// Ends the process if it does not answer. It would go on forever after its page.
  ~PageGuard() override;
  PageGuard(const PageGuard&) = delete;
  PageGuard& operator=(const PageGuard&) = delete;

  void stop();
  bool isAnswering() const { return isAnswering_; }
  /// The process was ended because of its memory.
  bool hasTakenTooMuch() const { return hasTakenTooMuch_; }

 signals:
  void answeringChanged(bool isAnswering);

 private:
  void watch();
  void ask();
  void setAnswering(bool isAnswering);

  QWebEnginePage& page_;
  QTimer timer_;
  QElapsedTimer sinceAnswer_;
  QElapsedTimer sinceQuestion_;
  bool isAnswering_ = true;
  bool hasTakenTooMuch_ = false;
};

}  // namespace nimbrel
