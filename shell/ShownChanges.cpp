#include "shell/ShownChanges.h"

#include <algorithm>

namespace nerlo::shell {

namespace {

using text::Change;
using text::Range;

// Kept before and behind a change: the rest of its line and one line more, but no more units.
constexpr std::size_t contextLines = 2;
constexpr std::size_t contextUnits = 400;
// The beginning of a text without changes.
constexpr std::size_t beginningLines = 100;
// Leaving out less than that would save nothing.
constexpr std::size_t leastLeftOut = 200;
// Of one change; a longer one shows its ends.
constexpr std::size_t mostOfChange = 4'000;

bool isFirstOfPair(std::u16string_view text, std::size_t at) {
    return text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
}

bool isBreak(std::u16string_view text, std::size_t at) {
    return text[at] == u'\n' || text[at] == u'\u2028' || text[at] == u'\u2029' ||
           (text[at] == u'\r' && !isFirstOfPair(text, at));
}

bool cutsCharacter(std::u16string_view text, std::size_t at) {
    return at > 0 && at < text.size() &&
           (((text[at - 1] & 0xFC00) == 0xD800 && (text[at] & 0xFC00) == 0xDC00) ||
            isFirstOfPair(text, at - 1));
}

// The size of what is kept of a run at its beginning,
std::size_t keptAtBegin(std::u16string_view run, std::size_t lines, std::size_t units) {
    std::size_t size = 0;
    while (size < std::min(run.size(), units) && lines > 0) {
        lines -= isBreak(run, size++) ? 1 : 0;
    }
    return cutsCharacter(run, size) ? size + 1 : size;
}

// and at its end.
std::size_t keptAtEnd(std::u16string_view run) {
    std::size_t begin = run.size();
    std::size_t lines = contextLines;
    while (begin > 0 && run.size() - begin < contextUnits) {
        if (isBreak(run, begin - 1) && --lines == 0) {
            break;
        }
        --begin;
    }
    return run.size() - (cutsCharacter(run, begin) ? begin - 1 : begin);
}

std::size_t breaksIn(std::u16string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        count += isBreak(text, at) ? 1 : 0;
    }
    return count;
}

class Side {
  public:
    explicit Side(std::u16string_view text)
        : text_(text) {}

    void add(Range part, bool changed) {
        const auto start = static_cast<std::size_t>(shown_.text.size());
        beginRun(part.begin);
        for (std::size_t at = part.begin; at < part.end; ++at) {
            if (isFirstOfPair(text_, at)) {
                beginRun(at + 1);
            } else {
                shown_.text += isBreak(text_, at) ? u'\n' : QChar(text_[at]);
            }
        }
        const auto length = static_cast<std::size_t>(shown_.text.size()) - start;
        if (changed && length > 0) {
            shown_.marked.push_back({start, length});
        }
    }

    void leaveOut(QString words, bool onOwnLine) {
        if (onOwnLine) {
            words.append('\n');
            if (!shown_.text.isEmpty() && !shown_.text.endsWith('\n')) {
                words.prepend('\n');
            }
        }
        beginRun(ShownText::nowhere);
        shown_.leftOut.push_back(
            {static_cast<std::size_t>(shown_.text.size()), static_cast<std::size_t>(words.size())});
        shown_.text += words;
    }

    std::u16string_view text() const { return text_; }
    bool isFull() const { return static_cast<std::size_t>(shown_.text.size()) >= shownOfLong; }
    ShownText take() { return std::move(shown_); }

  private:
    void beginRun(std::size_t place) {
        const auto shown = static_cast<std::size_t>(shown_.text.size());
        if (!shown_.runs.empty() && shown_.runs.back().shown == shown) {
            shown_.runs.pop_back();
        }
        shown_.runs.push_back({shown, place});
    }

    std::u16string_view text_;
    ShownText shown_;
};

// Goes through both texts at once.
class Pair {
  public:
    Pair(std::u16string_view before, std::u16string_view after, bool whole,
         const LeftOutWords &words)
        : before_(before)
        , after_(after)
        , whole_(whole)
        , words_(words) {}

    // Up to this place of the first text both are the same.
    void keep(std::size_t end) {
        const std::u16string_view run = before_.text().substr(at_.before, end - at_.before);
        const bool atEnd = end == before_.text().size();
        const std::size_t head = changed_ ? keptAtBegin(run, contextLines, contextUnits)
                                 : atEnd  ? keptAtBegin(run, beginningLines, shownOfLong)
                                          : 0;
        const std::size_t tail = atEnd ? 0 : keptAtEnd(run);
        if (whole_ || run.size() < head + tail + leastLeftOut) {
            add(run.size());
            return;
        }
        add(head);
        const auto middle = run.substr(head, run.size() - head - tail);
        const std::size_t lines = breaksIn(middle);
        leaveOut(lines > 0 ? words_.lines : words_.characters, lines > 0 ? lines : middle.size(),
                 lines > 0);
        at_.before += middle.size();
        at_.after += middle.size();
        add(tail);
    }

    void change(const Change &change) {
        addChanged(before_, change.before);
        addChanged(after_, change.after);
        at_ = {change.before.end, change.after.end};
        changed_ = true;
    }

    void leaveOutChanges(std::size_t count) { leaveOut(words_.changes, count, true); }

    bool isFull() const { return !whole_ && (before_.isFull() || after_.isFull()); }
    ShownChanges take(std::size_t changes) { return {before_.take(), after_.take(), changes}; }

  private:
    void add(std::size_t size) {
        before_.add({at_.before, at_.before + size}, false);
        after_.add({at_.after, at_.after + size}, false);
        at_.before += size;
        at_.after += size;
    }

    void addChanged(Side &side, Range part) {
        if (whole_ || part.end - part.begin <= mostOfChange + leastLeftOut) {
            side.add(part, true);
            return;
        }
        Range head{part.begin, part.begin + mostOfChange / 2};
        Range tail{part.end - mostOfChange / 2, part.end};
        head.end += cutsCharacter(side.text(), head.end) ? 1 : 0;
        tail.begin -= cutsCharacter(side.text(), tail.begin) ? 1 : 0;
        side.add(head, true);
        side.leaveOut(worded(words_.characters, tail.begin - head.end), false);
        side.add(tail, true);
    }

    void leaveOut(const QString &words, std::size_t number, bool onOwnLine) {
        before_.leaveOut(worded(words, number), onOwnLine);
        after_.leaveOut(worded(words, number), onOwnLine);
    }

    QString worded(QString words, std::size_t number) const {
        return words.replace("%@", words_.locale.toString(static_cast<qulonglong>(number)));
    }

    Side before_;
    Side after_;
    bool whole_;
    const LeftOutWords &words_;
    struct {
        std::size_t before = 0;
        std::size_t after = 0;
    } at_;
    bool changed_ = false; // something before that
};

} // namespace

std::size_t ShownText::placeOf(std::size_t shown) const {
    const auto behind = std::ranges::upper_bound(runs, shown, {}, &Run::shown);
    if (behind == runs.begin() || std::prev(behind)->place == nowhere) {
        return nowhere;
    }
    return std::prev(behind)->place + (shown - std::prev(behind)->shown);
}

ShownChanges shownChanges(std::u16string_view before, std::u16string_view after,
                          const text::Difference &difference, const LeftOutWords &words) {
    const bool whole = std::max(before.size(), after.size()) <= shownWhole &&
                       difference.changes.size() == difference.count;
    Pair pair(before, after, whole, words);
    std::size_t shown = 0;
    for (const Change &change : difference.changes) {
        if (pair.isFull()) {
            break;
        }
        pair.keep(change.before.begin);
        pair.change(change);
        ++shown;
    }
    if (shown < difference.count) {
        pair.leaveOutChanges(difference.count - shown);
    } else {
        pair.keep(before.size());
    }
    return pair.take(difference.count);
}

} // namespace nerlo::shell
