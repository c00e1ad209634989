#include "settings/UserLocale.h"

#include <gtest/gtest.h>

namespace nerlo::settings {

namespace {

TEST(UserLocale, NamesOfEverySpelling) {
    const struct {
        const char *name;
        std::optional<std::string> id;
    } rows[] = {
        {"de_DE.UTF-8", "de_DE"},
        {"de_DE@euro", "de_DE"},
        {"de_DE.ISO-8859-15@euro", "de_DE"},
        {"sr_RS.UTF-8@latin", "sr_Latn_RS"},
        {"uz@cyrillic", "uz_Cyrl"},
        {"de@collation=phonebook", "de@collation=phonebook"},
        {"zh-Hant-TW", "zh-Hant-TW"},
        {"C", "en_US"},
        {"C.UTF-8", "en_US"},
        {"POSIX", "en_US"},
        {"", "en_US"},
        {"../../etc/passwd", std::nullopt},
        {"de DE", std::nullopt},
        {"_DE", std::nullopt},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(localeId(row.name), row.id) << row.name;
    }
    EXPECT_EQ(localeId(std::string(101, 'a')), std::nullopt);
}

} // namespace

} // namespace nerlo::settings
