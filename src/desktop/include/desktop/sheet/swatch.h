#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

#include "properties/cell_text.h"

namespace nimbrel {

/// Paints the small picture of a colour cell into a square as high as the cell, in `ink`; sharp on any screen.
void paintSwatch(QPainter& painter, const QRect& square, const Swatch& swatch, const QColor& ink);

}  // namespace nimbrel
