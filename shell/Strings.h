// The texts that a person sees, each looked up by its key in one of three string tables.
//
// The tables are contexts of translations/*.ts. Where a language has no text, the English one of
// nerlo-pro_en.ts is given, and the key itself where there is none either. Main thread only.
#pragma once

#include <QLocale>
#include <QString>
#include <string>
#include <string_view>

class QCoreApplication;

namespace nerlo::shell {

enum class Table {
    standard, // "Localizable": most keys begin with "s"
    menu,     // "Menu": the keys are the English titles
    shortcut, // "Shortcut": texts of the shortcut control
};

QString localized(Table table, std::string_view key);
// From the standard table.
QString localized(std::string_view key);

// The text with its placeholders "%@" replaced, one by one, by `values`, which are not looked at
// again.
QString filled(QString text, std::initializer_list<QString> values);

// A text of the user's within one of ours: whichever way the one is read, the other keeps its
// order. As it is where both are read from left to right, for what is copied out of a message has
// to work elsewhere.
QString isolated(const QString &text);

// A name that a file may have given, in one line of a length that a menu can show.
QString shortName(const QString &name);

// For the layers without Qt: keys and texts in UTF-16.
std::u16string localizedUtf16(Table table, std::u16string_view key);

// Where there are no texts for the locale's language they are English. Also sets the direction of
// the layout.
void installTranslations(QCoreApplication &application, const QLocale &locale);

} // namespace nerlo::shell
