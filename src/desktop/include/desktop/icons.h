#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace nimbrel {

/// An icon of the program's set, with strokes in `ink`, paler when disabled. Empty if the set has no such name.
QIcon drawnIcon(const QString& name, const QColor& ink);
/// The same for a list, with all of the icon in `selectedInk` when selected.
QIcon drawnIcon(const QString& name, const QColor& ink, const QColor& selectedInk);

/// The icon of the program itself.
QIcon applicationIcon();

}  // namespace nimbrel
