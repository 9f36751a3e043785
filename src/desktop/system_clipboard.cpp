#include "desktop/system_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <memory>

#include "desktop/display_text.h"

namespace nimbrel {

void putContent(QMimeData& data, const NodeClipboard::Content& content) {
  data.setData(nodesFormat, QByteArray::fromStdString(content.nodes));
  data.setText(toDisplay(content.text));
}

NodeClipboard::Content contentOf(const QMimeData& data) {
  if (data.hasFormat(nodesFormat)) return {data.data(nodesFormat).toStdString(), {}};
  return {{}, fromDisplay(data.text())};
}

SystemClipboard::SystemClipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &SystemClipboard::look);
  look();
}

/// A text that was copied from a cell of this program is foreign, too: it is what was copied last.
void SystemClipboard::look() {
  const auto* clipboard = QGuiApplication::clipboard();
  const auto* data = clipboard->mimeData();
  const bool isOwn = clipboard->ownsClipboard() && data != nullptr && data->hasFormat(nodesFormat);
  const bool had = hasForeign_;
  hasForeign_ = !isOwn && data != nullptr && (data->hasFormat(nodesFormat) || data->hasText());
  if (had != hasForeign_) emit changed();
}

void SystemClipboard::put(Content content) {
  auto data = std::make_unique<QMimeData>();
  putContent(*data, content);
  QGuiApplication::clipboard()->setMimeData(data.release());
}

NodeClipboard::Content SystemClipboard::foreign() const {
  const auto* data = QGuiApplication::clipboard()->mimeData();
  return data == nullptr ? Content() : contentOf(*data);
}

}  // namespace nimbrel
