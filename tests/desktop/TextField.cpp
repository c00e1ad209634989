// A program with one text field, into which somebody pastes: prints the field's text whenever it
// changes.
#include <QApplication>
#include <QLineEdit>
#include <iostream>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QLineEdit field;
    field.setWindowTitle("field");
    field.setMinimumWidth(400);
    QObject::connect(&field, &QLineEdit::textChanged,
                     [](const QString &text) { std::cout << text.toStdString() << std::endl; });
    field.show();
    return QApplication::exec();
}
