#include "storage/PropertyListCheck.h"

#include "storage/PropertyListLimits.h"
#include "text/Ascii.h"
#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace nerlo::storage {

namespace {

using text::isAsciiDigit;
using text::isAsciiLetterOrDigit;
using Limits = PropertyListLimits;

// Thrown and caught within this file only, to leave the recursive walks below.
struct Wrong : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] void wrong(std::string what, std::size_t offset) {
    throw Wrong(std::move(what) + " at byte " + std::to_string(offset));
}

constexpr std::string_view xmlSpace = " \t\r\n";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(xmlSpace);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(xmlSpace) - first + 1);
}

bool isInteger(std::string_view text) {
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) {
        text.remove_prefix(2);
    }
    std::uint64_t number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
    return error == std::errc() && end == text.data() + text.size() &&
           (!negative || number <= std::uint64_t{1} << 63);
}

bool isReal(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return false;
        }
    }
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

// 2001-01-31T23:59:59Z; libplist writes the year 99 with two digits.
bool isDate(std::string_view text) {
    text = trimmed(text);
    constexpr std::string_view shape = "-00-00T00:00:00Z";
    const auto year = std::min(text.find('-'), text.size());
    if (year < 1 || year > 4 || text.size() != year + shape.size() ||
        !std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(year),
                     isAsciiDigit<char>)) {
        return false;
    }
    text.remove_prefix(year);
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] == '0' ? !isAsciiDigit(text[i]) : text[i] != shape[i]) {
            return false;
        }
    }
    const auto field = [text](std::size_t at) {
        return (text[at] - '0') * 10 + (text[at + 1] - '0');
    };
    return field(1) >= 1 && field(1) <= 12 && field(4) >= 1 && field(4) <= 31 && field(7) <= 23 &&
           field(10) <= 59 && field(13) <= 59;
}

bool isBase64(std::string_view text) {
    std::size_t letters = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        const bool letter = isAsciiLetterOrDigit(c) || c == '+' || c == '/';
        if (xmlSpace.find(c) != std::string_view::npos) {
            continue;
        }
        if (c == '=') {
            ++padding;
        } else if (letter && padding == 0) {
            ++letters;
        } else {
            return false;
        }
    }
    return padding <= 2 && (letters + padding) % 4 == 0;
}

class XmlCheck {
  public:
    explicit XmlCheck(std::string_view bytes)
        : bytes_(bytes) {}

    void document() {
        skipBetweenElements();
        if (tag() != "plist" || selfClosing_) {
            wrong("no <plist> element", at_);
        }
        skipBetweenElements();
        value(tag(), 1);
        skipBetweenElements();
        endTag("plist");
        skipBetweenElements();
        if (at_ != bytes_.size()) {
            wrong("something after </plist>", at_);
        }
    }

  private:
    bool take(std::string_view expected) {
        const bool there = bytes_.substr(at_).starts_with(expected);
        at_ += there ? expected.size() : 0;
        return there;
    }

    // Moves behind the next `end`; there must be one.
    std::string_view upTo(std::string_view end) {
        const auto found = bytes_.find(end, at_);
        if (found == std::string_view::npos) {
            wrong("the list ends too early: no " + std::string(end), bytes_.size());
        }
        const auto passed = bytes_.substr(at_, found - at_);
        at_ = found + end.size();
        return passed;
    }

    void skipSpace() {
        const auto next = bytes_.find_first_not_of(xmlSpace, at_);
        at_ = next == std::string_view::npos ? bytes_.size() : next;
    }

    void skipBetweenElements() {
        for (;;) {
            skipSpace();
            const auto start = at_;
            if (take("<!--")) {
                upTo("-->");
            } else if (take("<?")) {
                upTo("?>");
            } else if (take("<!DOCTYPE")) {
                if (upTo(">").find('[') != std::string_view::npos) {
                    wrong("a document type with declarations of its own", start);
                }
            } else {
                return;
            }
        }
    }

    // The name of a start tag; only <plist> may have attributes.
    std::string_view tag() {
        const auto start = at_;
        if (!take("<")) {
            wrong(at_ == bytes_.size() ? "the list ends too early" : "text between elements", at_);
        }
        auto inside = upTo(">");
        if (inside.find('<') != std::string_view::npos) {
            wrong("< within a tag", start);
        }
        selfClosing_ = inside.ends_with('/');
        inside.remove_suffix(selfClosing_ ? 1 : 0);
        const auto name = inside.substr(0, inside.find_first_of(xmlSpace));
        if (name != "plist" && !trimmed(inside.substr(name.size())).empty()) {
            wrong("attributes that a property list does not have", start);
        }
        return name;
    }

    void endTag(std::string_view name) {
        const auto start = at_;
        if (!take("</") || trimmed(upTo(">")) != name) {
            wrong("</" + std::string(name) + "> is missing", start);
        }
    }

    void value(std::string_view name, int depth) {
        const auto start = at_;
        if (++values_ > Limits::values) {
            wrong("too many values", start);
        }
        if (depth > Limits::depth) {
            wrong("nested too deeply", start);
        }
        if (name == "dict" || name == "array") {
            container(name, depth);
        } else if (name == "string" || name == "data") {
            const auto text = leaf(name);
            if (name == "data" && !isBase64(text)) {
                wrong("data that is not base64", start);
            }
        } else if (name == "true" || name == "false") {
            if (!trimmed(leaf(name)).empty()) {
                wrong("text in <" + std::string(name) + ">", start);
            }
        } else if (name == "integer" || name == "real" || name == "date") {
            const auto text = leaf(name);
            if (name == "integer" ? !isInteger(text)
                : name == "real"  ? !isReal(text)
                                  : !isDate(text)) {
                wrong("not a valid <" + std::string(name) + ">", start);
            }
        } else {
            wrong("an element that property lists do not have", start);
        }
    }

    void container(std::string_view name, int depth) {
        if (selfClosing_) {
            return;
        }
        for (;;) {
            skipBetweenElements();
            if (bytes_.substr(at_).starts_with("</")) {
                return endTag(name);
            }
            if (name == "dict") {
                const auto start = at_;
                if (tag() != "key") {
                    wrong("a dictionary's value without a key", start);
                }
                leaf("key");
                skipBetweenElements();
            }
            value(tag(), depth + 1);
        }
    }

    // The text of an element without children, as it stands in the file.
    std::string_view leaf(std::string_view name) {
        const auto start = at_;
        if (selfClosing_) {
            return {};
        }
        const bool text = name == "string" || name == "key";
        for (;;) {
            const auto piece = at_;
            at_ = std::min(bytes_.find('<', at_), bytes_.size());
            references(piece, text);
            if (!text || !take("<![CDATA[")) {
                break;
            }
            upTo("]]>");
        }
        const auto passed = bytes_.substr(start, at_ - start);
        endTag(name);
        return passed;
    }

    void references(std::size_t from, bool allowed) const {
        const auto piece = bytes_.substr(from, at_ - from);
        for (auto and_ = piece.find('&'); and_ != std::string_view::npos;
             and_ = piece.find('&', and_ + 1)) {
            const auto end = piece.find(';', and_);
            const auto name =
                end == std::string_view::npos ? "" : piece.substr(and_ + 1, end - and_ - 1);
            if (!allowed || !isReference(name)) {
                wrong("a character reference that is not one", from + and_);
            }
        }
    }

    static bool isReference(std::string_view name) {
        for (const std::string_view known : {"amp", "lt", "gt", "quot", "apos"}) {
            if (name == known) {
                return true;
            }
        }
        if (!name.starts_with('#')) {
            return false;
        }
        name.remove_prefix(1);
        const bool hexadecimal = name.starts_with('x');
        name.remove_prefix(hexadecimal ? 1 : 0);
        std::uint32_t point = 0;
        const auto [end, error] =
            std::from_chars(name.data(), name.data() + name.size(), point, hexadecimal ? 16 : 10);
        return error == std::errc() && end == name.data() + name.size() && name.size() <= 8 &&
               point != 0 && point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
    }

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::size_t values_ = 0;
    bool selfClosing_ = false;
};

// The form: "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes.
class BinaryCheck {
  public:
    explicit BinaryCheck(std::string_view bytes)
        : bytes_(bytes) {}

    void document() {
        constexpr std::size_t headerSize = 8;
        constexpr std::size_t trailerSize = 32;
        if (bytes_.size() < headerSize + trailerSize) {
            wrong("the list ends too early", bytes_.size());
        }
        const std::size_t trailer = bytes_.size() - trailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        objects_ = number(trailer + 8, 8);
        const auto root = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
        if (offsetSize_ < 1 || offsetSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8 ||
            table_ < headerSize || table_ > trailer ||
            objects_ > (trailer - table_) / offsetSize_ || root >= objects_) {
            wrong("a trailer that does not fit the file", trailer);
        }
        object(root, 1, false);
    }

  private:
    std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i) {
            value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
        }
        return value;
    }

    // Objects lie between the header and the offset table.
    void need(std::size_t at, std::uint64_t size) const {
        if (at > table_ || size > table_ - at) {
            wrong("an object that reaches past the objects", at);
        }
    }

    void object(std::uint64_t index, int depth, bool asKey) {
        if (index >= objects_) {
            wrong("a reference to an object that is not there", table_);
        }
        const std::uint64_t start = number(table_ + index * offsetSize_, offsetSize_);
        if (start < 8 || start >= table_) {
            wrong("an offset outside the objects", table_ + index * offsetSize_);
        }
        if (++values_ > Limits::values) {
            wrong("too many values", start);
        }
        if (depth > Limits::depth) {
            wrong("nested too deeply", start);
        }
        std::size_t at = start;
        const auto marker = static_cast<unsigned char>(bytes_[at++]);
        const unsigned kind = marker >> 4;
        const unsigned low = marker & 0xF;
        if (asKey && kind != 0x5 && kind != 0x6) {
            wrong("a dictionary's key that is not a string", start);
        }
        switch (kind) {
        case 0x0:
            if (low != 0x8 && low != 0x9) {
                wrong("an object of no known kind", start);
            }
            return;
        case 0x1:
            return integer(start, at, low);
        case 0x2:
        case 0x3:
            return real(start, at, low, kind == 0x3);
        case 0x8:
            need(at, low + 1u);
            if (low + 1u > 8 || number(at, low + 1u) > 0xFFFFFFFFu) {
                wrong("a reference above 32 bits", start);
            }
            return;
        default:
            return sized(kind, start, at, low, depth);
        }
    }

    void integer(std::size_t start, std::size_t at, unsigned low) const {
        const std::size_t size = std::size_t{1} << low;
        if (low > 4) {
            wrong("an integer of no known size", start);
        }
        need(at, size);
        if (low == 4 && number(at, 8) != 0) {
            wrong("an integer above 64 bits", start);
        }
    }

    void real(std::size_t start, std::size_t at, unsigned low, bool isDate) const {
        const std::size_t size = std::size_t{1} << low;
        if (low != 3 && (low != 2 || isDate)) {
            wrong("a number of no known size", start);
        }
        need(at, size);
        if (isDate) {
            const std::uint64_t bits = number(at, 8);
            double seconds = 0;
            std::memcpy(&seconds, &bits, sizeof seconds);
            if (!(seconds >= firstDate && seconds <= lastDate)) {
                wrong("a date outside the calendar", start);
            }
        }
    }

    void sized(unsigned kind, std::size_t start, std::size_t at, unsigned low, int depth) {
        std::uint64_t count = low;
        if (low == 0xF) {
            need(at, 1);
            const auto marker = static_cast<unsigned char>(bytes_[at++]);
            const std::size_t size = std::size_t{1} << (marker & 0xF);
            if (marker >> 4 != 0x1 || size > 8) {
                wrong("a length that is not an integer", start);
            }
            need(at, size);
            count = number(at, size);
            at += size;
        }
        if (count > Limits::bytes) {
            wrong("a length beyond the limits", start);
        }
        const std::uint64_t unit = kind == 0x6              ? 2
                                   : kind == 0xA            ? referenceSize_
                                   : kind == 0xD            ? 2 * referenceSize_
                                   : kind == 4 || kind == 5 ? 1
                                                            : 0;
        if (unit == 0) {
            wrong("an object of no known kind", start);
        }
        need(at, count * unit);
        // A large text that is referred to many times is copied for each use, so it is counted each
        // time.
        expanded_ += count * unit;
        if (expanded_ > Limits::bytes) {
            wrong("too much text and data", start);
        }
        if (kind == 0x5 || kind == 0x6) {
            string(start, at, count, unit);
        }
        if (kind == 0xA || kind == 0xD) {
            for (std::uint64_t i = 0; i < count * (kind == 0xD ? 2 : 1); ++i) {
                object(number(at + i * referenceSize_, referenceSize_), depth + 1,
                       kind == 0xD && i < count);
            }
        }
    }

    void string(std::size_t start, std::size_t at, std::uint64_t count, std::uint64_t unit) const {
        bool high = false; // a high surrogate came just before
        for (std::uint64_t i = 0; i < count; ++i) {
            const auto value = number(at + i * unit, unit);
            const bool low = value >= 0xDC00 && value <= 0xDFFF;
            if (value == 0 || high != low || (unit == 1 && value > 0x7F)) {
                wrong("a string that is not Unicode text", start);
            }
            high = value >= 0xD800 && value <= 0xDBFF;
        }
        if (high) {
            wrong("a string that is not Unicode text", start);
        }
    }

    std::string_view bytes_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t objects_ = 0;
    std::uint64_t table_ = 0;
    std::uint64_t expanded_ = 0;
    std::size_t values_ = 0;
};

template <class Check>
std::string run(std::string_view bytes) {
    try {
        Check(bytes).document();
        return {};
    } catch (const Wrong &error) {
        return error.what();
    }
}

} // namespace

std::string whatIsWrongWithXml(std::string_view bytes) {
    if (const auto nul = bytes.find('\0'); nul != std::string_view::npos) {
        return "a zero byte at byte " + std::to_string(nul);
    }
    if (const auto invalid = text::utf8ToUtf16(bytes).invalidAt) {
        return "invalid UTF-8 at byte " + std::to_string(*invalid);
    }
    return run<XmlCheck>(bytes);
}

std::string whatIsWrongWithBinary(std::string_view bytes) {
    return run<BinaryCheck>(bytes);
}

} // namespace nerlo::storage
