#pragma once

#include <QMimeData>
#include <QObject>

#include "platform/ports.h"

namespace nimbrel {

/// The format in which nodes travel between the program's windows, besides plain text.
inline constexpr const char* nodesFormat = "application/x-nimbrel-nodes";

void putContent(QMimeData& data, const NodeClipboard::Content& content);
NodeClipboard::Content contentOf(const QMimeData& data);

/// The system's clipboard as a port.
class SystemClipboard : public QObject, public NodeClipboard {
  Q_OBJECT

 public:
  SystemClipboard();

  void put(Content content) override;
  bool hasForeign() const override { return hasForeign_; }
  Content foreign() const override;

 signals:
  void changed();

 private:
  void look();

  bool hasForeign_ = false;
};

}  // namespace nimbrel
