#include "engine/LineLooks.h"

#include "text/Ascii.h"
#include "text/UnitScan.h"

#include <array>
#include <span>
#include <string>
#include <utility>

namespace nerlo::engine::looks {

using text::isAsciiDigit;
using text::isAsciiLetter;

std::size_t columnOf(View line, std::size_t at) {
    std::size_t column = 0;
    for (const char16_t unit : line.substr(0, at)) {
        column = unit == u'\t' ? column / 4 * 4 + 4 : column + 1;
    }
    return column;
}

namespace {

constexpr std::array<View, 40> codeStarts{
    u"#include", u"#define",  u"#if",    u"#!",      u"//",      u"/*",      u"*/",     u"def ",
    u"class ",   u"import ",  u"return", u"if (",    u"if(",     u"for (",   u"for(",   u"while (",
    u"else:",    u"else {",   u"elif ",  u"} ",      u"}",       u"{",       u"]",      u"const ",
    u"let ",     u"var ",     u"fn ",    u"func ",   u"pub ",    u"static ", u"using ", u"package ",
    u"public ",  u"private ", u"void ",  u"SELECT ", u"export ", u"@",       u"\"",     u"<"};

// By the first three units, which every start that begins with a letter has.
constexpr std::size_t hashOf(View start) {
    return ((start[0] * 31u + start[1]) * 31u + start[2]) % 1024;
}

constexpr auto codeHashes = [] {
    std::array<bool, 1024> found{};
    for (const View start : codeStarts) {
        if (isAsciiLetter(start[0])) {
            found.at(hashOf(start)) = true;
        }
    }
    return found;
}();

// What the others begin with.
constexpr auto codeSigns = [] {
    text::UnitSet signs;
    for (const View start : codeStarts) {
        if (!isAsciiLetter(start[0])) {
            signs.add(start[0], start[0]);
        }
    }
    return signs;
}();

bool beginsLikeCode(View words) {
    const bool may = isAsciiLetter(words[0]) ? words.size() > 2 && codeHashes[hashOf(words)]
                                             : codeSigns.contains(words[0]);
    if (!may) {
        return false;
    }
    return std::ranges::any_of(
        codeStarts, [&](View start) { return words[0] == start[0] && words.starts_with(start); });
}

} // namespace

bool mayBeCode(View line) {
    const bool comma = line.size() > 1 && line.back() == u',';
    const char16_t last = comma ? line[line.size() - 2] : line.back();
    return (comma ? last == u')' || last == u'"' : last == u'(') || beginsLikeCode(line);
}

bool isFileMode(View words) {
    return words.size() > 10 && (words[1] == u'-' || words[1] == u'r') &&
           View(u"-dlbcps").find(words[0]) != View::npos &&
           words.substr(1, 9).find_first_not_of(u"rwxsStT-") == View::npos;
}

bool beginsLikeProse(View words) {
    if (words.size() < 3 || !isAsciiLetter(words[0]) || words[1] == u'.' || words[1] == u')') {
        return false;
    }
    const bool mayBeginBlock = words[1] == u'S' ? begins(words, u"PS ")
                               : words[1] == u'r' || words[1] == u'-'
                                   ? isFileMode(words)
                                   : words[1] == u'i' && begins(words, u"diff ");
    return !mayBeginBlock;
}

bool isOrdinary(View line) {
    return beginsLikeProse(line) && !mayBeCode(line);
}

bool isRule(View words) {
    if (words.size() < 3 || (words[1] != words[0] && !isBlank(words[1])) ||
        View(u"-*_=~#+\u2500\u2501\u2550\u2014").find(words[0]) == View::npos) {
        return false;
    }
    std::size_t signs = 0;
    for (const char16_t unit : words) {
        if (unit == words[0]) {
            ++signs;
        } else if (!isBlank(unit)) {
            return false;
        }
    }
    return signs >= 3;
}

bool isHeading(View words) {
    const std::size_t signs = runOf(words, u'#');
    return signs >= 1 && signs <= 6 && (signs == words.size() || isBlank(words[signs]));
}

std::size_t listMark(View words) {
    std::size_t size = 0;
    if (!words.empty() && View(u"-*+\u2022\u2023\u25E6\u2043\u2219\u00B7\u25AA\u25CF\u25CB\u25A0"
                               u"\u25B8\u25BA\u2013\u2014\u23FA")
                                  .find(words[0]) != View::npos) {
        size = 1;
    } else {
        const std::size_t open = words.starts_with(u'(') ? 1 : 0;
        std::size_t at = open;
        while (at < words.size() && at < open + 9 && isAsciiDigit(words[at])) {
            ++at;
        }
        if (at == open && at < words.size() && isAsciiLetter(words[at])) {
            ++at;
        }
        const bool closed = at > open && at < words.size() &&
                            (words[at] == u')' || (words[at] == u'.' && open == 0));
        size = closed ? at + 1 : 0;
    }
    // Alone on its line, a letter with a dot is the end of a sentence rather than an empty item.
    const bool alone = size == words.size();
    if (size == 0 || (alone ? isAsciiLetter(words[0]) : !isBlank(words[size]))) {
        return 0;
    }
    return firstInk(words, size);
}

bool beginsWithHost(View words) {
    const std::size_t sign = words.find_first_of(u"@ ");
    return sign != View::npos && sign > 0 && words[sign] == u'@';
}

bool isPrompt(View words) {
    static constexpr std::array<View, 7> signs{u"$ ",      u"% ",      u">>> ", u"... ",
                                               u"\u276F ", u"\u279C ", u"PS "};
    for (const View sign : signs) {
        if (words[0] == sign[0] && words.starts_with(sign)) {
            return sign != u"PS " || words.find(u"> ") != View::npos;
        }
    }
    if (!beginsWithHost(words)) {
        return false;
    }
    const std::size_t sign = words.find_first_of(u"$#%");
    return sign != View::npos && (sign + 1 == words.size() || words[sign + 1] == u' ') &&
           words.substr(0, sign).find(u' ') == View::npos;
}

std::size_t digitsAt(View words, std::size_t at) {
    std::size_t end = at;
    while (end < words.size() && isAsciiDigit(words[end])) {
        ++end;
    }
    return end - at;
}

namespace {

// Behind "2025-03-01", "1/3/25", "1.3.2025" or "Mar  1" at `at`; `at` where there is none.
std::size_t dateEnd(View words, std::size_t at) {
    static constexpr View months = u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec ";
    const View name = words.substr(at, 4);
    if (name.size() == 4 && name[3] == u' ' && isAsciiLetter(name[0]) &&
        months.find(name) % 4 == 0) {
        const std::size_t day = firstInk(words, at + 4);
        return digitsAt(words, day) > 0 ? day + digitsAt(words, day) : at;
    }
    std::size_t end = at;
    for (int part = 0; part < 3; ++part) {
        const std::size_t digits = digitsAt(words, end);
        if (digits == 0 || digits > 4) {
            return at;
        }
        end += digits;
        if (part < 2) {
            if (end == words.size() || View(u"-/.").find(words[end]) == View::npos) {
                return at;
            }
            ++end;
        }
    }
    return end;
}

} // namespace

bool isStamped(View words) {
    const std::size_t open = words.starts_with(u'[') ? 1 : 0;
    const std::size_t end = dateEnd(words, open);
    if (end > open) {
        std::size_t clock = words.find_first_not_of(u", T", end);
        clock = std::min(clock, words.size());
        const std::size_t hours = digitsAt(words, clock);
        return clock > end && hours > 0 && hours < 3 && words.substr(clock + hours, 1) == u":" &&
               digitsAt(words, clock + hours + 1) == 2;
    }
    const std::size_t seconds = firstInk(words, open);
    const std::size_t dot = seconds + digitsAt(words, seconds);
    return open == 1 && dot > seconds && words.substr(dot, 1) == u"." &&
           words.substr(dot + 1 + digitsAt(words, dot + 1), 1) == u"]";
}

bool isStackFrame(View words) {
    const std::size_t digits = words.starts_with(u'#') ? digitsAt(words, 1) : 0;
    return digits > 0 && words.substr(1 + digits).starts_with(u"  ");
}

bool isSigned(View words) {
    return begins(words, u"-- ") && words.find(u">  ") != View::npos;
}

bool isKeyed(View words) {
    const std::size_t colon = words.find_first_of(u": ");
    return colon != View::npos && colon > 0 && words[colon] == u':' && isAsciiLetter(words[0]) &&
           (colon + 1 == words.size() || isBlank(words[colon + 1]));
}

namespace {

constexpr std::array<View, 34> blockTags{
    u"address", u"article", u"aside", u"blockquote", u"body",   u"center", u"details",
    u"dialog",  u"div",     u"dl",    u"fieldset",   u"figure", u"footer", u"form",
    u"h1",      u"h2",      u"h3",    u"head",       u"header", u"hr",     u"html",
    u"iframe",  u"li",      u"link",  u"main",       u"nav",    u"ol",     u"p",
    u"section", u"table",   u"td",    u"tr",         u"ul",     u"summary"};
constexpr std::array<View, 4> rawTags{u"script", u"pre", u"style", u"textarea"};

bool isTag(View words, std::span<const View> names) {
    std::size_t at = begins(words, u"</") ? 2 : 1;
    std::u16string name;
    for (; at < words.size() && name.size() < 12 &&
           (isAsciiLetter(words[at]) || isAsciiDigit(words[at]));
         ++at) {
        name.push_back(
            static_cast<char16_t>(isAsciiLetter(words[at]) ? words[at] | 0x20 : words[at]));
    }
    return std::ranges::find(names, View(name)) != names.end();
}

} // namespace

const char16_t *endOfMarkup(View words, bool insideParagraph) {
    if (!words.starts_with(u'<')) {
        return nullptr;
    }
    if (begins(words, u"<!--")) {
        return u"-->";
    }
    if (begins(words, u"<?")) {
        return u"?>";
    }
    if (begins(words, u"<!")) {
        return u">";
    }
    if (!begins(words, u"</") && isTag(words, rawTags)) {
        return u"</";
    }
    const bool alone = words.size() > 2 && (isAsciiLetter(words[1]) || words[1] == u'/') &&
                       words.find(u'>') == words.size() - 1 && words.find(u"://") == View::npos &&
                       words.find(u'@') == View::npos;
    return isTag(words, blockTags) || (alone && !insideParagraph) ? u"" : nullptr;
}

bool isLinkDefinition(View words) {
    const std::size_t close = words.starts_with(u'[') ? words.find(u"]:") : View::npos;
    return close != View::npos && close > 1 && words.substr(0, close).find(u'[', 1) == View::npos;
}

bool isPatchHead(View line) {
    return begins(line, u"diff --git ") || begins(line, u"@@ -") || begins(line, u"Index: ");
}

bool goesOnInPatch(View line) {
    if (line.empty()) {
        return false;
    }
    return View(u" +-@\\").find(line[0]) != View::npos || begins(line, u"index ") ||
           begins(line, u"diff ") || begins(line, u"new file") || begins(line, u"deleted file") ||
           begins(line, u"similarity ") || begins(line, u"rename ") || begins(line, u"Binary ");
}

bool isTableRule(View words) {
    return words.find(u'|') != View::npos && words.find(u'-') != View::npos &&
           words.find_first_not_of(u"|-: \t") == View::npos;
}

bool isDrawn(View words) {
    return std::ranges::any_of(
        words, [](char16_t unit) { return unit >= u'\u2500' && unit <= u'\u257F'; });
}

std::size_t innerTabs(View words) {
    return static_cast<std::size_t>(std::ranges::count(trimmed(words), u'\t'));
}

namespace {

// Most of its words are letters alone, as in a sentence.
bool isWordy(View words) {
    std::size_t plain = 0;
    std::size_t all = 0;
    for (std::size_t at = firstInk(words); at < words.size(); ++all) {
        const std::size_t end = std::min(words.find(u' ', at), words.size());
        View word = words.substr(at, end - at);
        while (!word.empty() && View(u".,;:!?").find(word.back()) != View::npos) {
            word.remove_suffix(1);
        }
        plain += !word.empty() && std::ranges::all_of(word, isAsciiLetter<char16_t>);
        at = firstInk(words, end);
    }
    return plain > 5 && plain * 5 >= all * 3;
}

} // namespace

Columns columnsOf(View line, std::size_t words) {
    Columns columns;
    for (std::size_t at = words; at < line.size();) {
        const std::size_t gap = line.find(u"  ", at);
        if (gap == View::npos) {
            break;
        }
        at = firstInk(line, gap);
        const char16_t before = line[gap - 1];
        const bool named =
            before == u':' && line.substr(words, gap - words).find(u' ') == View::npos;
        if (at < line.size() && (named || View(u".!?:").find(before) == View::npos)) {
            columns.ends.push_back(gap);
            columns.starts.push_back(at);
            columns.wide += at - gap > 2 ? 1 : 0;
            columns.isFar =
                columns.isFar || at - gap > 4 || line[at] == u'#' || begins(line.substr(at), u"//");
            columns.isField = columns.isField || named;
        }
    }
    columns.isProse = columns.wide == 0 && !columns.isFar && !columns.starts.empty() &&
                      isWordy(line.substr(words));
    return columns;
}

namespace {

std::ptrdiff_t sharedColumns(const std::vector<std::size_t> &a, const std::vector<std::size_t> &b) {
    return std::ranges::count_if(
        a, [&](std::size_t column) { return std::ranges::binary_search(b, column); });
}

} // namespace

bool isAligned(const Columns &a, const Columns &b) {
    const auto shared = std::max(sharedColumns(a.starts, b.starts), sharedColumns(a.ends, b.ends));
    const bool several = a.starts.size() > 1 && b.starts.size() > 1;
    if (several && a.isProse && b.isProse) {
        return shared > 1 || a.starts[0] == b.starts[0];
    }
    return shared > 0 || several || (a.wide > 0 && b.wide > 0 && (a.isFar || b.isFar));
}

std::size_t separators(View words) {
    static constexpr text::UnitSet units(u",;");
    std::size_t count = 0;
    text::UnitCursor cursor(words, units);
    for (std::size_t at = cursor.next(); at + 1 < words.size(); at = cursor.next()) {
        const bool number = words[at] == u',' && at > 0 && isAsciiDigit(words[at - 1]) &&
                            isAsciiDigit(words[at + 1]);
        count += isBlank(words[at + 1]) || number ? 0 : 1;
    }
    return count;
}

namespace {

// "NAME=value"
bool isAssignment(View words) {
    const std::size_t sign = words.find_first_of(u"= ");
    return sign != View::npos && sign > 0 && words[sign] == u'=' &&
           (isAsciiLetter(words[0]) || words[0] == u'_');
}

// " = ", "();", "$(", "->" or "::".
bool hasOperator(View words) {
    static constexpr text::UnitSet signs(u"=;>:$");
    text::UnitCursor cursor(words, signs);
    for (std::size_t at = cursor.next(); at < words.size(); at = cursor.next()) {
        const View before = words.substr(0, at + 1);
        if (begins(words.substr(at), u"$(") || before.ends_with(u"();") ||
            before.ends_with(u"->") || before.ends_with(u"::") ||
            (before.ends_with(u" =") && words.substr(at + 1).starts_with(u' '))) {
            return true;
        }
    }
    return false;
}

bool hasSignsOfCode(View words) {
    const char16_t last = words.back();
    if (View(u"{};[(").find(last) != View::npos || words.ends_with(u"),") ||
        words.ends_with(u"],") || words.ends_with(u"\",") ||
        (words.ends_with(u"):") && words.find(u"](") == View::npos)) {
        return true;
    }
    return last != u'.' && (beginsLikeCode(words) || isAssignment(words) || hasOperator(words));
}

} // namespace

bool looksLikeCode(View words) {
    words = trimmed(words);
    return !words.empty() && hasSignsOfCode(words) &&
           !(isAsciiLetter(words.front()) && isWordy(words));
}

} // namespace nerlo::engine::looks
