#include "engine/Operations.h"
#include "engine/QuoteStyles.h"
#include "settings/OptionLists.h"
#include "settings/SettingsKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace nerlo {
namespace {

const QStringList languages = {"ar", "de", "el", "en", "es", "fr",      "it",     "ja",
                               "pl", "pt", "ru", "sv", "uk", "zh_Hans", "zh_Hant"};

struct Message {
    QString text;
    bool unfinished = false;
};
using Key = std::pair<QString, QString>; // context, source
using Catalogue = std::map<Key, Message>;

Catalogue readCatalogue(const QString &language) {
    Catalogue catalogue;
    QFile file(NERLO_SOURCE_DIR "/translations/nerlo-pro_" + language + ".ts");
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << language.toStdString();
    QXmlStreamReader xml(&file);
    Key key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            key.first = xml.readElementText();
        } else if (xml.name() == u"source") {
            key.second = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool unfinished = xml.attributes().hasAttribute("type");
            const bool isNew =
                catalogue.emplace(key, Message{xml.readElementText(), unfinished}).second;
            EXPECT_TRUE(isNew) << "twice: " << key.second.toStdString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << language.toStdString() << xml.errorString().toStdString();
    return catalogue;
}

std::string nameOf(const QString &language, const Key &key) {
    return (language + ": " + key.first + " / " + key.second).toStdString();
}

// What the program fills in or reads: "%@", "%1", "{search}", marks of Markdown. A translation must
// keep it.
QStringList placeholders(const QString &text) {
    static const QRegularExpression pattern("%@|%[0-9]|\\{[a-z]+\\}|<[a-z]+>|`[^`]+`|### |\\*\\*");
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        found.push_back(match.next().captured());
    }
    found.sort();
    return found;
}

QString compiled(const QString &language) {
    return ":/i18n/nerlo-pro_" + language + ".qm";
}

TEST(Catalogues, EveryLanguageHasTheKeysAndPlaceholdersOfTheEnglishOne) {
    const Catalogue english = readCatalogue("en");
    ASSERT_GT(english.size(), 200U);
    for (const QString &language : languages) {
        const Catalogue catalogue = readCatalogue(language);
        std::size_t same = 0;
        for (const auto &[key, message] : english) {
            const auto row = catalogue.find(key);
            if (row == catalogue.end()) {
                ADD_FAILURE() << "missing in " << nameOf(language, key);
                continue;
            }
            EXPECT_FALSE(row->second.unfinished) << nameOf(language, key);
            EXPECT_FALSE(row->second.text.trimmed().isEmpty()) << nameOf(language, key);
            EXPECT_EQ(placeholders(row->second.text), placeholders(message.text))
                << nameOf(language, key);
            same += row->second.text == message.text ? 1 : 0;
        }
        EXPECT_EQ(catalogue.size(), english.size()) << "left over in " << language.toStdString();
        EXPECT_LT(language == "en" ? 0 : same, english.size() / 10)
            << "a copy: " << language.toStdString();
    }
}

TEST(Catalogues, SamplesKeepTheirListAndChangeTheirQuotesAtAFirstStart) {
    for (const QString &language : languages) {
        const Catalogue catalogue = readCatalogue(language);
        const auto sample = std::ranges::find_if(
            catalogue, [](const auto &row) { return row.first.second == "sPreviewSample"; });
        ASSERT_NE(sample, catalogue.end());
        engine::CleaningOptions options;
        options.setAllBools(
            settings::firstStartProfile(QString(language).replace(u'_', u'-').toStdString()));
        const std::u16string text = sample->second.text.toStdU16String();
        const auto cleaned =
            QString::fromStdU16String(engine::runPipeline(text, {options, "en_US"}));
        const auto &single = engine::singleQuoteStyles.at(
            static_cast<std::size_t>(options.udChangeQuotesSingleOption));
        const auto &twofold = engine::doubleQuoteStyles.at(
            static_cast<std::size_t>(options.udChangeQuotesDoubleOption));
        const auto count = [](const QString &in, std::u16string_view mark) {
            return in.count(QStringView(mark).toString());
        };
        EXPECT_EQ(count(cleaned, twofold.left), count(sample->second.text, single.left))
            << cleaned.toStdString();
        EXPECT_GE(cleaned.count(u'\n'), 3) << cleaned.toStdString();
        if (language == "ja" || language.startsWith("zh")) {
            EXPECT_EQ(cleaned.count(u' '), 0) << cleaned.toStdString();
        }
    }
}

TEST(Catalogues, TheProgramHoldsEachAsItStands) {
    QStringList files;
    for (const QString &language : languages) {
        files.push_back("nerlo-pro_" + language + ".qm");
        QTranslator translator;
        ASSERT_TRUE(translator.load(compiled(language))) << language.toStdString();
        for (const auto &[key, message] : readCatalogue(language)) {
            EXPECT_EQ(translator.translate(key.first.toUtf8(), key.second.toUtf8()), message.text)
                << nameOf(language, key);
        }
    }
    EXPECT_EQ(QDir(":/i18n").entryList(QDir::Files, QDir::Name), files);
}

// Which catalogue QTranslator chooses for the user's locale.
TEST(Catalogues, ALocaleFindsItsLanguage) {
    struct Row {
        const char *locale;
        const char *code; // empty: none, so the texts are English
    };
    constexpr Row rows[] = {
        {"de_AT", "de"},      {"pt_BR", "pt"}, {"zh_CN", "zh_Hans"}, {"zh_TW", "zh_Hant"},
        {"ar_EG", "ar"},      {"en_GB", "en"}, {"uk_UA", "uk"},      {"vo", ""},
        {"zh_HK", "zh_Hant"}, {"pt_PT", "pt"}, {"zh_SG", "zh_Hans"},
    };
    for (const Row &row : rows) {
        QTranslator translator;
        const bool found = translator.load(QLocale(row.locale), "nerlo-pro", "_", ":/i18n");
        EXPECT_EQ(found, *row.code != '\0') << row.locale;
        if (found) {
            EXPECT_EQ(translator.filePath(), compiled(row.code)) << row.locale;
        }
    }
}

TEST(Catalogues, OptionListsAreCutIntoAsManyItemsAsInEnglish) {
    const auto listsOf = [](const QString &language) {
        QTranslator translator;
        EXPECT_TRUE(translator.load(compiled(language)));
        return settings::optionLists([&](std::u16string_view key) {
            return translator.translate("Localizable", QStringView(key).toUtf8()).toStdU16String();
        });
    };
    const auto english = listsOf("en");
    for (const QString &language : languages) {
        const auto lists = listsOf(language);
        ASSERT_EQ(lists.size(), english.size());
        for (std::size_t i = 0; i < lists.size(); ++i) {
            const auto &items = lists[i].items;
            EXPECT_EQ(items.size(), english[i].items.size())
                << language.toStdString() << lists[i].key;
            EXPECT_EQ(std::set(items.begin(), items.end()).size(), items.size())
                << "two items look the same: " << language.toStdString() << lists[i].key;
            EXPECT_EQ(std::ranges::count(items, u""), 0) << language.toStdString() << lists[i].key;
        }
    }
}

TEST(Catalogues, EveryKeyInTheShellHasAText) {
    std::set<QString> keys;
    std::set<QString> titles;
    for (const auto &[key, message] : readCatalogue("en")) {
        (key.first == "Menu" ? titles : keys).insert(key.second);
    }
    static const QRegularExpression literal("\"(s[A-Z]\\w*)\"");
    static const QRegularExpression title("(?:title\\(|Table::menu, )\"([^\"]+)\"");
    for (const auto &source : QDir(NERLO_SOURCE_DIR "/shell").entryInfoList({"*.cpp"})) {
        QFile file(source.filePath());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const QString text = file.readAll();
        for (auto match = title.globalMatch(text); match.hasNext();) {
            const QString key = match.next().captured(1);
            EXPECT_TRUE(titles.contains(key)) << key.toStdString();
        }
        for (auto match = literal.globalMatch(text); match.hasNext();) {
            const QString key = match.next().captured(1);
            const bool setting = settings::findKey(key.toStdString()) ||
                                 settings::findKey("ud" + key.mid(1).toStdString());
            const auto next = keys.lower_bound(key);
            const bool keyOrPrefix = next != keys.end() && next->startsWith(key);
            EXPECT_TRUE(setting || keyOrPrefix)
                << source.fileName().toStdString() << ": " << key.toStdString();
        }
    }
    const auto lists = QDir(NERLO_SOURCE_DIR "/assets/rules").entryInfoList({"*.nerlo-rules"});
    ASSERT_FALSE(lists.empty());
    for (const auto &info : lists) {
        QFile file(info.filePath());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        static const QRegularExpression line("^title (.+)$", QRegularExpression::MultilineOption);
        const QString key = line.match(file.readAll()).captured(1);
        EXPECT_TRUE(keys.contains(key)) << info.fileName().toStdString() << key.toStdString();
    }
}

} // namespace
} // namespace nerlo
