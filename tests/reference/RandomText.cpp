#include "tests/reference/RandomText.h"

#include <array>
#include <cstdio>
#include <vector>

namespace nerlo::reference {

namespace {

using namespace std::string_view_literals;

constexpr std::u16string_view plain[] = {
    u" ",
    u" ",
    u"  ",
    u"\u00A0",
    u"\u00A0\u00A0",
    u"\t",
    u"\r\n",
    u"\r",
    u"\n",
    u"\n\n",
    u"a",
    u"b",
    u"o",
    u"o\t",
    u"A",
    u"Z",
    u".",
    u"...",
    u"\u2026",
    u". ",
    u"?",
    u"-",
    u"- ",
    u"\u2010",
    u"\u2013",
    u"\u2212",
    u"\u2010 \r\n",
    u"\u2022",
    u"\u2022 ",
    u"\u27A2",
    u"\u25E6",
    u"\u00B7",
    u"\u3002",
    u"\u30FB",
    u"\u2024",
    u">",
    u"<",
    u"_",
    u",",
    u":",
    u";",
    u"'",
    u"\u2019",
    u"@",
    u"&",
    u"\u00E9",
    u"\u00DF",
    u"\u0130",
    u"\u0131",
    u"\u03A3",
    u"\u03C2",
    u"\u01C6",
    u"\u01C5",
    u"\uFB01",
    u"\u1E9E",
    u"\u0587",
    u"\u65E5",
    u"\u306E",
    u"\u30AB",
    u"\u0E01\u0E32",
    u"\U0001F389",
    u"\U00010400",
    u"\U00010428",
    u"\u0301",
    u"\u200D",
    u"\u00AD",
    u"\u200B",
    u"1",
    u"9.5",
    u"\u2028",
    u"\u0085",
    u"\u000B",
    u"\u3000",
    u"word",
    u"It's",
    u"USA",
    u"\u0416\u0438",
    u"\u05D0",
    u"i\u0307",
    u"J",
    u"ij",
    u"\u0390",
    u"(",
    u")",
    u"\"",
    u"\u3006",
    u"\uFF21",
    u"    ",
};

// Unpaired surrogates cannot be written in a literal.
constexpr char16_t unpaired[] = {0xD83C, 0xDF89};

constexpr std::u16string_view quotes[] = {
    u"'",
    u"\"",
    u"\u00AB",
    u"\u00BB",
    u"\u00AB ",
    u" \u00BB",
    u"\u2018",
    u"\u2019",
    u"\u201A",
    u"\u201C",
    u"\u201D",
    u"\u201E",
    u"\u2039",
    u"\u203A",
    u"\u2039 ",
    u" \u203A",
    u"\u300C",
    u"\u300D",
    u"\u300E",
    u"\u300F",
    u"'",
    u"\"",
    u"\u2019",
    u"\u201D",
    u"&nbsp;",
    u"&NBSP;",
    u"&nb\u017Fp;",
    u"--",
    u"-",
    u"&mdash;",
    u"&nDa\u017Fh;",
    u"&#8211;",
    u"&#8212;",
    u"&#x2013;",
    u"&#X2014;",
    u"&#x2012;",
    u" ",
    u"\t",
    u"\r\n",
    u"\n",
    u"[",
    u"{",
    u"(",
    u"a",
    u"b",
    u"1",
    u"_",
    u"\u00E9",
    u".",
    u",",
    u"!",
    u"\u0301",
    u"\u200D",
    u"\u00AD",
    u"\U0001F389",
    u"\U00010400",
    u"\u65E5",
    u"\u00A0",
    u"\u3000",
    u"\u2028",
    u";",
    u"\u203F",
};

constexpr std::u16string_view tags[] = {
    u"<",
    u">",
    u"<!--",
    u"-->",
    u"<?",
    u"?>",
    u"<a ",
    u"</p>",
    u"<b>",
    u"<script",
    u"</script>",
    u"<SCRIPT>",
    u"</scr",
    u"\"",
    u"'",
    u"=",
    u" ",
    u"x",
    u"p",
    u":",
    u"-",
    u"\n",
    u"\r",
    u"\u2028",
    u"\u212A",
    u"\u017F",
    u"\u0301",
    u"\u200D",
    u"_",
    u"\u00E9",
    u"!",
    u"$",
    u"/",
    u"?",
    u"1",
    u"%",
    u"%%%%%%SPLIT-ME%%%%%%",
    u"%%%%%SPLIT-ME",
    u"\U0001F389",
    u"\u000B",
    u"<-",
    u"<:",
};

constexpr const char *locales[] = {"en_US", "de_DE", "tr_TR", "el_GR", "lt_LT",
                                   "nl_NL", "ja_JP", "th_TH", "",      "fr_FR"};

} // namespace

Tokens plainTokens() {
    return plain;
}

Tokens quoteTokens() {
    return quotes;
}

Tokens tagTokens() {
    return tags;
}

std::u16string Random::text(Tokens tokens) {
    // With few kinds of tokens at once, what has to meet for a rule to act does meet.
    std::array<std::u16string_view, 12> some;
    const std::size_t kinds = 1 + below(some.size());
    for (std::size_t i = 0; i < kinds; ++i) {
        some[i] =
            oneIn(60) ? std::u16string_view(&unpaired[below(2)], 1) : tokens[below(tokens.size())];
    }
    const std::size_t count = oneIn(40) ? below(2000) : below(oneIn(3) ? 120 : 24);
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) {
        text.append(some[below(kinds)]);
    }
    return text;
}

engine::CleaningOptions Random::options() {
    platform::PropertyDictionary dictionary;
    const std::size_t density = 1 + below(8);
    for (const engine::OptionField &field : engine::optionFields()) {
        for (std::size_t slot = 1; slot <= (field.perSlot() ? engine::replaceSlots : 1); ++slot) {
            const std::string key = field.keyOf(slot);
            if (key.ends_with("Option") || key.ends_with("Separator")) {
                dictionary.set(key, static_cast<std::int64_t>(below(13)) - 1);
            } else if (key.find("TextField") != std::string::npos ||
                       key.find("Custom") != std::string::npos) {
                constexpr const char16_t *texts[] = {u"",   u"a",  u" ",      u"\t",  u"ab",
                                                     u"$0", u"- ", u"\u2022", u"\\$", u"x\n"};
                dictionary.set(key, texts[below(std::size(texts))]);
            } else {
                dictionary.set(key, oneIn(density));
            }
        }
    }
    // In search mode a pattern that does not occur empties the text, and hides all else.
    dictionary.set("udInsertYourPattern", false);
    dictionary.set("sFindReplaceBool", false);
    // A random order cannot be compared.
    if (dictionary.find("udSortOption")->integerValue() == 7) {
        dictionary.set("udSortOption", 6);
    }
    engine::CleaningOptions options;
    options.setAllBools(dictionary);
    return options;
}

std::string Random::locale() {
    return locales[below(std::size(locales))];
}

std::string escaped(std::u16string_view text) {
    std::string result;
    for (const char16_t unit : text) {
        char buffer[8];
        std::snprintf(buffer, sizeof buffer, unit >= 0x20 && unit < 0x7F ? "%c" : "\\u%04X", unit);
        result += buffer;
    }
    return result;
}

} // namespace nerlo::reference
