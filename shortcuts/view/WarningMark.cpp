#include "shortcuts/view/WarningMark.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>

namespace nerlo::shortcuts {

namespace {

using Draw = void (*)(QPainter &painter, const QRectF &area, const QColor &color);

class DrawnIcon final : public QIconEngine {
  public:
    DrawnIcon(Draw draw, QColor (*color)(const QPalette &palette))
        : draw_(draw)
        , color_(color) {}
    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State) override {
        const QPalette colors = QGuiApplication::palette();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        // An icon has no margin of its own.
        const qreal margin = area.height() * -0.2;
        draw_(*painter, QRectF(area).adjusted(margin, margin, -margin, -margin),
              mode == QIcon::Selected ? colors.color(QPalette::HighlightedText) : color_(colors));
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine *clone() const override { return new DrawnIcon(*this); }

  private:
    Draw draw_;
    QColor (*color_)(const QPalette &palette);
};

QColor textColor(const QPalette &palette) {
    return palette.color(QPalette::ButtonText);
}

// An arrow that turns back.
void drawReset(QPainter &painter, const QRectF &area, const QColor &color) {
    const qreal radius = std::min(area.width(), area.height()) * 0.24;
    const QPointF middle = area.center();
    const QRectF circle(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius);
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    constexpr int degree = 16;
    painter.drawArc(circle, -140 * degree, 290 * degree);
    const QPointF tip(middle.x() - radius * 0.87, middle.y() - radius * 0.5);
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-0.25, -0.75) * radius, tip, tip + QPointF(0.75, -0.15) * radius});
}

} // namespace

QColor warningColor(const QPalette &palette) {
    return palette.color(QPalette::Base).lightness() < 128 ? QColor(255, 190, 80)
                                                           : QColor(170, 85, 0);
}

void drawWarningMark(QPainter &painter, const QRectF &area, const QColor &color) {
    const qreal size = std::min(area.width(), area.height()) * 0.55;
    const QPointF middle = area.center();
    QPainterPath triangle({middle.x(), middle.y() - size / 2});
    triangle.lineTo(middle.x() + size * 0.58, middle.y() + size / 2);
    triangle.lineTo(middle.x() - size * 0.58, middle.y() + size / 2);
    triangle.closeSubpath();
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(triangle);
    painter.drawLine(QPointF(middle.x(), middle.y() - size * 0.15),
                     QPointF(middle.x(), middle.y() + size * 0.15));
    painter.drawPoint(QPointF(middle.x(), middle.y() + size * 0.35));
}

QIcon warningIcon() {
    return QIcon(new DrawnIcon(drawWarningMark, warningColor));
}

QIcon resetIcon() {
    return QIcon(new DrawnIcon(drawReset, textColor));
}

} // namespace nerlo::shortcuts
