#include "shell/Controls.h"

#include "shell/Strings.h"

#include <QTextDocument>
#include <QWidget>

namespace nerlo::shell {

QString plainTooltip(const QString &text) {
    return Qt::convertFromPlainText(text, Qt::WhiteSpacePre);
}

void describeAs(QWidget &widget, const QString &objectName, const QString &name,
                const QString &tip) {
    widget.setObjectName(objectName);
    widget.setAccessibleName(name);
    widget.setAccessibleDescription(tip);
    widget.setToolTip(plainTooltip(tip));
}

void describe(QWidget &widget, const char *objectName, std::string_view nameKey,
              std::string_view tipKey) {
    describeAs(widget, objectName, localized(nameKey), localized(tipKey));
}

} // namespace nerlo::shell
