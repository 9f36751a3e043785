#include "desktop/sheet/swatch.h"

namespace nimbrel {
namespace {

QColor colourOf(const Rgb& colour) { return {colour.red, colour.green, colour.blue}; }

/// A pattern brush would be too fine on screens of high resolution.
void hatchDownwards(QPainter& painter, const QRect& box) {
  constexpr int gap = 5;
  painter.setClipRect(box);
  painter.setPen(Qt::black);  // the fill is light in every palette
  for (int x = box.left() - box.height(); x < box.right(); x += gap) {
    painter.drawLine(x, box.top(), x + box.height(), box.bottom() + 1);
  }
}

}  // namespace

void paintSwatch(QPainter& painter, const QRect& square, const Swatch& swatch, const QColor& ink) {
  constexpr int inset = 1;
  const auto box = square.adjusted(inset, inset, -inset, -inset);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(box, colourOf(swatch.value_or(noColourFill)));
  if (!swatch) hatchDownwards(painter, box);
  painter.setPen(ink);
  painter.drawRect(box.adjusted(0, 0, -1, -1));
  painter.restore();
}

}  // namespace nimbrel
