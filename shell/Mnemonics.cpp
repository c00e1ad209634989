#include "shell/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <string_view>

namespace nerlo::shell {

namespace {

// Letters that every keyboard of their script has on a key of its own.
bool isTypable(QChar letter) {
    const auto script = letter.script();
    return letter.isDigit() ||
           (letter.isLetter() &&
            (script == QChar::Script_Latin || script == QChar::Script_Cyrillic ||
             script == QChar::Script_Greek || script == QChar::Script_Arabic));
}

QString escaped(QString text) {
    return text.replace('&', "&&");
}

} // namespace

QString withMnemonic(const QString &text, std::set<QChar> &used) {
    // First letters of words are found best.
    for (const bool onlyWordStarts : {true, false}) {
        for (qsizetype at = 0; at < text.size(); ++at) {
            const QChar letter = text[at].toLower();
            const bool startsWord = at == 0 || text[at - 1].isSpace();
            if (isTypable(letter) && (startsWord || !onlyWordStarts) &&
                used.insert(letter).second) {
                return escaped(text.left(at)) + '&' + escaped(text.mid(at));
            }
        }
    }
    for (const char16_t letter : std::u16string_view(u"abcdefghijklmnopqrstuvwxyz123456789")) {
        if (used.insert(letter).second) {
            return escaped(text) + " (&" + QChar(letter).toUpper() + ')';
        }
    }
    return escaped(text);
}

void assignMnemonics(QWidget &parent, std::set<QChar> &used) {
    // What is pressed comes before what is only reached, should the letters not be enough.
    for (auto *button : parent.findChildren<QAbstractButton *>()) {
        if (!button->text().isEmpty()) {
            button->setText(withMnemonic(button->text(), used));
        }
    }
    for (auto *label : parent.findChildren<QLabel *>()) {
        if (label->buddy()) {
            label->setText(withMnemonic(label->text(), used));
        }
    }
}

} // namespace nerlo::shell
