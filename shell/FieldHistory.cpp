#include "shell/FieldHistory.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace nerlo::shell {

bool fieldCan(bool undo, const QWidget *field) {
    if (const auto *line = qobject_cast<const QLineEdit *>(field)) {
        return undo ? line->isUndoAvailable() : line->isRedoAvailable();
    }
    const auto *text = qobject_cast<const QPlainTextEdit *>(field);
    return text &&
           (undo ? text->document()->isUndoAvailable() : text->document()->isRedoAvailable());
}

bool isTextField(const QWidget *widget) {
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

} // namespace nerlo::shell
