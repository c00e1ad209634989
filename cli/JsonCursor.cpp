#include "cli/JsonCursor.h"

#include "text/Simd.h"
#include "text/Utf.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace nerlo::cli {

namespace {

constexpr std::size_t block = 64; // bytes looked at together

// What ends a run of plain bytes in a string.
constexpr bool isSpecial(char byte) {
    return byte == '"' || byte == '\\' || static_cast<unsigned char>(byte) < 0x20;
}

NERLO_CLONES std::uint64_t specialOfBlock(const char *bytes) {
    std::uint8_t flags[block];
    for (std::size_t i = 0; i < block; ++i) {
        const auto byte = static_cast<std::uint8_t>(bytes[i]);
        flags[i] = static_cast<std::uint8_t>((byte == '"') | (byte == '\\') | (byte < 0x20));
    }
    return text::packFlags(flags);
}

// The first special byte at or after `from`, or the line's size.
std::size_t findSpecial(std::string_view line, std::size_t from) {
    for (; from + block <= line.size(); from += block) {
        if (const std::uint64_t mask = specialOfBlock(line.data() + from)) {
            return from + static_cast<std::size_t>(std::countr_zero(mask));
        }
    }
    return static_cast<std::size_t>(
        std::find_if(line.begin() + static_cast<std::ptrdiff_t>(from), line.end(), isSpecial) -
        line.begin());
}

bool isAscii(std::string_view bytes) {
    unsigned all = 0;
    for (const char byte : bytes) {
        all |= static_cast<unsigned char>(byte);
    }
    return all < 0x80;
}

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

} // namespace

void checkUtf8(std::string_view line, std::size_t begin, std::size_t end) {
    const std::string_view bytes = line.substr(begin, end - begin);
    if (isAscii(bytes)) {
        return;
    }
    if (const auto at = text::utf8ToUtf16(bytes).invalidAt) {
        throw BadLine("invalid UTF-8 at byte " + std::to_string(begin + *at));
    }
}

JsonCursor::JsonCursor(std::string_view line)
    : line_(line) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    at_ = line.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
}

char JsonCursor::peek() {
    for (; at_ < line_.size(); ++at_) {
        const char c = line_[at_];
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') {
            return c;
        }
    }
    return '\0';
}

void JsonCursor::fail() const {
    checkUtf8(line_, 0, line_.size()); // which explains more
    throw BadLine("invalid JSON at byte " + std::to_string(at_));
}

void JsonCursor::step(char expected) {
    if (peek() != expected) {
        fail();
    }
    ++at_;
}

bool JsonCursor::enter(char open, char close) {
    step(open);
    if (peek() != close) {
        return true;
    }
    ++at_;
    return false;
}

bool JsonCursor::goesOn(char close) {
    if (peek() == ',') {
        ++at_;
        return true;
    }
    step(close);
    return false;
}

std::string_view JsonCursor::memberName() {
    const std::string_view name = string();
    step(':');
    return name;
}

std::string_view JsonCursor::string() {
    peek();
    const std::size_t start = at_;
    step('"');
    for (;;) {
        at_ = findSpecial(line_, at_);
        while (at_ < line_.size() && line_[at_] == '\\') {
            escape();
        }
        if (at_ < line_.size() && line_[at_] == '"') {
            ++at_;
            return line_.substr(start, at_ - start);
        }
        if (at_ == line_.size() || isSpecial(line_[at_])) {
            fail();
        }
    }
}

void JsonCursor::escape() {
    constexpr std::string_view single = "\"\\/bfnrt";
    ++at_;
    if (at_ < line_.size() && line_[at_] == 'u') {
        const std::size_t end = at_ + 5;
        while (++at_ < end) {
            if (at_ >= line_.size() || !isHexDigit(line_[at_])) {
                fail();
            }
        }
        return;
    }
    if (at_ == line_.size() || single.find(line_[at_]) == std::string_view::npos) {
        fail();
    }
    ++at_;
}

bool JsonCursor::isDigit() const {
    return at_ < line_.size() && line_[at_] >= '0' && line_[at_] <= '9';
}

void JsonCursor::digits() {
    if (!isDigit()) {
        fail();
    }
    while (isDigit()) {
        ++at_;
    }
}

void JsonCursor::number() {
    const auto passes = [this](char a, char b) {
        const bool is = at_ < line_.size() && (line_[at_] == a || line_[at_] == b);
        at_ += is ? 1 : 0;
        return is;
    };
    passes('-', '-');
    if (!passes('0', '0')) {
        digits();
    }
    if (passes('.', '.')) {
        digits();
    }
    if (passes('e', 'E')) {
        passes('+', '-');
        digits();
    }
}

void JsonCursor::word() {
    for (const std::string_view known : {"true", "false", "null"}) {
        if (at_ < line_.size() && line_[at_] == known[0]) {
            for (const char c : known) {
                if (at_ == line_.size() || line_[at_] != c) {
                    fail();
                }
                ++at_;
            }
            return;
        }
    }
    fail();
}

std::string_view JsonCursor::value() {
    peek();
    const std::size_t start = at_;
    std::string closing; // of the brackets that are open, the innermost last
    for (;;) {
        const char first = peek();
        if (first == '{' || first == '[') {
            const char close = first == '{' ? '}' : ']';
            if (enter(first, close)) {
                closing.push_back(close);
                if (first == '{') {
                    memberName();
                }
                continue;
            }
        } else if (first == '"') {
            string();
        } else if (first == '-' || isDigit()) {
            number();
        } else {
            word();
        }
        while (!closing.empty() && !goesOn(closing.back())) {
            closing.pop_back();
        }
        if (closing.empty()) {
            return line_.substr(start, at_ - start);
        }
        if (closing.back() == '}') {
            memberName();
        }
    }
}

void JsonCursor::finish() {
    peek();
    if (at_ != line_.size()) {
        fail();
    }
}

} // namespace nerlo::cli
