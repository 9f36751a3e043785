#include "desktop/icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>

namespace nimbrel {
namespace {

/// Pixels: 16, 20 and 24 at the usual scale factors. Other sizes are scaled down from the next larger one.
constexpr std::array sizes{16, 20, 24, 25, 28, 30, 32, 35, 36, 40, 42, 48, 60, 64, 72, 96};

QPixmap rendered(QSvgRenderer& drawing, int size, double opacity) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setOpacity(opacity);
  drawing.render(&painter);
  return pixmap;
}

}  // namespace

QIcon drawnIcon(const QString& name, const QColor& ink) {
  QFile file(":/icons/" + name + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  QSvgRenderer drawing(file.readAll().replace("currentColor", ink.name().toLatin1()));
  constexpr double paleness = 0.35;
  QIcon icon;
  for (const int size : sizes) {
    icon.addPixmap(rendered(drawing, size, 1));
    icon.addPixmap(rendered(drawing, size, paleness), QIcon::Disabled);
  }
  return icon;
}

QIcon drawnIcon(const QString& name, const QColor& ink, const QColor& selectedInk) {
  auto icon = drawnIcon(name, ink);
  for (const int size : sizes) {
    auto pixmap = icon.pixmap(QSize(size, size), 1);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), selectedInk);
    painter.end();
    icon.addPixmap(pixmap, QIcon::Selected);
  }
  return icon;
}

QIcon applicationIcon() { return QIcon(":/icons/nimbrel.svg"); }

}  // namespace nimbrel
