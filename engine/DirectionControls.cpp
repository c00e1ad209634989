#include "engine/DirectionControls.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::UnitSet;

// Blocks of Hebrew, Arabic, Syriac and the like; the last two are halves of pairs.
constexpr UnitSet rightToLeft{
    {u'\u0590', u'\u061B'}, {u'\u061D', u'\u08FF'}, {u'\uFB1D', u'\uFDCF'}, {u'\uFDF0', u'\uFDFF'},
    {u'\uFE70', u'\uFEFC'}, {u'\xD802', u'\xD803'}, {u'\xD83A', u'\xD83B'}};
constexpr UnitSet lineBreaks(u"\r\n");
// What shows nothing between two controls, or may be taken out later.
constexpr UnitSet unseen{{u'*', u'*'},           {u'`', u'`'},           {u'\u1FEF', u'\u1FEF'},
                         {u'\u00AD', u'\u00AD'}, {u'\u034F', u'\u034F'}, {u'\u061C', u'\u061C'},
                         {u'\u200B', u'\u200F'}, {u'\u202A', u'\u202E'}, {u'\u2060', u'\u206F'},
                         {u'\u115F', u'\u1160'}, {u'\u180E', u'\u180E'}, {u'\uFEFF', u'\uFEFF'},
                         {u'\uFFF0', u'\uFFF8'}, {u'\uFFFC', u'\uFFFC'}};

constexpr UnitSet blanks{{u' ', u' '},           {u'\t', u'\t'},         {u'\u00A0', u'\u00A0'},
                         {u'\u1680', u'\u1680'}, {u'\u2000', u'\u200A'}, {u'\u202F', u'\u202F'},
                         {u'\u205F', u'\u205F'}, {u'\u2800', u'\u2800'}, {u'\u3000', u'\u3000'},
                         {u'\u3164', u'\u3164'}, {u'\uFFA0', u'\uFFA0'}};

bool shows(char16_t unit) {
    return !unseen.contains(unit);
}

enum class Kind { mark, embedding, override, isolate, endOfEmbedding, endOfIsolate };

Kind kindOf(char16_t unit) {
    switch (unit) {
    case u'\u202A':
    case u'\u202B':
        return Kind::embedding;
    case u'\u202D':
    case u'\u202E':
        return Kind::override;
    case u'\u202C':
        return Kind::endOfEmbedding;
    case u'\u2069':
        return Kind::endOfIsolate;
    default:
        return unit >= u'\u2066' ? Kind::isolate : Kind::mark;
    }
}

struct Control {
    std::size_t at = 0;
    Kind kind = Kind::mark;
    bool stays = false;
};

// The controls of one line, of which direction matters.
class Line {
  public:
    explicit Line(View text)
        : text_(text) {}

    void add(std::size_t at) {
        Control control{at, kindOf(text_[at]), false};
        const std::size_t behind = controls_.empty() ? at : controls_.back().at + 1;
        shown_ += hasInk(behind, at);
        switch (control.kind) {
        case Kind::mark:
            control.stays = true;
            break;
        case Kind::endOfEmbedding:
            control.stays = closeEmbedding();
            break;
        case Kind::endOfIsolate:
            control.stays = closeIsolate();
            break;
        default:
            open_.push_back({controls_.size(), shown_});
            isolates_ += control.kind == Kind::isolate;
        }
        controls_.push_back(control);
    }

    // Appends the places of those that go.
    void finish(std::size_t end, std::vector<std::size_t> &going) {
        shown_ += !controls_.empty() && hasInk(controls_.back().at + 1, end);
        for (const Open &open : open_) {
            leaveOpen(open);
        }
        for (const Control &control : controls_) {
            if (!control.stays) {
                going.push_back(control.at);
            }
        }
        controls_.clear();
        open_.clear();
        isolates_ = 0;
    }

  private:
    struct Open {
        std::size_t control;
        std::size_t shown; // pieces of words before it
    };

    bool hasInk(std::size_t from, std::size_t to) const {
        return std::ranges::any_of(text_.substr(from, to - from), shows);
    }

    // Whether what was opened last ends here with words inside; both then stay.
    bool close() {
        const Open open = open_.back();
        open_.pop_back();
        Control &opening = controls_[open.control];
        opening.stays = opening.kind != Kind::override && shown_ > open.shown;
        return opening.stays;
    }

    bool closeEmbedding() {
        const bool inside = !open_.empty() && controls_[open_.back().control].kind != Kind::isolate;
        return inside && close();
    }

    bool closeIsolate() {
        if (isolates_ == 0) {
            return false;
        }
        --isolates_;
        while (controls_[open_.back().control].kind != Kind::isolate) {
            leaveOpen(open_.back());
            open_.pop_back();
        }
        return close();
    }

    // An embedding goes to the end of its line or isolate.
    void leaveOpen(const Open &open) {
        Control &opening = controls_[open.control];
        opening.stays = opening.kind == Kind::embedding && shown_ > open.shown;
    }

    const View text_;
    std::vector<Control> controls_;
    std::vector<Open> open_;
    std::size_t isolates_ = 0; // among those that are open
    std::size_t shown_ = 0;
};

// The begin of the line behind the break at `at`.
std::size_t behindBreak(View text, std::size_t at) {
    const std::size_t size = text.substr(at).starts_with(u"\r\n") ? 2 : 1;
    return std::min(text.size(), at + size);
}

// Lines up to a blank one: most programs find the direction of each paragraph, and people wrap
// them.
std::size_t endOfParagraph(View text, std::size_t from) {
    while (from < text.size()) {
        const std::size_t end = text::findUnit(text, from, lineBreaks);
        if (std::ranges::none_of(text.substr(from, end - from), [](char16_t unit) {
                return shows(unit) && !blanks.contains(unit);
            })) {
            break;
        }
        from = behindBreak(text, end);
    }
    return from;
}

std::vector<std::size_t> goingDirections(View text) {
    std::vector<std::size_t> going;
    text::UnitCursor cursor(text, directionControls);
    std::size_t at = cursor.next();
    Line line(text);
    for (std::size_t begin = 0; at < text.size();) {
        std::size_t end = endOfParagraph(text, begin);
        if (end == begin) { // a blank line
            end = behindBreak(text, text::findUnit(text, begin, lineBreaks));
        }
        const View paragraph = text.substr(begin, end - begin);
        const bool matters =
            at < end && text::findUnit(paragraph, 0, rightToLeft) < paragraph.size();
        while (at < end) {
            if (!matters) {
                going.push_back(at);
                at = cursor.next();
                continue;
            }
            const std::size_t lineEnd = text::findUnit(text, at, lineBreaks);
            for (; at < lineEnd; at = cursor.next()) {
                line.add(at);
            }
            line.finish(lineEnd, going);
        }
        begin = end;
    }
    return going;
}

} // namespace

std::u16string cleanDirections(std::u16string text, std::size_t &count) {
    const std::vector<std::size_t> going = goingDirections(text);
    count += going.size();
    auto to = text.begin();
    std::size_t from = 0;
    for (const std::size_t at : going) {
        to = std::copy(text.begin() + static_cast<std::ptrdiff_t>(from),
                       text.begin() + static_cast<std::ptrdiff_t>(at), to);
        from = at + 1;
    }
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), to);
    text.resize(text.size() - going.size());
    return text;
}

} // namespace nerlo::engine
