#include "shell/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <functional>
#include <map>
#include <string_view>
#include <vector>

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

// The line under a letter would part it from the neighbours that it is joined to.
bool isJoined(const QString &text, qsizetype at) {
    const auto joins = [&](qsizetype place) {
        return place >= 0 && place < text.size() &&
               text[place].joiningType() == QChar::Joining_Dual;
    };
    return text[at].script() == QChar::Script_Arabic && (joins(at) || joins(at - 1));
}

QString escaped(QString text) {
    return text.replace('&', "&&");
}

// The places of the letters that could be underlined, best first.
std::vector<qsizetype> placesIn(const QString &text) {
    std::vector<qsizetype> places;
    for (const bool wordStarts : {true, false}) {
        for (qsizetype at = 0; at < text.size(); ++at) {
            const bool startsWord = at == 0 || text[at - 1].isSpace();
            if (startsWord == wordStarts && isTypable(text[at]) && !isJoined(text, at)) {
                places.push_back(at);
            }
        }
    }
    return places;
}

// Gives out letters so that as many texts as possible get one of their own. A text whose letters
// are all taken makes one of their holders move to another letter.
class Sharing {
  public:
    Sharing(const QStringList &texts, const std::set<QChar> &used)
        : texts_(texts)
        , used_(used)
        , places_(static_cast<std::size_t>(texts.size()), -1) {
        for (qsizetype text = 0; text < texts.size(); ++text) {
            std::set<QChar> asked;
            find(text, asked);
        }
    }

    // -1 for none.
    qsizetype placeOf(qsizetype text) const { return places_[static_cast<std::size_t>(text)]; }

  private:
    bool find(qsizetype text, std::set<QChar> &asked) {
        const auto places = placesIn(texts_[text]);
        for (const bool free : {true, false}) {
            for (const qsizetype place : places) {
                const QChar letter = texts_[text][place].toLower();
                const auto holder = holders_.find(letter);
                if (used_.contains(letter) || (holder == holders_.end()) != free ||
                    !asked.insert(letter).second) {
                    continue;
                }
                if (free || find(holder->second, asked)) {
                    holders_[letter] = text;
                    places_[static_cast<std::size_t>(text)] = place;
                    return true;
                }
            }
        }
        return false;
    }

    const QStringList &texts_;
    const std::set<QChar> &used_;
    std::map<QChar, qsizetype> holders_;
    std::vector<qsizetype> places_;
};

} // namespace

QStringList withMnemonics(const QStringList &texts, std::set<QChar> &used) {
    const Sharing sharing(texts, used);
    QStringList result;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const qsizetype at = sharing.placeOf(i);
        if (at >= 0) {
            used.insert(texts[i][at].toLower());
            result.push_back(escaped(texts[i].left(at)) + '&' + escaped(texts[i].mid(at)));
        } else {
            result.push_back(escaped(texts[i]));
        }
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (!placesIn(texts[i]).empty()) {
            continue; // it has a letter, or all of its letters are taken
        }
        for (const char16_t letter : std::u16string_view(u"abcdefghijklmnopqrstuvwxyz123456789")) {
            if (used.insert(letter).second) {
                result[i] += " (&" + QString(QChar(letter).toUpper()) + ')';
                break;
            }
        }
    }
    return result;
}

void assignMnemonics(QWidget &parent, std::set<QChar> &used) {
    // Buttons and boxes come before labels, in case there are not enough letters: their letter
    // presses them, a label's only moves the focus.
    std::vector<std::function<void(const QString &)>> setters;
    QStringList texts;
    for (auto *button : parent.findChildren<QAbstractButton *>()) {
        if (!button->text().isEmpty()) {
            texts.push_back(button->text());
            setters.emplace_back([button](const QString &text) { button->setText(text); });
        }
    }
    for (auto *label : parent.findChildren<QLabel *>()) {
        if (label->buddy()) {
            texts.push_back(label->text());
            setters.emplace_back([label](const QString &text) { label->setText(text); });
        }
    }
    const QStringList marked = withMnemonics(texts, used);
    for (qsizetype i = 0; i < marked.size(); ++i) {
        setters[static_cast<std::size_t>(i)](marked[i]);
    }
}

} // namespace nerlo::shell
