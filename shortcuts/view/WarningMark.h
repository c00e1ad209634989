// Signs that are drawn: beside a control whose setting does not work, and on a button that resets
// one.
#pragma once

#include <QColor>
#include <QIcon>

class QPainter;
class QPalette;
class QRectF;

namespace nerlo::shortcuts {

// Amber that can be read on the palette's base.
QColor warningColor(const QPalette &palette);

// In the middle of `area`. Drawn, because not every font has the sign.
void drawWarningMark(QPainter &painter, const QRectF &area, const QColor &color);

// The same, in the colours that the program has when it is shown.
QIcon warningIcon();
// An arrow that turns back, likewise.
QIcon resetIcon();

} // namespace nerlo::shortcuts
