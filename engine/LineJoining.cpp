#include "engine/LineJoining.h"

#include "engine/Whitespace.h"
#include "text/CaseMapping.h"
#include "text/UnitScan.h"

#include <utility>

namespace nerlo::engine {

namespace {

using text::LetterCase;

constexpr std::u16string_view sentenceMarks = u".?!\u2026\u00B7\u3002\u22C5\u30FB\u1427\u2024_:";

constexpr text::UnitSet lineBreaks(u"\r\n");

// One pass over the lines of a text, in the text's own memory: a line is copied down to its place
// at once, and what can still change is only what stands between it and the next one. The result is
// never longer: each line break gives way to one unit at most. Only the last line may get a break
// that it did not have.
class JoiningPass {
  public:
    JoiningPass(std::u16string &text, bool withSpace, bool inputHasSpace)
        : text_(text)
        , withSpace_(withSpace)
        , inputHasSpace_(inputHasSpace) {}

    void run() {
        const std::size_t size = text_.size();
        text_.push_back(u'\n'); // room for a last break
        text::UnitCursor cursor(std::u16string_view(text_).substr(0, size), lineBreaks);
        for (std::size_t begin = 0; begin <= size;) {
            const std::size_t end = cursor.next();
            if (end > begin) {
                take(begin, end);
            }
            begin = end + 1;
        }
        if (pending_) {
            text_[to_++] = u'\n';
        }
        text_.resize(to_);
    }

  private:
    void take(std::size_t begin, std::size_t end) {
        const std::u16string_view line(text_.data() + begin, end - begin);
        const bool begins = checkLineForFirstSentenceChar(line);
        if (!checkLineForEndSentenceChar(line, false)) {
            if (open_ && begins) {
                open_ = false;
                if (pending_) {
                    join();
                    put(begin, end);
                    close();
                } else {
                    start(begin, end);
                }
            } else {
                if (pending_) {
                    join();
                    put(begin, end);
                } else {
                    start(begin, end);
                }
                open_ = true;
            }
        } else {
            if (pending_) {
                const bool apart =
                    inputHasSpace_ && begins && checkLineForEndSentenceChar(pendingText(), true);
                if (apart) {
                    text_[to_++] = u'\n';
                } else {
                    join();
                }
            }
            put(begin, end);
            close();
        }
    }

    std::u16string_view pendingText() const {
        return std::u16string_view(text_).substr(pendingBegin_, to_ - pendingBegin_);
    }

    void start(std::size_t begin, std::size_t end) {
        pendingBegin_ = to_;
        put(begin, end);
        pending_ = true;
    }

    void join() {
        if (withSpace_) {
            text_[to_++] = u' ';
        }
    }

    void put(std::size_t begin, std::size_t end) {
        if (to_ != begin) {
            std::char_traits<char16_t>::move(text_.data() + to_, text_.data() + begin, end - begin);
        }
        to_ += end - begin;
    }

    void close() {
        text_[to_++] = u'\n';
        pending_ = false;
    }

    std::u16string &text_;
    const bool withSpace_;
    const bool inputHasSpace_;
    bool pending_ = false; // the lines from pendingBegin_ on may get another one joined
    bool open_ = false;    // the last of these lines does not end a sentence
    std::size_t pendingBegin_ = 0;
    std::size_t to_ = 0;
};

// Whether the text has fewer than two units once its breaks are LF.
bool isShort(std::u16string_view text) {
    return text.size() < 2 || text == u"\r\n";
}

} // namespace

bool checkSpecialCharsInTheEndOfSentence(char16_t unit) {
    return sentenceMarks.find(unit) != std::u16string_view::npos;
}

bool checkLineForFirstSentenceChar(std::u16string_view line) {
    const std::size_t first = line.find_first_not_of(u' ');
    return first != std::u16string_view::npos && text::letterCase(line[first]) == LetterCase::Upper;
}

bool checkLineForEndSentenceChar(std::u16string_view line, bool checkComma) {
    const std::size_t last = line.find_last_not_of(u' ');
    if (last == std::u16string_view::npos) {
        return false;
    }
    if (last + 1 < line.size()) {
        checkComma = false; // a comma counts only as the very last unit
    }
    const char16_t unit = line[last];
    const LetterCase letterCase = text::letterCase(unit);
    if (letterCase == LetterCase::Upper) {
        return last == 0 || line[last - 1] != u' ';
    }
    if (letterCase == LetterCase::Caseless && last > 0) {
        const char16_t before = line[last - 1];
        if (text::letterCase(before) == LetterCase::Upper ||
            checkSpecialCharsInTheEndOfSentence(before)) {
            return true;
        }
    }
    return checkSpecialCharsInTheEndOfSentence(unit) || (checkComma && unit == u',');
}

std::u16string changeWrongInsertedReturnsTo(std::u16string text, std::int32_t option) {
    if (isShort(text)) {
        return changeAllBreaks(std::move(text));
    }
    const bool withSpace = option == 1;
    const bool inputHasSpace = text::findUnit(text, 0, u' ') < text.size();
    // CR and LF each end a line. A CR LF so gives an empty line, which is dropped like every blank
    // line.
    for (int pass = 0; pass < 2; ++pass) {
        JoiningPass(text, withSpace, inputHasSpace).run();
    }
    if (text.ends_with(u'\n')) {
        text.pop_back();
    }
    return changeDash(std::move(text));
}

} // namespace nerlo::engine
