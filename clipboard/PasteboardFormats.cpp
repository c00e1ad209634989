#include "clipboard/PasteboardFormats.h"

#include "text/Ascii.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nerlo::clipboard {

namespace {

constexpr std::string_view latin1Format = "STRING";

// Best first. The parameter of the first one counts.
constexpr std::array<std::string_view, 4> textFormats{"text/plain;charset=utf-8", "UTF8_STRING",
                                                      "text/plain", latin1Format};

// Browsers put text/x-moz-url-priv beside ordinary text, so only the whole name counts.
constexpr std::array<std::string_view, 5> urlFormats{
    "text/uri-list", "text/x-moz-url", "x-special/gnome-copied-files",
    "x-special/mate-copied-files", "application/x-kde-cutselection"};

constexpr std::string_view passwordManagerHint = "x-kde-passwordManagerHint";
constexpr std::string_view clipboardState = "CLIPBOARD_STATE";

std::string_view withoutParameters(std::string_view format) {
    const auto bare = format.substr(0, format.find(';'));
    return bare.substr(0, bare.find_last_not_of(' ') + 1);
}

const std::string *find(const std::vector<std::string> &formats, std::string_view name,
                        bool parametersCount = false) {
    const auto found = std::ranges::find_if(formats, [&](const std::string &format) {
        return text::equalIgnoringAsciiCase(parametersCount ? format : withoutParameters(format),
                                            name);
    });
    return found == formats.end() ? nullptr : &*found;
}

} // namespace

bool offersUrl(const std::vector<std::string> &formats) {
    return std::ranges::any_of(urlFormats,
                               [&](std::string_view name) { return find(formats, name); });
}

bool marksSecret(const std::vector<std::string> &formats) {
    return find(formats, passwordManagerHint) != nullptr;
}

const std::string *secrecyFormat(const std::vector<std::string> &formats) {
    return find(formats, clipboardState);
}

bool saysSecret(std::string_view value) {
    return value.starts_with("sensitive");
}

const std::string *bestTextFormat(const std::vector<std::string> &formats) {
    for (const auto name : textFormats) {
        if (const auto *format = find(formats, name, true)) {
            return format;
        }
    }
    return nullptr;
}

std::optional<std::u16string> decodeText(const PasteboardData &data) {
    if (text::equalIgnoringAsciiCase(data.format, latin1Format)) {
        std::u16string text(data.bytes->size(), u'\0');
        std::ranges::transform(*data.bytes, text.begin(), [](char c) {
            return static_cast<char16_t>(static_cast<unsigned char>(c));
        });
        return text;
    }
    auto decoded = text::utf8ToUtf16(*data.bytes);
    if (decoded.invalidAt) {
        return std::nullopt;
    }
    return std::move(decoded.text);
}

PasteboardContent plainTextContent(std::string utf8) {
    const bool ascii =
        std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    const auto bytes = std::make_shared<const std::string>(std::move(utf8));
    PasteboardContent content;
    for (const auto name : textFormats) {
        if (name != latin1Format || ascii) {
            content.push_back({std::string(name), {}, bytes});
        }
    }
    content.push_back({"TEXT", "UTF8_STRING", bytes});
    return content;
}

} // namespace nerlo::clipboard
