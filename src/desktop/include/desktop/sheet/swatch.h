#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

#include "properties/cell_text.h"

namespace nimbrel {

/// Paints the swatch of a colour cell, framed in `ink`, into a square as high as the cell.
void paintSwatch(QPainter& painter, const QRect& square, const Swatch& swatch, const QColor& ink);

}  // namespace nimbrel
