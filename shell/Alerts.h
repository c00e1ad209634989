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
    QStringList buttons; // the first is the default one
};

// Shows the alert and waits; the place of the button that was pressed, or -1 when it was closed
// otherwise.
int runAlert(const Alert &alert, QWidget *parent);

// Asks for a line of text; nothing when cancelled.
std::optional<QString> askForText(const QString &title, const QString &label, QWidget *parent);

// In place of a person, until it is set to nothing again.
struct AlertAnswers {
    std::function<int(const Alert &)> alert;
    std::function<std::optional<QString>()> text;
};
void setAlertAnswers(AlertAnswers answers);

} // namespace nerlo::shell
