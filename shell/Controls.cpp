#include "shell/Controls.h"

#include "shell/Strings.h"

#include <QHeaderView>
#include <QTextDocument>
#include <QTreeWidget>
#include <QWidget>

namespace nerlo::shell {

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

} // namespace nerlo::shell
