// The sign beside what is not as the user wants it.
#pragma once

#include <QColor>
#include <QIcon>

class QPainter;
class QPalette;
class QRectF;

namespace nerlo::shortcuts {

// Amber that can be read on the palette's base.
QColor warningColor(const QPalette &palette);

// In the middle of `area`. Drawn, for not every font has the sign.
void drawWarningMark(QPainter &painter, const QRectF &area, const QColor &color);

// The same, in the colours that the program has when it is shown.
QIcon warningIcon();

} // namespace nerlo::shortcuts
