#include "text/Utf.h"

#include "text/Simd.h"
#include "text/UtfVectors.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace nerlo::text {

namespace {

constexpr char32_t replacementCharacter = U'\uFFFD';
constexpr std::size_t chunk = 32;         // units or bytes looked at together
constexpr std::size_t blockSize = 16'384; // units made at a time, to stay in the cache

unsigned byteOf(char byte) {
    return static_cast<unsigned char>(byte);
}

std::size_t least(std::ptrdiff_t a, std::ptrdiff_t b) {
    return static_cast<std::size_t>(std::min(a, b));
}

// `yes` when the condition is 1, `no` when it is 0. Written with a mask because the compiler makes
// a branch of "?:", which is mispredicted on mixed texts.
std::uint32_t select(std::uint32_t condition, std::uint32_t yes, std::uint32_t no) {
    return (yes & (0 - condition)) | (no & (condition - 1));
}

template <class Value>
constexpr std::size_t wordful = sizeof(std::uint64_t) / sizeof(Value);

// How many of the values at `from` that fill a word come before the first that is not ASCII.
template <class Value>
std::size_t asciiPrefix(const Value *from) {
    constexpr std::uint64_t high = sizeof(Value) == 1 ? 0x8080808080808080u : 0xFF80FF80FF80FF80u;
    std::uint64_t values = 0;
    std::memcpy(&values, from, sizeof values);
    return static_cast<std::size_t>(std::countr_zero(values & high)) / (8 * sizeof(Value));
}

// The same, and copies them. All values of the word at `to` may be overwritten.
template <class From, class To>
std::size_t copyAsciiOfWord(const From *__restrict from, To *__restrict to) {
    for (std::size_t i = 0; i < wordful<From>; ++i) {
        to[i] = static_cast<To>(static_cast<std::make_unsigned_t<From>>(from[i]));
    }
    return asciiPrefix(from);
}

// Copies the leading ASCII of `count` values and says how many they are, not counting the last few
// that make no whole chunk. What follows them at `to` may be overwritten up to `count`.
template <class From, class To>
inline __attribute__((always_inline)) std::size_t copyAscii(const From *__restrict from,
                                                            std::size_t count, To *__restrict to) {
    std::size_t at = 0;
    for (; at + chunk <= count; at += chunk) {
        unsigned all = 0;
        for (std::size_t i = 0; i < chunk; ++i) {
            const auto value = static_cast<std::make_unsigned_t<From>>(from[at + i]);
            all |= value;
            to[at + i] = static_cast<To>(value);
        }
        if (all >= 0x80) {
            std::size_t prefix = wordful<From>;
            while (prefix == wordful<From>) {
                prefix = asciiPrefix(from + at);
                at += prefix;
            }
            break;
        }
    }
    return at;
}

NERLO_CLONES std::size_t widenAscii(const char *bytes, std::size_t count, char16_t *units) {
    return copyAscii(bytes, count, units);
}

NERLO_CLONES std::size_t narrowAscii(const char16_t *units, std::size_t count, char *bytes) {
    return copyAscii(units, count, bytes);
}

// The length of the well-formed sequence at `at`, which `left` bytes follow; 0 when it is none, or
// is not complete.
std::size_t decodeOne(const char *at, std::size_t left, char32_t &character) {
    const unsigned lead = byteOf(at[0]);
    const auto trail = [at](std::size_t offset) { return byteOf(at[offset]) ^ 0x80u; };
    if (lead < 0x80) {
        character = lead;
        return 1;
    }
    if (lead < 0xE0) {
        if (lead < 0xC2 || left < 2 || trail(1) > 0x3F) {
            return 0;
        }
        character = (lead & 0x1Fu) << 6 | trail(1);
        return 2;
    }
    if (lead < 0xF0) {
        if (left < 3 || (trail(1) | trail(2)) > 0x3F) {
            return 0;
        }
        character = (lead & 0x0Fu) << 12 | trail(1) << 6 | trail(2);
        return character < 0x800 || (character >> 11) == 0x1B ? 0 : 3;
    }
    if (lead > 0xF4 || left < 4 || (trail(1) | trail(2) | trail(3)) > 0x3F) {
        return 0;
    }
    character = (lead & 0x07u) << 18 | trail(1) << 12 | trail(2) << 6 | trail(3);
    return character < 0x10000 || character > 0x10FFFF ? 0 : 4;
}

// Whether `bytes`, which do not begin with a complete sequence, could be the beginning of one.
bool mayBeIncomplete(std::string_view bytes) {
    const unsigned lead = byteOf(bytes[0]);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() >= length) {
        return false;
    }
    // The second byte has limits of its own: no overlong forms, surrogates or too large values.
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (bytes.size() > 1 && (byteOf(bytes[1]) < lowest || byteOf(bytes[1]) > highest)) {
        return false;
    }
    return bytes.size() < 3 || (byteOf(bytes[2]) & 0xC0) == 0x80;
}

NERLO_CLONES std::size_t asciiBlocks(const char *bytes, std::size_t count) {
    std::size_t at = 0;
    for (; at + chunk <= count; at += chunk) {
        unsigned char all = 0;
        for (std::size_t i = 0; i < chunk; ++i) {
            all = static_cast<unsigned char>(all | static_cast<unsigned char>(bytes[at + i]));
        }
        if (all >= 0x80) {
            break;
        }
    }
    return at;
}

// How many bytes at the front are complete, well-formed sequences.
std::size_t wellFormedPrefix(std::string_view bytes) {
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    if (hasUtfVectors()) {
        at += checkUtf8Vectors(bytes);
        // The last sequence may go on behind them.
        do {
            at -= at > bytes.data() ? 1 : 0;
        } while (at > bytes.data() && (byteOf(*at) & 0xC0) == 0x80);
    }
    while (at < end) {
        if (end - at >= static_cast<std::ptrdiff_t>(wordful<char>)) {
            const std::size_t ascii = asciiPrefix(at);
            at += ascii;
            if (ascii == wordful<char>) {
                at += asciiBlocks(at, static_cast<std::size_t>(end - at));
                continue;
            }
        }
        do {
            char32_t character = 0;
            const std::size_t length = decodeOne(at, static_cast<std::size_t>(end - at), character);
            if (length == 0) {
                return static_cast<std::size_t>(at - bytes.data());
            }
            at += length;
        } while (at < end && byteOf(*at) >= 0x80);
    }
    return bytes.size();
}

// Decodes until the bytes end, do not go on, or `room` may not hold another chunk. Returns the
// number of bytes taken; the units go to `to`.
std::size_t decodeBlock(std::string_view bytes, char16_t *const to, std::size_t room,
                        std::size_t &written) {
    if (hasUtfVectors() && bytes.size() >= 2 * chunk) {
        const std::size_t size = wellFormedPrefix(bytes.substr(0, room - chunk));
        written = decodeUtf8Vectors(bytes.substr(0, size), to);
        return size;
    }
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    char16_t *unit = to;
    const char16_t *const full = to + room - chunk;
    bool wellFormed = true;
    while (wellFormed && at < end && unit <= full) {
        if (end - at >= 8) {
            const std::size_t ascii = copyAsciiOfWord(at, unit);
            at += ascii;
            unit += ascii;
            if (ascii == wordful<char> && unit <= full) {
                const std::size_t more = widenAscii(at, least(end - at, to + room - unit), unit);
                at += more;
                unit += more;
            }
            if (at == end || unit > full) {
                continue;
            }
        }
        // Sequences come in runs, words of them with single spaces between.
        do {
            const unsigned first = byteOf(at[0]);
            if (first < 0xE0 && end - at >= 2) {
                // One byte or two, without a branch: on mixed texts it would be mispredicted half
                // the time.
                const unsigned second = byteOf(at[1]) ^ 0x80u;
                const unsigned two = first >> 7; // 1 for two
                if ((two & static_cast<unsigned>((first < 0xC2) | (second > 0x3F))) != 0) {
                    wellFormed = false;
                    break;
                }
                *unit++ = static_cast<char16_t>(select(two, (first & 0x1F) << 6 | second, first));
                at += 1 + two;
                continue;
            }
            char32_t character = 0;
            const std::size_t length = decodeOne(at, static_cast<std::size_t>(end - at), character);
            if (length == 0) {
                wellFormed = false;
                break;
            }
            at += length;
            if (character < 0x10000) {
                *unit++ = static_cast<char16_t>(character);
            } else {
                *unit++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
                *unit++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
            }
        } while (unit <= full && end - at >= 2 && (byteOf(at[0]) | byteOf(at[1])) >= 0x80);
    }
    written = static_cast<std::size_t>(unit - to);
    return static_cast<std::size_t>(at - bytes.data());
}

} // namespace

void Utf8Decoder::decode(std::string_view bytes, std::u16string &to) {
    std::array<char16_t, blockSize> block;
    while (!bytes.empty() && !invalidAt_) {
        std::size_t units = 0;
        if (!pending_.empty()) {
            pending_.push_back(bytes.front());
            bytes.remove_prefix(1);
            if (decodeBlock(pending_, block.data(), block.size(), units) == pending_.size()) {
                to.append(block.data(), units);
                consumed_ += pending_.size();
                pending_.clear();
            } else if (!mayBeIncomplete(pending_)) {
                invalidAt_ = consumed_;
            }
            continue;
        }
        const std::size_t taken = decodeBlock(bytes, block.data(), block.size(), units);
        to.append(block.data(), units);
        consumed_ += taken;
        bytes.remove_prefix(taken);
        if (!bytes.empty() && taken == 0) {
            if (mayBeIncomplete(bytes)) {
                pending_ = bytes;
                return;
            }
            invalidAt_ = consumed_;
        }
    }
}

void Utf8Decoder::finish() {
    if (!pending_.empty() && !invalidAt_) {
        invalidAt_ = consumed_;
    }
}

std::string_view Utf8Checker::next(std::string_view &bytes) {
    while (!pending_.empty() && !bytes.empty() && !invalidAt_) {
        pending_.push_back(bytes.front());
        bytes.remove_prefix(1);
        if (wellFormedPrefix(pending_) == pending_.size()) {
            consumed_ += pending_.size();
            completed_ = std::exchange(pending_, {});
            return completed_;
        }
        if (!mayBeIncomplete(pending_)) {
            invalidAt_ = consumed_;
        }
    }
    const std::string_view whole =
        bytes.substr(0, bytes.empty() || invalidAt_ ? 0 : wellFormedPrefix(bytes));
    const std::string_view rest = bytes.substr(whole.size());
    consumed_ += whole.size();
    if (!rest.empty() && !invalidAt_) {
        if (mayBeIncomplete(rest)) {
            pending_ = rest;
        } else {
            invalidAt_ = consumed_;
        }
    }
    bytes = {};
    return whole;
}

void Utf8Checker::finish() {
    if (!pending_.empty() && !invalidAt_) {
        invalidAt_ = consumed_;
    }
}

Utf16Result utf8ToUtf16(std::string_view bytes) {
    Utf16Result result;
    result.text.reserve(bytes.size());
    Utf8Decoder decoder;
    decoder.decode(bytes, result.text);
    decoder.finish();
    result.invalidAt = decoder.invalidAt();
    return result;
}

std::size_t encodeUtf8(std::u16string_view &text, std::span<char> room) {
    const char16_t *at = text.data();
    const char16_t *const end = at + text.size();
    char *to = room.data();
    const char *const full = to + room.size();
    const bool vectors = hasUtfVectors();
    while (at < end && full - to >= 4) {
        if (vectors) {
            encodeUtf8Vectors(at, end, to, full);
            if (at == end || full - to < 4) {
                continue;
            }
        } else if (end - at >= 4) {
            const std::size_t ascii = copyAsciiOfWord(at, to);
            at += ascii;
            to += ascii;
            if (ascii == wordful<char16_t>) {
                const std::size_t more = narrowAscii(at, least(end - at, full - to), to);
                at += more;
                to += more;
            }
            if (at == end || full - to < 4) {
                continue;
            }
        }
        // Others come in runs, words of them with single spaces between.
        do {
            char32_t character = *at++;
            if (character < 0x800) {
                // One byte or two, without a branch that nobody can foresee.
                const std::uint32_t unit = character;
                const std::uint32_t two = (0x7F - unit) >> 31; // 1 for two
                to[0] = static_cast<char>(select(two, 0xC0 | unit >> 6, unit));
                to[1] = static_cast<char>(0x80 | (unit & 0x3F));
                to += 1 + two;
                continue;
            }
            if ((character & 0xF800) == 0xD800) {
                if (character < 0xDC00 && at < end && (*at & 0xFC00) == 0xDC00) {
                    character = 0x10000 + ((character & 0x3FF) << 10) + (*at++ & 0x3FFu);
                    *to++ = static_cast<char>(0xF0 | character >> 18);
                    *to++ = static_cast<char>(0x80 | (character >> 12 & 0x3F));
                    *to++ = static_cast<char>(0x80 | (character >> 6 & 0x3F));
                    *to++ = static_cast<char>(0x80 | (character & 0x3F));
                    continue;
                }
                character = replacementCharacter;
            }
            *to++ = static_cast<char>(0xE0 | character >> 12);
            *to++ = static_cast<char>(0x80 | (character >> 6 & 0x3F));
            *to++ = static_cast<char>(0x80 | (character & 0x3F));
        } while (full - to >= 4 && end - at >= 2 && (at[0] | at[1]) >= 0x80 &&
                 (!vectors || end - at < static_cast<std::ptrdiff_t>(chunk)));
    }
    text.remove_prefix(static_cast<std::size_t>(at - text.data()));
    return static_cast<std::size_t>(to - room.data());
}

void appendUtf8(std::string &to, std::u16string_view text) {
    std::array<char, blockSize> block;
    while (!text.empty()) {
        const std::size_t size = encodeUtf8(text, block);
        to.append(block.data(), size);
    }
}

std::string utf16ToUtf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size() + text.size() / 16);
    appendUtf8(bytes, text);
    return bytes;
}

} // namespace nerlo::text
