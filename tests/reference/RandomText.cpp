#include "tests/reference/RandomText.h"

#include <array>
#include <cstdio>
#include <vector>

namespace nerlo::reference {

namespace {

constexpr std::u16string_view plain =
    u" | |  |\u00A0|\u00A0\u00A0|\t|\r\n|\r|\n|\n\n|a|b|o|o\t|A|Z|.|...|\u2026|. |?|-|- |"
    u"\u2010|\u2013|\u2212|\u2010 \r\n|\u2022|\u2022 |\u27A2|\u25E6|\u00B7|\u3002|\u30FB|"
    u"\u2024|>|<|_|,|:|;|'|\u2019|@|&|\u00E9|\u00DF|\u0130|\u0131|\u03A3|\u03C2|\u01C6|"
    u"\u01C5|\uFB01|\u1E9E|\u0587|\u65E5|\u306E|\u30AB|\u0E01\u0E32|\U0001F389|\U00010400|"
    u"\U00010428|\u0301|\u200D|\u00AD|\u200B|1|9.5|\u2028|\u0085|\u000B|\u3000|word|It's|"
    u"USA|\u0416\u0438|\u05D0|i\u0307|J|ij|\u0390|(|)|\"|\u3006|\uFF21|    ";

// Unpaired surrogates cannot be written in a literal.
constexpr char16_t unpaired[] = {0xD83C, 0xDF89};

constexpr std::u16string_view quotes =
    u"'|\"|\u00AB|\u00BB|\u00AB | \u00BB|\u2018|\u2019|\u201A|\u201C|\u201D|\u201E|\u2039|"
    u"\u203A|\u2039 | \u203A|\u300C|\u300D|\u300E|\u300F|'|\"|\u2019|\u201D|&nbsp;|&NBSP;|"
    u"&nb\u017Fp;|--|-|&mdash;|&nDa\u017Fh;|&#8211;|&#8212;|&#x2013;|&#X2014;|&#x2012;| |"
    u"\t|\r\n|\n|[|{|(|a|b|1|_|\u00E9|.|,|!|\u0301|\u200D|\u00AD|\U0001F389|\U00010400|"
    u"\u65E5|\u00A0|\u3000|\u2028|;|\u203F";

constexpr std::u16string_view tags =
    u"<|>|<!--|-->|<?|?>|<a |</p>|<b>|<script|</script>|<SCRIPT>|</scr|\"|'|=| |x|p|:|-|"
    u"\n|\r|\u2028|\u212A|\u017F|\u0301|\u200D|_|\u00E9|!|$|/|?|1|%|%%%%%%SPLIT-ME%%%%%%|"
    u"%%%%%SPLIT-ME|\U0001F389|\u000B|<-|<:";

constexpr std::u16string_view structures =
    u"\n%\n%\n%\n\n%\r\n%\r%\n    %\n\n    %\n\t%\n  %\n> %\n> > %\n>%\n- %\n  - %\n* %\n1. %\n12) "
    u"%"
    u"\n\u2022 %```%\n```\n%~~~%`%``%# %\n---\n%\n===\n%|%|---|---|%\t% % %  %   %\u00A0%  "
    u"\n%\\%\n\\\n%"
    u"<b>%</b>%<!--%-->%<div>%https://a.org/b%me@b.org%www.c.de%[d](e f)%[d]: "
    u"e%{%}%;%=%(%)%,%.%:%-- \n%"
    u"$ ls%a%B%word%Words%one two%\u65E5\u672C%\u3002%import a%return b;%x = 1%\u16F9%\u16F8%"
    u"The quick brown fox jumps over the lazy dog%and then it sleeps under the old oak tree again%"
    u"diff --git%@@ -1%+%-";

constexpr std::u16string_view wrapped =
    u"\n%\n%\n%\r\n%\r%\n\n% %  "
    u"%\u00A0%\t%-\n%.\n%a%B%1%\u3042%\u65E5\u672C\u8A9E\u6587\u5B57\u5217%\u3002%"
    u"The quick brown fox jumps over the lazy dog%and then it sleeps under the old oak tree%"
    u"until the morning comes again to wake it up%word%Word%name.txt%:%\u00E9%,%\u201D";

constexpr const char *locales[] = {"en_US", "de_DE", "tr_TR", "el_GR", "lt_LT",
                                   "nl_NL", "ja_JP", "th_TH", "",      "fr_FR"};

} // namespace

std::vector<std::u16string_view> tokensOf(std::u16string_view row, char16_t separator) {
    std::vector<std::u16string_view> tokens;
    for (;;) {
        const auto end = row.find(separator);
        tokens.push_back(row.substr(0, end));
        if (end == row.npos) {
            return tokens;
        }
        row.remove_prefix(end + 1);
    }
}

Tokens plainTokens() {
    static const auto tokens = tokensOf(plain, u'|');
    return tokens;
}

Tokens quoteTokens() {
    static const auto tokens = tokensOf(quotes, u'|');
    return tokens;
}

Tokens structureTokens() {
    static const auto tokens = tokensOf(structures, u'%');
    return tokens;
}

Tokens wrappedTokens() {
    static const auto tokens = tokensOf(wrapped, u'%');
    return tokens;
}

Tokens tagTokens() {
    static const auto tokens = tokensOf(tags, u'|');
    return tokens;
}

std::u16string Random::text(Tokens tokens) {
    // Few kinds of tokens at a time, so that those that a rule wants side by side do come side by
    // side.
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
    storage::PropertyDictionary dictionary;
    const std::size_t density = 1 + below(8);
    for (const engine::OptionField &field : engine::optionFields()) {
        for (std::size_t slot = 1; slot <= (field.perSlot() ? engine::replaceSlots : 1); ++slot) {
            const std::string key = field.keyOf(slot);
            if (key.ends_with("Option") || key.ends_with("Separator")) {
                const std::int64_t beyond32Bits = oneIn(20) ? std::int64_t{1} << 32 : 0;
                dictionary.set(key, beyond32Bits + static_cast<std::int64_t>(below(13)) - 1);
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
    // In search mode a pattern that does not occur empties the text, so that nothing else could be
    // seen.
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
