#include "settings/JsonText.h"

#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cstdint>

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

// The first unpaired surrogate at or after `from`, or the text's size.
std::size_t findUnpaired(std::u16string_view text, std::size_t from) {
    for (std::size_t at = from; at < text.size(); ++at) {
        if (isHigh(text[at]) && at + 1 < text.size() && isLow(text[at + 1])) {
            ++at;
        } else if (isHigh(text[at]) || isLow(text[at])) {
            return at;
        }
    }
    return text.size();
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

std::string jsonOfText(std::u16string_view text) {
    using nlohmann::json;
    std::size_t end = findUnpaired(text, 0);
    if (end == text.size()) {
        return json(text::utf16ToUtf8(text)).dump();
    }
    std::string result = "\"";
    for (std::size_t at = 0;; at = end + 1, end = findUnpaired(text, at)) {
        const std::string part = json(text::utf16ToUtf8(text.substr(at, end - at))).dump();
        result.append(part, 1, part.size() - 2);
        if (end == text.size()) {
            return result + '"';
        }
        result += "\\u" + hex(text[end], 4);
    }
}

std::string jsonOfName(const std::string &bytes) {
    using nlohmann::json;
    return json(bytes).dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace nerlo::settings
