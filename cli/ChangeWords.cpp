#include "cli/ChangeWords.h"

#include "text/Characters.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace nerlo::cli {

namespace {

constexpr std::size_t mostShown = 40;   // characters
constexpr std::size_t shownAround = 12; // units on either side of a change

// Letters, marks and symbols by their category, of which no font shows anything.
constexpr std::array<std::pair<char32_t, char32_t>, 12> blanks{{{0x034F, 0x034F},
                                                                {0x115F, 0x1160},
                                                                {0x17B4, 0x17B5},
                                                                {0x180B, 0x180F},
                                                                {0x2800, 0x2800},
                                                                {0x3164, 0x3164},
                                                                {0xD800, 0xDFFF},
                                                                {0xFE00, 0xFE0F},
                                                                {0xFFA0, 0xFFA0},
                                                                {0xFFFC, 0xFFFC},
                                                                {0x1D159, 0x1D159},
                                                                {0xE0100, 0xE01EF}}};

bool canBeSeen(char32_t character) {
    const bool blank = std::ranges::any_of(blanks, [&](const auto &range) {
        return character >= range.first && character <= range.second;
    });
    return !blank && text::isShown(character);
}

// Written by hand: of thousands of findings most show a space.
void appendCode(std::string &to, char32_t character) {
    to += "U+";
    for (int shift = character > 0xFFFFF  ? 20
                     : character > 0xFFFF ? 16
                                          : 12;
         shift >= 0; shift -= 4) {
        to += "0123456789ABCDEF"[character >> shift & 0xF];
    }
}

} // namespace

std::string shown(std::u16string_view text) {
    std::string result;
    bool quoted = false;
    const auto seen = [&](std::size_t at) {
        return at < text.size() && canBeSeen(text::characterAt(text, at));
    };
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size() && count <= mostShown; ++count) {
        const char32_t character = text::characterAt(text, at);
        const std::size_t size = text::sizeOf(character);
        const bool inQuotes = seen(at) || (character == U' ' && quoted && seen(at + 1));
        if (!inQuotes || !quoted) { // another part begins
            result += quoted ? "\" " : result.empty() ? "" : " ";
            result += inQuotes ? "\"" : "";
        }
        quoted = inQuotes;
        if (count == mostShown) {
            result += "\u2026";
        } else {
            inQuotes ? void(result += text::utf16ToUtf8(text.substr(at, size)))
                     : appendCode(result, character);
        }
        at += size;
    }
    return result + (quoted ? "\"" : "");
}

std::string effectOf(const engine::TracedChange &change) {
    if (change.added.empty()) {
        return "removes " + shown(change.removed);
    }
    if (change.removed.empty()) {
        return "adds " + shown(change.added);
    }
    return shown(change.removed) + " becomes " + shown(change.added);
}

std::string surroundingsOf(text::Range place, std::u16string_view text) {
    std::size_t begin = place.begin - std::min(place.begin, shownAround);
    std::size_t end = std::min(place.end + shownAround, text.size());
    begin += text::cutsPair(text, begin) ? 1 : 0;
    end -= text::cutsPair(text, end) ? 1 : 0;
    std::string words;
    if (begin < place.begin) {
        words += " after " + shown(text.substr(begin, place.begin - begin));
    }
    if (end > place.end) {
        words += (words.empty() ? " before " : ", before ") +
                 shown(text.substr(place.end, end - place.end));
    }
    return words;
}

std::string nameOf(const engine::TraceStep &step) {
    std::string name(step.operation->name);
    if (step.rule != 0) {
        name += ", rule " + std::to_string(step.rule);
    }
    if (!step.characters.empty()) {
        name.append(", ").append(step.characters);
    }
    return name;
}

} // namespace nerlo::cli
