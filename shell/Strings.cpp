#include "shell/Strings.h"

#include <algorithm>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace nerlo::shell {

namespace {

const char *contextOf(Table table) {
    switch (table) {
    case Table::menu:
        return "Menu";
    case Table::shortcut:
        return "Shortcut";
    case Table::standard:
        break;
    }
    return "Localizable";
}

// The language that was found, empty for none.
QString install(QCoreApplication &application, const QLocale &locale, const QString &name,
                const QString &folder) {
    auto *translator = new QTranslator(&application);
    if (!translator->load(locale, name, QStringLiteral("_"), folder)) {
        delete translator;
        return {};
    }
    QCoreApplication::installTranslator(translator);
    return translator->language();
}

// The toolkit's own name for this key is the one on another system's keyboards.
class KeyNames final : public QTranslator {
  public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override {
        const bool meta = QByteArrayView(context) == "QShortcut" && QByteArrayView(text) == "Meta";
        return meta ? QStringLiteral("Super") : QString();
    }
};

} // namespace

QString localized(Table table, std::string_view key) {
    return QCoreApplication::translate(contextOf(table), std::string(key).c_str());
}

QString localized(std::string_view key) {
    return localized(Table::standard, key);
}

QString filled(QString text, std::initializer_list<QString> values) {
    const auto placeholder = QStringLiteral("%@");
    qsizetype at = 0;
    for (const QString &value : values) {
        at = text.indexOf(placeholder, at);
        if (at < 0) {
            break;
        }
        text.replace(at, placeholder.size(), value);
        at += value.size();
    }
    return text;
}

QString isolated(const QString &text) {
    const auto characters = text.toUcs4();
    const bool turns = std::ranges::any_of(characters, [](char32_t character) {
        const auto direction = QChar::direction(character);
        return direction == QChar::DirR || direction == QChar::DirAL;
    });
    if (!turns && QGuiApplication::isLeftToRight()) {
        return text;
    }
    constexpr QChar begin(0x2068); // goes by the first letter of the text
    constexpr QChar end(0x2069);
    return begin + text + end;
}

QString shortName(const QString &name) {
    constexpr int most = 60;
    const QString line = name.left(10 * most).simplified();
    return line.size() > most ? line.left(most) + QChar(0x2026) : line;
}

std::u16string localizedUtf16(Table table, std::u16string_view key) {
    const auto utf8 = QStringView(key).toUtf8();
    return localized(table, {utf8.data(), static_cast<std::size_t>(utf8.size())}).toStdU16String();
}

void installTranslations(QCoreApplication &application, const QLocale &locale) {
    const auto folder = QStringLiteral(":/i18n");
    // The translator that comes last is asked first.
    install(application, QLocale(QLocale::English, QLocale::UnitedStates),
            QStringLiteral("nerlo-pro"), folder);
    install(application, locale, QStringLiteral("qtbase"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    QCoreApplication::installTranslator(new KeyNames(&application));
    const QString language = install(application, locale, QStringLiteral("nerlo-pro"), folder);
    // The toolkit takes the direction from its own translations, which need not be installed.
    if (!language.isEmpty()) {
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    }
}

} // namespace nerlo::shell
