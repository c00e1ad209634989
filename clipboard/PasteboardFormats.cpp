#include "clipboard/PasteboardFormats.h"

#include "text/Ascii.h"
#include "text/Characters.h"
#include "text/Charset.h"
#include "text/Utf.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace nerlo::clipboard {

namespace {

constexpr std::string_view latin1Format = "STRING";
constexpr std::string_view utf8Format = "UTF8_STRING";
constexpr std::string_view compoundFormat = "COMPOUND_TEXT";
constexpr std::string_view anyTextFormat = "TEXT"; // in the encoding of the declared type
constexpr std::string_view plainText = "text/plain";

// What a clean offers, best first.
constexpr std::string_view ourFormats[]{"text/plain;charset=utf-8", utf8Format, plainText,
                                        latin1Format};

// Browsers put text/x-moz-url-priv beside ordinary text, so only the whole name counts.
constexpr std::string_view urlFormats[]{
    "text/uri-list", "text/x-moz-url", "x-special/gnome-copied-files",
    "x-special/mate-copied-files", "application/x-kde-cutselection"};

// Set by password managers; the last two come from other systems through shared clipboards.
constexpr std::string_view secretFormats[]{"x-kde-passwordManagerHint", "Clipboard Viewer Ignore",
                                           "ExcludeClipboardContentFromMonitorProcessing"};
constexpr std::string_view clipboardState = "CLIPBOARD_STATE";

// The page behind a copy: an address in UTF-16 and in UTF-8, and formats whose head has one.
constexpr std::string_view mozillaPage = "text/x-moz-url-priv";
constexpr std::string_view chromiumPage = "chromium/x-source-url";
constexpr std::string_view pageNames[]{mozillaPage, chromiumPage, "HTML Format", "text/html"};
constexpr std::string_view headLine = "SourceURL:";
constexpr std::size_t headSize = 4096; // bytes; more than any head of a fragment has

constexpr std::string_view textLike[]{"html", "rtf", "richtext", "xml", "json", "STRING"};
constexpr std::string_view pictureLike[]{"image/", "video/",     "audio/", "bitmap",
                                         "pixmap", "metafile",   "emf",    "wmf",
                                         "pdf",    "postscript", "png",    "svg"};

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool same(std::string_view a, std::string_view b) {
    return text::equalIgnoringAsciiCase(a, b);
}

const std::string *find(const std::vector<std::string> &formats, std::string_view name) {
    const auto found = std::ranges::find_if(
        formats, [&](const std::string &format) { return same(withoutParameters(format), name); });
    return found == formats.end() ? nullptr : &*found;
}

// Formats of other systems may come by name, or as a parameter of a MIME type.
bool isForeign(std::string_view format, std::string_view name) {
    return same(format, name) ||
           text::asciiLower(std::string(format))
                   .find('"' + text::asciiLower(std::string(name)) + '"') != std::string::npos;
}

// The charset that a MIME type names, in lower case; empty if it names none.
std::string charsetOf(std::string_view format) {
    for (auto at = format.find(';'); at != format.npos; at = format.find(';')) {
        format = format.substr(at + 1);
        const auto parameter = format.substr(0, format.find(';'));
        const auto equals = parameter.find('=');
        if (equals != parameter.npos && same(trimmed(parameter.substr(0, equals)), "charset")) {
            auto value = trimmed(parameter.substr(equals + 1));
            if (value.size() >= 2 && value.front() == '"' && value.back() == '"') {
                value = trimmed(value.substr(1, value.size() - 2));
            }
            return text::asciiLower(std::string(value));
        }
    }
    return {};
}

bool isPlainMime(std::string_view format) {
    return same(withoutParameters(format), plainText);
}

bool isUtf8(std::string_view charset) {
    return charset == "utf-8" || charset == "utf8";
}

// 0 is best; nothing for a format in which no text is read. The name of X11 comes before the MIME
// types, because GTK's programs write the latter with breaks of CR LF.
std::optional<int> textRank(const std::string &format) {
    if (isPlainMime(format)) {
        const auto charset = charsetOf(format);
        return charset.empty()            ? std::optional(2)
               : isUtf8(charset)          ? std::optional(1)
               : text::isCharset(charset) ? std::optional(3)
                                          : std::nullopt;
    }
    return same(format, utf8Format)       ? std::optional(0)
           : same(format, compoundFormat) ? std::optional(4)
           : same(format, latin1Format)   ? std::optional(5)
           : same(format, anyTextFormat)  ? std::optional(6)
                                          : std::nullopt;
}

// The encoding that a format or a declared type stands for; empty if it says nothing about that.
std::string encodingOf(const std::string &name) {
    return same(name, latin1Format)     ? "iso-8859-1"
           : same(name, utf8Format)     ? "utf-8"
           : same(name, compoundFormat) ? std::string(compoundFormat)
           : isPlainMime(name)          ? charsetOf(name)
                                        : std::string();
}

bool containsAny(const std::string &format, std::span<const std::string_view> words) {
    const auto lower = text::asciiLower(format);
    return std::ranges::any_of(words, [&](std::string_view word) {
        return lower.find(text::asciiLower(std::string(word))) != std::string::npos;
    });
}

int readingRank(const std::string &format) {
    return format.starts_with("text/") || textRank(format) ? 0
           : containsAny(format, pictureLike)              ? 2
           : containsAny(format, textLike)                 ? 0
                                                           : 1;
}

// Without credentials and port.
std::string hostOf(std::string_view address) {
    const auto scheme = address.find("://");
    if (scheme == address.npos) {
        return {};
    }
    address.remove_prefix(scheme + 3);
    address = address.substr(0, address.find_first_of("/?#\\ \t\r\n"));
    if (const auto at = address.rfind('@'); at != address.npos) {
        address.remove_prefix(at + 1);
    }
    const auto port = address.starts_with('[') ? address.find(']') + 1 : address.find(':');
    return text::asciiLower(std::string(address.substr(0, port)));
}

bool isSchemeUnit(char16_t unit) {
    return text::isAsciiLetterOrDigit(unit) || unit == u'+' || unit == u'-' || unit == u'.';
}

} // namespace

bool offersUrl(const std::vector<std::string> &formats) {
    return std::ranges::any_of(urlFormats,
                               [&](std::string_view name) { return find(formats, name); });
}

bool isUrl(std::u16string_view text) {
    constexpr std::u16string_view separator = u"://";
    const auto end = std::ranges::find_if_not(text, isSchemeUnit);
    const auto scheme = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    return !scheme.empty() && text::isAsciiLetter(scheme.front()) &&
           text.substr(scheme.size()).starts_with(separator) &&
           text.size() > scheme.size() + separator.size() &&
           // All white space is in the basic plane.
           std::ranges::none_of(text, [](char16_t unit) { return text::isWhiteSpace(unit); });
}

bool marksSecret(const std::vector<std::string> &formats) {
    return std::ranges::any_of(formats, [](const std::string &format) {
        return std::ranges::any_of(secretFormats,
                                   [&](std::string_view name) { return isForeign(format, name); });
    });
}

const std::string *secrecyFormat(const std::vector<std::string> &formats) {
    return find(formats, clipboardState);
}

bool saysSecret(std::string_view value) {
    return value.starts_with("sensitive");
}

std::vector<std::string> textFormats(const std::vector<std::string> &formats) {
    std::vector<std::pair<int, std::string>> ranked;
    for (const auto &format : formats) {
        if (const auto rank = textRank(format)) {
            ranked.emplace_back(*rank, format);
        }
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<int, std::string>::first);
    std::vector<std::string> readable;
    std::ranges::transform(ranked, std::back_inserter(readable),
                           &std::pair<int, std::string>::second);
    return readable;
}

std::string_view withoutParameters(std::string_view format) {
    return trimmed(format.substr(0, format.find(';')));
}

std::vector<std::string> pageFormats(const std::vector<std::string> &formats) {
    std::vector<std::string> telling;
    for (const auto name : pageNames) {
        if (const auto *format = find(formats, name)) {
            telling.push_back(*format);
        }
    }
    return telling;
}

std::string pageHost(const PasteboardData &data) {
    const auto name = withoutParameters(data.format);
    const auto head = std::string_view(*data.bytes).substr(0, headSize);
    if (same(name, mozillaPage)) {
        const auto address = text::decode(head, "utf-16le");
        return hostOf(text::utf16ToUtf8(address.value_or(std::u16string())));
    }
    if (same(name, chromiumPage)) {
        return hostOf(head);
    }
    const auto line = head.find(headLine);
    return line == head.npos ? std::string() : hostOf(trimmed(head.substr(line + headLine.size())));
}

bool onlyPlainText(const std::vector<std::string> &formats) {
    return std::ranges::all_of(
        formats, [](const std::string &format) { return isPlainMime(format) || textRank(format); });
}

std::vector<std::string> readingOrder(std::vector<std::string> formats) {
    std::ranges::stable_sort(formats, {}, readingRank);
    return formats;
}

std::optional<std::u16string> decodeText(const PasteboardData &data) {
    auto encoding = encodingOf(data.type);
    if (encoding.empty()) {
        encoding = encodingOf(data.format);
    }
    if (!encoding.empty() && !isUtf8(encoding)) {
        return text::decode(*data.bytes, encoding);
    }
    auto decoded = text::utf8ToUtf16(*data.bytes);
    return decoded.invalidAt ? std::nullopt : std::optional(std::move(decoded.text));
}

PasteboardContent plainTextContent(std::string utf8) {
    const bool ascii =
        std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    const auto bytes = platform::pasteboardBytes(std::move(utf8));
    PasteboardContent content;
    for (const auto name : ourFormats) {
        if (name != latin1Format || ascii) {
            content.push_back({std::string(name), {}, bytes});
        }
    }
    content.push_back({std::string(anyTextFormat), std::string(utf8Format), bytes});
    return content;
}

} // namespace nerlo::clipboard
