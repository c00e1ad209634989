#include "tests/reference/PlainEngine.h"

#include "engine/FindReplace.h"
#include "engine/LineJoining.h"
#include "engine/QuoteStyles.h"
#include "engine/ReplacementRules.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"

#include <unicode/brkiter.h>
#include <unicode/coll.h>
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

namespace nerlo::reference {

namespace {

using String = std::u16string;

String replaced(String text, std::u16string_view find, std::u16string_view replacement) {
    String result;
    std::size_t at = 0;
    while (!find.empty()) {
        const std::size_t hit = text.find(find, at);
        if (hit == String::npos) {
            break;
        }
        result.append(text, at, hit - at).append(replacement);
        at = hit + find.size();
    }
    return result.append(text, at);
}

String replacedInOrder(String text, const text::ReplacementTable &table) {
    for (const text::Replacement &row : table.rows()) {
        text = replaced(text, row.find, row.replace);
    }
    return text;
}

void check(UErrorCode status) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(u_errorName(status));
    }
}

icu::UnicodeString icuText(const String &text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

String plainText(const icu::UnicodeString &text) {
    return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

String replacedPattern(const String &text, const String &pattern, const String &replacement,
                       std::uint32_t flags = 0) {
    UErrorCode status = U_ZERO_ERROR;
    const auto input = icuText(text);
    icu::RegexMatcher matcher(icuText(pattern), input, flags, status);
    const auto result = matcher.replaceAll(icuText(replacement), status);
    check(status);
    return plainText(result);
}

const String whiteSpace = u"[\\p{Z}\\u0009-\\u000D\\u0085]";

String allBreaks(const String &text) {
    return replaced(replaced(text, u"\r\n", u"\n"), u"\r", u"\n");
}

String wrapped(const String &text, const String &prefix, const String &suffix) {
    String result = prefix;
    for (const char16_t unit : allBreaks(text)) {
        if (unit == u'\n') {
            result.append(suffix).append(u"\n").append(prefix);
        } else {
            result.push_back(unit);
        }
    }
    return result.append(suffix);
}

String returns(const String &text, const engine::CleaningOptions &options) {
    const String custom1 = options.udChangeReturnsCustom1.stringValue();
    const String replacements[] = {u"", u"\n", u"\n\n", u" ", u"\n ", u"\n\t", u"\n" + custom1};
    const auto option = static_cast<std::int32_t>(options.udChangeReturnsOption);
    switch (option) {
    case 7:
        return wrapped(text, u"<p>", u"</p>");
    case 8:
        return wrapped(text, u"[img]", u"[/img]");
    case 9:
        return wrapped(text, custom1, options.udChangeReturnsCustom2.stringValue());
    default:
        return replacedPattern(allBreaks(text), u"[\n]+",
                               replacements[option > 0 && option < 7 ? option : 0]);
    }
}

String upper(const String &text, const char *locale) {
    return plainText(icuText(text).toUpper(locale));
}

String lower(const String &text, const char *locale) {
    return plainText(icuText(text).toLower(locale));
}

template <class Visit>
void segments(decltype(icu::BreakIterator::createWordInstance) make, const String &text,
              const char *locale, Visit visit) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> iterator(make(locale, status));
    check(status);
    const auto input = icuText(text);
    iterator->setText(input);
    std::int32_t begin = iterator->first();
    for (std::int32_t end = iterator->next(); end != icu::BreakIterator::DONE;
         begin = end, end = iterator->next()) {
        visit(text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)),
              iterator->getRuleStatus());
    }
}

String capitalizedFirst(const String &text, const char *locale) {
    return text.empty() ? text : upper(text.substr(0, 1), locale) + text.substr(1);
}

std::vector<String> split(const String &text, std::u16string_view separator) {
    std::vector<String> pieces;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = text.find(separator, begin);
        pieces.push_back(text.substr(begin, end - begin));
        if (end == String::npos) {
            return pieces;
        }
        begin = end + separator.size();
    }
}

std::optional<String> capitalizedSeparated(const String &sentence, const String &separator,
                                           const char *locale) {
    const std::vector<String> pieces = split(sentence, separator);
    if (pieces.size() < 2 || pieces[1].empty()) {
        return std::nullopt;
    }
    String result;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        result += (i > 0 ? separator : u"") + capitalizedFirst(pieces[i], locale);
    }
    return result;
}

String smartCapitalized(const String &text, const char *locale) {
    String result;
    segments(icu::BreakIterator::createSentenceInstance, text, locale,
             [&](const String &sentence, std::int32_t) {
                 for (const char16_t *separator : {u"\u2026 ", u"... ", u". "}) {
                     if (const auto done = capitalizedSeparated(sentence, separator, locale)) {
                         result += *done;
                         return;
                     }
                 }
                 result += capitalizedFirst(sentence, locale);
             });
    return result;
}

void smartForAll(String &text, const String &leftFind, const String &rightFind,
                 const String &leftReplace, const String &rightReplace) {
    text = replacedPattern(
        text, u"(^|\\s|&nbsp;|--|&[mn]dash;|&#8211;|&#8212;|&#x201[34];)" + leftFind + u"(?=\\w)",
        u"$1" + leftReplace, UREGEX_CASE_INSENSITIVE);
    text = replacedPattern(text, u"([^ \\t\\r\\n\\[\\{\\(\\-])?" + rightFind, u"$1" + rightReplace,
                           UREGEX_CASE_INSENSITIVE);
}

template <class Find, class Replace, class All>
String convertedQuotes(String text, const Find &findStyles, std::int64_t find,
                       const Replace &replaceStyles, std::int64_t replace, const All &all,
                       bool changeAll) {
    if (find < 0 || replace < 0 || static_cast<std::size_t>(find) >= findStyles.size() ||
        static_cast<std::size_t>(replace) >= replaceStyles.size()) {
        return text;
    }
    const String leftFind(findStyles[static_cast<std::size_t>(find)].left);
    const String rightFind(findStyles[static_cast<std::size_t>(find)].right);
    const String left(replaceStyles[static_cast<std::size_t>(replace)].left);
    const String right(replaceStyles[static_cast<std::size_t>(replace)].right);
    if (changeAll) {
        smartForAll(text, leftFind, rightFind, left, right);
        for (const auto &style : all) {
            smartForAll(text, String(style.left), String(style.right), left, right);
        }
        for (const auto &style : all) {
            text = replaced(replaced(text, style.left, left), style.right, right);
        }
    }
    text = smartQuotes(text, leftFind, rightFind, left, right);
    return replaced(replaced(text, leftFind, left), rightFind, right);
}

template <class Styles>
String removedQuotes(String text, const Styles &styles, bool all, std::int64_t option) {
    if (!all) {
        if (option < 0 || static_cast<std::size_t>(option) >= styles.size()) {
            return text;
        }
        const auto &style = styles[static_cast<std::size_t>(option)];
        return replaced(replaced(text, style.left, u""), style.right, u"");
    }
    for (const auto &style : styles) {
        text = replaced(text, style.left, u"");
    }
    for (const auto &style : styles) {
        text = replaced(text, style.right, u"");
    }
    return text;
}

String removedTags(const String &text, bool withScripts) {
    String result;
    if (!withScripts) {
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t open = text.find(u'<', at);
            result.append(text, at, open - at);
            const std::size_t close = open == String::npos ? open : text.find(u'>', open);
            at = close == String::npos ? text.size() : close + 1;
        }
        return result;
    }
    UErrorCode status = U_ZERO_ERROR;
    const auto input = icuText(text);
    icu::RegexMatcher tags(u"(?s:<!--.*?-->)|<\\?.*\\?>|(?:<[/!$]?[-a-zA-Z0-9:]+\\b(?>[^\"'>]+|"
                           u"\"[^\"]*\"|'[^']*')*>)",
                           input, UREGEX_CASE_INSENSITIVE, status);
    std::vector<text::Range> matches;
    while (tags.find(status)) {
        matches.push_back({static_cast<std::size_t>(tags.start(status)),
                           static_cast<std::size_t>(tags.end(status))});
    }
    check(status);
    bool inScript = false;
    bool isText = true;
    for (const String &piece : engine::splitByMatchesInString(text, matches)) {
        if (isText && !piece.empty() && !inScript) {
            result += piece;
        } else if (lower(piece, "").find(u"<script") != String::npos) {
            inScript = true;
        } else if (lower(piece, "").find(u"</script") != String::npos) {
            inScript = false;
        }
        isText = !isText;
    }
    return result;
}

bool isUpper(char16_t unit) {
    const String text(1, unit);
    return upper(text, "") == text && lower(text, "") != text;
}

bool isCaseless(char16_t unit) {
    const String text(1, unit);
    return upper(text, "") == text && lower(text, "") == text;
}

bool isMark(char16_t unit) {
    return String(u".?!\u2026\u00B7\u3002\u22C5\u30FB\u1427\u2024_:").find(unit) != String::npos;
}

bool beginsSentence(const String &line) {
    if (line.empty()) {
        return false;
    }
    if (line.front() == u' ') {
        return line.size() > 1 && beginsSentence(line.substr(1));
    }
    return isUpper(line.front());
}

bool endsSentence(const String &line, bool comma) {
    if (line.empty()) {
        return false;
    }
    const char16_t last = line.back();
    if (last == u' ') {
        return line.size() > 1 && endsSentence(line.substr(0, line.size() - 1), false);
    }
    if (isUpper(last)) {
        return line.size() == 1 || line[line.size() - 2] != u' ';
    }
    if (isCaseless(last) && line.size() > 1 &&
        endsSentence(line.substr(line.size() - 2, 1), false)) {
        return true;
    }
    return isMark(last) || (comma && last == u',');
}

String joinedLines(const String &input, std::int32_t option) {
    const String joiner = option == 1 ? u" " : u"";
    const bool hasSpace = input.find(u' ') != String::npos;
    String text = allBreaks(input);
    if (text.size() < 2) {
        return text;
    }
    for (int pass = 0; pass < 2; ++pass) {
        String output, pendingText;
        bool pending = false, open = false;
        for (const String &line : split(text, u"\n")) {
            if (line.empty()) {
                continue;
            }
            if (!endsSentence(line, false)) {
                if (open && beginsSentence(line)) {
                    if (pending) {
                        output += pendingText + joiner + line + u"\n";
                        pendingText.clear();
                        pending = open = false;
                    } else {
                        pendingText = line;
                        pending = true;
                        open = false;
                    }
                } else {
                    pendingText = pending ? pendingText + joiner + line : line;
                    open = pending = true;
                }
            } else if (pending) {
                const bool apart =
                    hasSpace && beginsSentence(line) && endsSentence(pendingText, true);
                output += pendingText + (apart ? u"\n" : joiner) + line + u"\n";
                pendingText.clear();
                pending = false;
            } else {
                output += line + u"\n";
            }
        }
        if (!pendingText.empty()) {
            output += pendingText + u"\n";
        }
        text = output;
    }
    if (text.ends_with(u'\n')) {
        text.pop_back();
    }
    return replacedPattern(text, u"([A-z])(- )", u"$1");
}

String sorted(String text, std::int64_t option, std::int64_t separatorIndex, const String &custom,
              const std::string &locale) {
    const std::vector<String> separators{u"\n", u".",  u". ", u",",  u", ",
                                         u";",  u"; ", u"\t", custom};
    if (separatorIndex < 0 || separatorIndex > 8) {
        return text;
    }
    const String &separator = separators[static_cast<std::size_t>(separatorIndex)];
    if (separator.empty()) {
        return text;
    }
    if (separatorIndex == 0) {
        text = allBreaks(text);
    }
    std::vector<String> items = split(text, separator);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(locale.c_str(), status));
    check(status);
    if (option != 2 && option != 3) {
        collator->setStrength(icu::Collator::SECONDARY);
    }
    const auto compare = [&](const String &a, const String &b) {
        return collator->compare(icuText(a), icuText(b), status);
    };
    const auto ascending = [&](const String &a, const String &b) { return compare(a, b) < 0; };
    const auto descending = [&](const String &a, const String &b) { return compare(a, b) > 0; };
    switch (option) {
    case 1:
    case 3:
        std::ranges::stable_sort(items, descending);
        break;
    case 4:
        std::ranges::sort(items);
        break;
    case 5:
        std::ranges::sort(items, std::greater<>());
        break;
    case 6:
        std::ranges::reverse(items);
        break;
    case 10: {
        std::set<String> seen;
        std::erase_if(items, [&](const String &item) { return !seen.insert(item).second; });
        break;
    }
    default:
        std::ranges::stable_sort(items, ascending);
    }
    String result;
    for (const String &item : items) {
        result += item + separator;
    }
    result.resize(result.size() - separator.size());
    return result;
}

} // namespace

String smartQuotes(String text, const String &leftFind, const String &rightFind,
                   const String &leftReplace, const String &rightReplace) {
    text = replacedPattern(text, u"^" + rightFind + u"(?=[:PUNCT:]\\B)", rightReplace,
                           UREGEX_CASE_INSENSITIVE);
    smartForAll(text, leftFind, rightFind, leftReplace, rightReplace);
    return replaced(text, leftFind, leftReplace);
}

// Operations that are nothing but one of these with another setting have no case of their own, nor
// have those of the user's own rules, which are written in the plain form already.
String runOperation(std::int32_t index, const String &text,
                    const engine::CleaningContext &context) {
    const engine::CleaningOptions &o = context.options;
    const bool localized = context.actualVersion >= 108;
    const char *locale = localized ? context.locale.c_str() : "";
    const auto slot = [&](std::size_t number) {
        return replaced(text, o.udChangePropertyChangeTextField[number - 1].stringValue(),
                        o.udChangePropertyToTextField[number - 1].stringValue());
    };
    switch (index) {
    case 0:
        return replacedPattern(text, u"[\t]+", u"\t");
    case 1:
        return replacedPattern(text, whiteSpace, u"");
    case 2:
        return replacedPattern(text, u"[\t]+", u"");
    case 3:
        return replacedPattern(text, u"\\s+", u" ");
    case 4:
        return returns(text, o);
    case 5:
        return replacedPattern(text, u"\\A" + whiteSpace + u"+|" + whiteSpace + u"+\\z", u"");
    case 6:
        switch (o.udChangeCaseOption) {
        case 1:
            return plainText(icuText(text).toTitle(nullptr, locale));
        case 2:
            return lower(text, locale);
        case 3:
            return upper(text, locale);
        default:
            return smartCapitalized(text, locale);
        }
    case 7:
        return o.udChangeQuotesOption == 1
                   ? convertedQuotes(text, engine::doubleQuoteStyles, o.udChangeQuotesDoubleOption,
                                     engine::singleQuoteStyles, o.udChangeQuotesSingleOption,
                                     engine::doubleQuoteStylesAll, o.udChangeQuotesAll)
                   : convertedQuotes(text, engine::singleQuoteStyles, o.udChangeQuotesSingleOption,
                                     engine::doubleQuoteStyles, o.udChangeQuotesDoubleOption,
                                     engine::singleQuoteStylesAll, o.udChangeQuotesAll);
    case 8:
        return removedQuotes(text, engine::singleQuoteStyles, o.udRemoveSingleQuotesAll,
                             o.udChangeQuotesSingleOption);
    case 9:
        return removedQuotes(text, engine::doubleQuoteStyles, o.udRemoveDoubleQuotesAll,
                             o.udChangeQuotesDoubleOption);
    case 10:
        return replaced(text, u">", u"");
    case 11:
        return removedTags(text, o.udRemoveHTMLTagsJS);
    case 12:
        return replacedPattern(text, o.udInsertYourPatternTextField.stringValue(), u"");
    case 13:
        return slot(1);
    case 16:
        return replacedPattern(replacedPattern(text, u"[ ]+", u" "), u"[\u00A0]+", u"\u00A0");
    case 17:
        return o.udChangeTabsAnd4SpacesOption == 1
                   ? replaced(replaced(text, u"    ", u"\t"), u"\u00A0\u00A0\u00A0\u00A0", u"\t")
                   : replaced(text, u"\t", u"    ");
    case 18:
        return replacedInOrder(text, engine::rules::bullets);
    case 19:
        return replacedInOrder(text, engine::rules::spaceBeforeDot);
    case 20:
        return replacedInOrder(text, engine::rules::spaceAroundTab);
    case 21:
        return replacedInOrder(text, engine::rules::spaceAroundReturn);
    case 23:
        return sorted(text, o.udSortOption, o.udSortSeparator,
                      o.udSortCustomSeparatorTextField.stringValue(), context.locale);
    case 24:
        return sorted(text, 10, o.udRemoveDuplicateLinesSeparator,
                      o.udDuplicatesCustomSeparatorTextField.stringValue(), context.locale);
    case 32:
        return slot(10);
    case 33:
        return joinedLines(text, static_cast<std::int32_t>(o.udChangeWrongInsertedReturnsOption));
    case 34:
        return replacedInOrder(text, o.udRemoveHyphensAll ? engine::rules::dashes
                                                          : engine::rules::hyphens);
    default:
        return engine::runOperation(index, text, context);
    }
}

String joinWrappedLines(const String &text, bool withSpace) {
    const String blanks = u" \u00A0\t";
    const auto isWide = [](char16_t unit) {
        return unit >= 0x2E80 && !(unit >= 0xAC00 && unit <= 0xD7A3) &&
               !(unit >= 0xD800 && unit <= 0xF8FF);
    };
    const auto isLower = [](char16_t unit) {
        return text::letterCase(unit) == text::LetterCase::Other;
    };
    struct Line {
        String before, words, after; // blanks, ink, blanks and break
    };
    std::vector<Line> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", at), text.size());
        const std::size_t next =
            std::min(text.size(), end + (text.compare(end, 2, u"\r\n") ? 1 : 2));
        const String line = text.substr(at, end - at);
        const std::size_t first = std::min(line.find_first_not_of(blanks), line.size());
        const std::size_t last = line.find_last_not_of(blanks) + 1;
        const std::size_t ink = std::max(first, last);
        lines.push_back({line.substr(0, first), line.substr(first, ink - first),
                         text.substr(at + ink, next - at - ink)});
        at = next;
    }
    String result;
    for (std::size_t begin = 0; begin < lines.size();) {
        std::size_t end = begin;
        while (end < lines.size() && !lines[end].words.empty()) {
            ++end;
        }
        std::size_t width = 0;
        for (std::size_t at = begin; at < end; ++at) {
            width = std::max(width, lines[at].words.size());
        }
        const auto isFile = [&](std::size_t at) {
            const String &words = lines[at].words;
            const std::size_t dot = words.rfind(u'.');
            return at + 1 == lines.size() && lines[at].after.empty() && dot != String::npos &&
                   dot > 2 && words.size() > dot + 1 && words.size() < dot + 6 &&
                   words.find(u' ') == String::npos;
        };
        const auto isTwoSentences = [&](std::size_t at) {
            return isFile(at + 1) || (lines[at].words.size() > 1 &&
                                      engine::checkLineForEndSentenceChar(lines[at].words, false) &&
                                      !isLower(lines[at + 1].words[0]));
        };
        bool even = end > begin && width >= (isWide(lines[begin].words[0]) ? 16u : 32u);
        bool goesOn = false;
        for (std::size_t at = begin; at + 1 < end; ++at) {
            const String &next = lines[at + 1].words;
            const std::size_t word =
                isWide(next[0]) ? 1 : std::min(next.find(u' '), next.size()) + 1;
            const String &line = lines[at].words;
            const bool letters = text::isAsciiLetter(line.back()) && text::isAsciiLetter(next[0]);
            const bool cut = letters && line.size() == width &&
                             std::set<std::size_t>{80, 100, 120, 132}.count(width) > 0;
            const bool names = !isWide(line[0]) && std::count(line.begin(), line.end(), u' ') < 2;
            even = even && !cut && !names &&
                   ((lines[at].words.size() + word) * 5 > width * 4 || isTwoSentences(at));
            goesOn = goesOn || ((isLower(next[0]) || isWide(next[0])) && !isFile(at + 1));
        }
        for (std::size_t at = begin; at < end; ++at) {
            String words = lines[at].words;
            if (!even || !goesOn) {
                result += lines[at].before + words + lines[at].after;
            } else if (at + 1 == end) {
                result += words + lines[at].after;
            } else if (isTwoSentences(at)) {
                result += words + u"\n";
            } else {
                const String &next = lines[at + 1].words;
                const bool hyphen =
                    words.size() > 1 && words.back() == u'-' && isLower(next[0]) &&
                    text::letterCase(words[words.size() - 2]) != text::LetterCase::Caseless;
                if (hyphen) {
                    words.pop_back();
                } else if (withSpace && !(isWide(words.back()) && isWide(next[0]))) {
                    words += u' ';
                }
                result += words;
            }
        }
        if (end < lines.size()) { // a blank line
            result += lines[end].before + lines[end].after;
        }
        begin = std::max(end + 1, begin + 1);
    }
    return result;
}

Counts count(const String &text, const std::string &locale) {
    Counts counts{text.size(), 0, 0, 0};
    for (const char16_t unit : text) {
        counts.spaces += unit == u' ' || unit == u'\u00A0' ? 1u : 0u;
    }
    segments(icu::BreakIterator::createWordInstance, text, locale.c_str(),
             [&](const String &, std::int32_t status) {
                 counts.words += status >= UBRK_WORD_NUMBER ? 1u : 0u;
             });
    if (!text.empty()) {
        const std::vector<String> lines = split(allBreaks(text), u"\n");
        counts.paragraphs = lines.size() - (lines.back().empty() ? 1 : 0);
    }
    return counts;
}

} // namespace nerlo::reference
