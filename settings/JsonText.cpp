#include "settings/JsonText.h"

#include "text/UnitScan.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

namespace nerlo::settings {

namespace {

constexpr std::string_view mark = "\xEF\xBF\xBE";
constexpr char16_t markUnit = 0xFFFE;
constexpr std::string_view markItself = "---"; // in place of the digits
constexpr std::size_t digits = 3;

constexpr bool isHigh(std::uint32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLow(std::uint32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

// The unit of an escape "\u" and four digits at `at`; 0 where there is none.
std::uint32_t escapedUnit(std::string_view bytes, std::size_t at) {
    constexpr std::size_t size = 6;
    if (at + size > bytes.size() || bytes.substr(at, 2) != "\\u") {
        return 0;
    }
    std::uint32_t unit = 0;
    const char *end = bytes.data() + at + size;
    const auto parsed = std::from_chars(bytes.data() + at + 2, end, unit, 16);
    return parsed.ptr == end ? unit : 0;
}

std::string hex(std::uint32_t number, std::size_t width) {
    char buffer[8];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, 16).ptr;
    const auto size = static_cast<std::size_t>(end - buffer);
    return std::string(width - size, '0') + std::string(buffer, size);
}

struct Replacement {
    std::size_t size = 0; // of what is there; 0 for nothing to replace
    std::string with;     // behind the mark
};

// What stands at `at`, a backslash or the mark.
Replacement replacementAt(std::string_view bytes, std::size_t at) {
    if (bytes[at] != '\\') {
        return {mark.size(), std::string(markItself)};
    }
    const std::uint32_t unit = escapedUnit(bytes, at);
    if (unit == markUnit) {
        return {6, std::string(markItself)};
    }
    const bool isPair = isHigh(unit) && isLow(escapedUnit(bytes, at + 6));
    return (isHigh(unit) && !isPair) || isLow(unit) ? Replacement{6, hex(unit - 0xD800, digits)}
                                                    : Replacement{};
}

char16_t unescaped(char16_t escape) {
    switch (escape) {
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return escape; // a quote, a slash or a backslash
    }
}

// The unit of four hexadecimal digits.
char16_t unitOf(const char16_t *hexDigits) {
    unsigned unit = 0;
    for (const char16_t *digit = hexDigits; digit < hexDigits + 4; ++digit) {
        unit = unit * 16 + (*digit <= u'9' ? *digit - u'0' : (*digit | 0x20u) - u'a' + 10);
    }
    return static_cast<char16_t>(unit);
}

// All escapes in `text` are well-formed.
void resolveEscapes(std::u16string &text) {
    std::size_t at = text::findUnit(text, 0, u'\\');
    std::size_t kept = at;
    while (at < text.size()) {
        const bool asNumber = text[at + 1] == u'u';
        text[kept++] = asNumber ? unitOf(text.data() + at + 2) : unescaped(text[at + 1]);
        at += asNumber ? 6 : 2;
        const std::size_t next = text::findUnit(text, at, u'\\');
        std::copy(text.data() + at, text.data() + next, text.data() + kept);
        kept += next - at;
        at = next;
    }
    text.resize(kept);
}

// What does not stand for itself, or may not: an unpaired surrogate has no UTF-8, and the breaks
// beyond ASCII end a line for many readers of lines.
constexpr text::UnitSet toEscape{{0, 0x1F},    {'"', '"'},       {'\\', '\\'},
                                 {0x85, 0x85}, {0x2028, 0x2029}, {0xD800, 0xDFFF}};

void escape(std::u16string &to, char16_t unit) {
    constexpr std::u16string_view named = u"\"\\\b\f\n\r\t";
    constexpr std::u16string_view names = u"\"\\bfnrt";
    constexpr char16_t hexDigits[] = u"0123456789abcdef";
    to += u'\\';
    const std::size_t name = named.find(unit);
    if (name != std::u16string_view::npos) {
        to += names[name];
        return;
    }
    to += u'u';
    for (int shift = 12; shift >= 0; shift -= 4) {
        to += hexDigits[unit >> shift & 0xF];
    }
}

// The same text with escapes.
std::u16string escaped(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size() + text.size() / 8);
    std::size_t copied = 0;
    text::UnitCursor cursor(text, toEscape);
    for (std::size_t at = cursor.next(); at < text.size(); at = cursor.next()) {
        if (isHigh(text[at]) && at + 1 < text.size() && isLow(text[at + 1])) {
            cursor.next();
            continue;
        }
        result.append(text, copied, at - copied);
        escape(result, text[at]);
        copied = at + 1;
    }
    return result.append(text, copied);
}

} // namespace

std::string_view withMarkedSurrogates(std::string_view bytes, std::string &room) {
    std::size_t copied = 0;
    std::size_t nextMark = bytes.find(mark);
    for (std::size_t at = std::min(bytes.find('\\'), nextMark); at < bytes.size();
         at = std::min(bytes.find('\\', at), nextMark)) {
        const Replacement replacement = replacementAt(bytes, at);
        if (replacement.size != 0) {
            room.append(bytes, copied, at - copied).append(mark).append(replacement.with);
            copied = at + replacement.size;
            at = copied;
        } else {
            const std::uint32_t unit = escapedUnit(bytes, at);
            at += isHigh(unit) ? 12 : 2; // a pair, or a backslash with what it escapes
        }
        if (nextMark < at) {
            nextMark = bytes.find(mark, at);
        }
    }
    return copied == 0 ? bytes : std::string_view(room.append(bytes, copied));
}

std::u16string textOfJson(std::string_view string) {
    std::u16string text = text::utf8ToUtf16(string).text;
    std::size_t kept = text.find(markUnit);
    for (std::size_t at = kept; at < text.size(); ++at, ++kept) {
        text[kept] = text[at];
        if (text[at] == markUnit) {
            const std::string written = text::utf16ToUtf8(text.substr(at + 1, digits));
            std::uint32_t unit = 0;
            if (written != markItself) {
                std::from_chars(written.data(), written.data() + written.size(), unit, 16);
                text[kept] = static_cast<char16_t>(0xD800 + unit);
            }
            at += digits;
        }
    }
    text.resize(std::min(kept, text.size()));
    return text;
}

std::optional<std::u16string> textOfLiteral(std::string_view literal) {
    text::Utf16Result decoded = text::utf8ToUtf16(literal.substr(1, literal.size() - 2));
    if (decoded.invalidAt) {
        return std::nullopt;
    }
    resolveEscapes(decoded.text);
    return std::move(decoded.text);
}

void appendJson(std::string &to, std::u16string_view text) {
    to += '"';
    text::appendUtf8(to, escaped(text));
    to += '"';
}

std::string jsonOfText(std::u16string_view text) {
    std::string result;
    appendJson(result, text);
    return result;
}

std::string jsonOfName(const std::string &bytes) {
    using nlohmann::json;
    return json(bytes).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string jsonMembers(const engine::TextStatistics &counts) {
    return "\"characters\":" + std::to_string(counts.characters) +
           ",\"spaces\":" + std::to_string(counts.spaces) +
           ",\"words\":" + std::to_string(counts.words) +
           ",\"paragraphs\":" + std::to_string(counts.paragraphs);
}

} // namespace nerlo::settings
