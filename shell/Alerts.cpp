#include "shell/Alerts.h"

#include "shell/Strings.h"

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

std::optional<QString> askForText(const QString &title, const QString &label, QWidget *parent) {
    if (answers().text) {
        return answers().text();
    }
    QDialog dialog(parent);
    dialog.setObjectName("textDialog");
    dialog.setWindowTitle(localized(Table::menu, "Nerlo Pro"));
    auto *layout = new QVBoxLayout(&dialog);
    auto *message = new QLabel(title);
    auto *field = new QLineEdit;
    field->setObjectName("textDialogField");
    field->setAccessibleName(label);
    field->setMinimumWidth(320);
    message->setBuddy(field);
    auto *buttons = new QDialogButtonBox;
    QObject::connect(buttons->addButton(localized("OK"), QDialogButtonBox::AcceptRole),
                     &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(
        buttons->addButton(localized(Table::shortcut, "Cancel"), QDialogButtonBox::RejectRole),
        &QPushButton::clicked, &dialog, &QDialog::reject);
    layout->addWidget(message);
    layout->addWidget(field);
    layout->addWidget(buttons);
    field->setFocus();
    const bool accepted = dialog.exec() == QDialog::Accepted;
    giveBackTheKeyboard(parent);
    return accepted ? std::optional(field->text()) : std::nullopt;
}

} // namespace nerlo::shell
