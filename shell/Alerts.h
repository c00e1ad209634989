// Questions and messages. Tests set the answer beforehand, and no window opens.
//
// Main thread only.
#pragma once

#include <QList>
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

// A name, and what the thing of that name begins with.
struct NameQuestion {
    struct Beginning {
        QString title;
        QString suggestedName; // may be empty
    };
    QString message;
    QString nameLabel;
    QString beginningLabel;
    QList<Beginning> beginnings; // the first one is chosen until somebody chooses another
};
struct ChosenName {
    QString name;
    int beginning = 0; // its place
};
// Nothing when cancelled.
std::optional<ChosenName> askForName(const NameQuestion &question, QWidget *parent);

// Once a dialog of `parent`, which may be null, is closed: some window managers give the keyboard
// to no window then.
void giveBackTheKeyboard(QWidget *parent);

// In place of a person, until it is set to nothing again.
struct AlertAnswers {
    std::function<int(const Alert &)> alert;
    std::function<std::optional<ChosenName>(const NameQuestion &)> name;
};
void setAlertAnswers(AlertAnswers answers);

} // namespace nerlo::shell
