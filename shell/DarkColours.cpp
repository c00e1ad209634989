#include "shell/DarkColours.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleOption>
#include <utility>

namespace nerlo::shell {

namespace {

bool isDark(const QColor &colour) {
    return colour.lightness() < 128;
}

QColor faded(QColor colour, float opacity) {
    colour.setAlphaF(opacity);
    return colour;
}
constexpr float hint = 0.6F;
constexpr float greyed = 0.45F;

// What is dark although it stands on dark. Many desktops tell only their main colours, and the
// others are made from them, or are those of a white window.
QPalette lightened(const QPalette &given) {
    QPalette own;
    if (!isDark(given.color(QPalette::Base)) || isDark(given.color(QPalette::Text))) {
        return own;
    }
    const auto lighten = [&](QPalette::ColorGroup group, QPalette::ColorRole role, float opacity) {
        if (isDark(given.color(group, role))) {
            own.setColor(group, role,
                         faded(given.color(QPalette::Active, QPalette::Text), opacity));
        }
    };
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        lighten(QPalette::Disabled, role, greyed);
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        lighten(group, QPalette::PlaceholderText, group == QPalette::Disabled ? greyed : hint);
    }
    return own;
}

class Lightener final : public QObject {
  public:
    Lightener()
        : QObject(qApp) {
        qApp->installEventFilter(this);
        update();
    }

  private:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && !changing_) {
            update();
        }
        return false;
    }
    void update() {
        const QScopedValueRollback changing(changing_, true);
        if (std::exchange(changed_, false)) {
            QApplication::setPalette(QPalette()); // the desktop's
        }
        const QPalette own = lightened(QApplication::palette());
        if (own.resolveMask() != 0) {
            QApplication::setPalette(own);
            changed_ = true;
        }
    }

    bool changing_ = false;
    bool changed_ = false;
};

constexpr auto plainStyle = "fusion"; // which the toolkit takes where the desktop has none for it

// It draws the line round a box to tick darker than what is round it, which is dark already.
class OutlinedBoxes final : public QProxyStyle {
  public:
    OutlinedBoxes()
        : QProxyStyle(plainStyle) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool radio = element == PE_IndicatorRadioButton;
        const bool box =
            element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        if (!(box || radio) || !isDark(option->palette.color(QPalette::Base))) {
            return;
        }
        painter->save();
        painter->setPen(faded(option->palette.color(QPalette::WindowText), hint));
        painter->setBrush(Qt::NoBrush);
        painter->setRenderHint(QPainter::Antialiasing, radio);
        const QRect line = option->rect.adjusted(0, 0, -1, -1);
        radio ? painter->drawEllipse(line) : painter->drawRect(line);
        painter->restore();
    }
};

} // namespace

void keepDarkColoursReadable() {
    if (QApplication::style()->name() == plainStyle) {
        QApplication::setStyle(new OutlinedBoxes);
    }
    new Lightener;
}

} // namespace nerlo::shell
