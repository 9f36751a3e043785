#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace nimbrel {

/// A drawing of the program's icon set by its name, its strokes in `ink`; paler where it is disabled. Empty for a
/// name that the set lacks.
QIcon drawnIcon(const QString& name, const QColor& ink);
/// The same for a list, drawn in `selectedInk` alone where it is selected.
QIcon drawnIcon(const QString& name, const QColor& ink, const QColor& selectedInk);

/// The program's own icon, in its colours.
QIcon applicationIcon();

}  // namespace nimbrel
