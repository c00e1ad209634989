// Questions and messages. Tests set the answer beforehand, and no window opens.
//
// Main thread only.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <optional>

namespace nerlo::shell {

struct Alert {
    enum class Style { informational, warning, critical };
    Style style = Style::informational;
    QString message;
    QString informative;
    QStringList buttons;
    int focused = 0; // the place of the button that Return and Space press
};

// Shows the alert and waits; the place of the button that was pressed, or -1 when it was closed
// otherwise.
int runAlert(const Alert &alert, QWidget *parent);

// Asks for a line of text; nothing when cancelled.
std::optional<QString> askForText(const QString &title, const QString &label, QWidget *parent);

// Once a dialog of `parent`, which may be null, is closed: some window managers give the keyboard
// to no window then.
void giveBackTheKeyboard(QWidget *parent);

// In place of a person, until it is set to nothing again.
struct AlertAnswers {
    std::function<int(const Alert &)> alert;
    std::function<std::optional<QString>()> text;
};
void setAlertAnswers(AlertAnswers answers);

} // namespace nerlo::shell
