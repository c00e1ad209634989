#include "shell/Alerts.h"

#include "shell/Strings.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

namespace nerlo::shell {

namespace {

AlertAnswers &answers() {
    static AlertAnswers instance;
    return instance;
}

QMessageBox::Icon iconOf(Alert::Style style) {
    switch (style) {
    case Alert::Style::warning:
        return QMessageBox::Warning;
    case Alert::Style::critical:
        return QMessageBox::Critical;
    case Alert::Style::informational:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

void giveBackTheKeyboard(QWidget *parent) {
    if (parent && parent->window()->isVisible()) {
        parent->window()->activateWindow();
    }
}

void setAlertAnswers(AlertAnswers newAnswers) {
    answers() = std::move(newAnswers);
}

int runAlert(const Alert &alert, QWidget *parent) {
    if (answers().alert) {
        return answers().alert(alert);
    }
    QMessageBox box(iconOf(alert.style), localized(Table::menu, "Nerlo Pro"), alert.message,
                    QMessageBox::NoButton, parent);
    box.setObjectName("alert");
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(alert.informative);
    QList<QAbstractButton *> buttons;
    for (const QString &title : alert.buttons) {
        buttons.push_back(box.addButton(title, buttons.isEmpty() ? QMessageBox::AcceptRole
                                                                 : QMessageBox::RejectRole));
    }
    if (!buttons.isEmpty()) {
        box.setDefaultButton(static_cast<QPushButton *>(buttons[alert.focused]));
        box.setEscapeButton(buttons.last());
    }
    box.exec();
    giveBackTheKeyboard(parent);
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

std::optional<ChosenName> askForName(const NameQuestion &question, QWidget *parent) {
    if (answers().name) {
        return answers().name(question);
    }
    QDialog dialog(parent);
    dialog.setObjectName("nameDialog");
    dialog.setWindowTitle(localized(Table::menu, "Nerlo Pro"));
    auto *layout = new QVBoxLayout(&dialog);
    auto *message = new QLabel(question.message);
    auto *field = new QLineEdit;
    field->setObjectName("nameDialogField");
    field->setAccessibleName(question.nameLabel);
    field->setMinimumWidth(320);
    message->setBuddy(field);
    auto *beginning = new QComboBox;
    beginning->setObjectName("nameDialogBeginning");
    beginning->setAccessibleName(question.beginningLabel);
    for (const auto &row : question.beginnings) {
        beginning->addItem(row.title);
    }
    auto *label = new QLabel(question.beginningLabel);
    label->setBuddy(beginning);
    // A name that has been typed is not replaced by a suggestion.
    QObject::connect(beginning, &QComboBox::currentIndexChanged, field,
                     [&, suggested = QString()](int place) mutable {
                         if (field->text() == suggested) {
                             suggested = question.beginnings[place].suggestedName;
                             field->setText(suggested);
                         }
                     });
    auto *buttons = new QDialogButtonBox;
    QObject::connect(buttons->addButton(localized("OK"), QDialogButtonBox::AcceptRole),
                     &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(
        buttons->addButton(localized(Table::shortcut, "Cancel"), QDialogButtonBox::RejectRole),
        &QPushButton::clicked, &dialog, &QDialog::reject);
    for (QWidget *widget : {static_cast<QWidget *>(message), static_cast<QWidget *>(field),
                            static_cast<QWidget *>(label), static_cast<QWidget *>(beginning),
                            static_cast<QWidget *>(buttons)}) {
        layout->addWidget(widget);
    }
    field->setFocus();
    const bool accepted = dialog.exec() == QDialog::Accepted;
    giveBackTheKeyboard(parent);
    return accepted ? std::optional(ChosenName{field->text(), beginning->currentIndex()})
                    : std::nullopt;
}

} // namespace nerlo::shell
