#include "shell/Controls.h"

#include "shell/Strings.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QTextDocument>
#include <QTreeWidget>
#include <QWidget>

namespace nerlo::shell {

namespace {

// Hints as light or dark as the texts, now and when the desktop changes its colours.
class HintKeeper final : public QObject {
  public:
    HintKeeper()
        : QObject(qApp) {
        qApp->installEventFilter(this);
        update();
    }

  private:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
            update();
        }
        return false;
    }
    static void update() {
        const QPalette given = QApplication::palette();
        const auto isDark = [&](QPalette::ColorRole role) {
            return given.color(role).lightness() < 128;
        };
        if (isDark(QPalette::PlaceholderText) == isDark(QPalette::Text)) {
            return;
        }
        QPalette own;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QColor hint = given.color(group, QPalette::Text);
            hint.setAlphaF(0.6F);
            own.setColor(group, QPalette::PlaceholderText, hint);
        }
        QApplication::setPalette(own);
    }
};

} // namespace

void setTip(QWidget &widget, const QString &tip) {
    widget.setToolTip(Qt::convertFromPlainText(tip, Qt::WhiteSpacePre));
    // Without one of its own, the description would be the tooltip with its markup.
    widget.setAccessibleDescription(tip);
}

void describeAs(QWidget &widget, const QString &objectName, const QString &name,
                const QString &tip) {
    widget.setObjectName(objectName);
    widget.setAccessibleName(name);
    setTip(widget, tip);
}

void describe(QWidget &widget, const char *objectName, std::string_view nameKey,
              std::string_view tipKey) {
    describeAs(widget, objectName, localized(nameKey), localized(tipKey));
}

void setUpPairs(QTreeWidget &list) {
    list.setHeaderLabels({{}, {}}); // never shown; without them a screen reader finds numbers
    list.setHeaderHidden(true);
    list.setRootIsDecorated(false);
    list.setUniformRowHeights(true);
    list.setTabKeyNavigation(false);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.header()->setStretchLastSection(false);
    list.header()->setMinimumSectionSize(0);
    list.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list.header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
}

void keepHintsReadable() {
    new HintKeeper;
}

} // namespace nerlo::shell
