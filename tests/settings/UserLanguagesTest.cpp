#include "settings/UserLanguages.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace nerlo::settings {

namespace {

TEST(UserLanguages, CodesOfTheQuoteTable) {
    const struct {
        const char *locale;
        const char *code;
    } rows[] = {
        {"de_DE.UTF-8", "de"},
        {"de", "de"},
        {"pt_BR.UTF-8", "pt-BR"},
        {"pt_PT", "pt"},
        {"es_MX", "es-MX"},
        {"zh_TW.UTF-8", "zh-Hant"},
        {"zh_HK", "zh-Hant"},
        {"zh_CN", "zh-Hans"},
        {"zh", "zh-Hans"},
        {"nn_NO.UTF-8", "nb"},
        {"no", "nb"},
        {"ca_ES@valencia", "ca"},
        {"C", ""},
        {"C.UTF-8", ""},
        {"POSIX", ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(quoteLanguage(row.locale), row.code) << row.locale;
    }
}

TEST(UserLanguages, OrderOfTheEnvironment) {
    const struct {
        const char *language;
        const char *all;
        const char *messages;
        const char *lang;
        std::vector<std::string> codes;
    } rows[] = {
        {"", "", "", "", {"en"}},
        {"", "", "", "fr_FR.UTF-8", {"fr"}},
        {"", "", "it_IT", "fr_FR", {"it"}},
        {"", "ja_JP", "it_IT", "fr_FR", {"ja"}},
        {"sv:de_DE:sv", "", "", "fr_FR", {"sv", "de", "fr"}},
        {"sv", "C", "", "fr_FR", {"en"}},
        {"sv", "", "", "", {"en"}},
    };
    for (const auto &row : rows) {
        setenv("LANGUAGE", row.language, 1);
        setenv("LC_ALL", row.all, 1);
        setenv("LC_MESSAGES", row.messages, 1);
        setenv("LANG", row.lang, 1);
        EXPECT_EQ(userLanguages(), row.codes)
            << row.language << '|' << row.all << '|' << row.messages << '|' << row.lang;
    }
}

} // namespace

} // namespace nerlo::settings
