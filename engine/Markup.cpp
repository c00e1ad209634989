#include "engine/Markup.h"

#include "engine/FindReplace.h"
#include "engine/ReplacementRules.h"
#include "text/Ascii.h"
#include "text/Characters.h"
#include "text/Replace.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace nerlo::engine {

namespace {

using text::Range;

constexpr text::UnitSet replyMarks(u">");
constexpr text::UnitSet angles(u"<>");
constexpr text::UnitSet anglesAndQuotes(u"<>\"'");

bool startsWithAt(std::u16string_view text, std::size_t at, std::u16string_view what) {
    return text.substr(at).starts_with(what);
}

bool isNameUnit(char16_t unit) {
    return text::isAsciiLetterOrDigit(unit) || unit == u'-' || unit == u':' || unit == u'\u017F' ||
           unit == u'\u212A'; // long s and Kelvin fold to s and k
}

// The units that may stand in a name although they are not word characters.
bool isSign(char16_t unit) {
    return unit == u'-' || unit == u':';
}

// Tells what begins at a "<" and where it ends. Places must be asked for in ascending order: it
// remembers what it has seen of the text ahead, and so needs linear time for all of them together.
class TagScanner {
  public:
    explicit TagScanner(std::u16string_view text)
        : text_(text)
        , cursor_(text, anglesAndQuotes) {}

    // The next "<" at or after `from`, or the text's size.
    std::size_t nextOpen(std::size_t from) {
        std::size_t at = cursor_.nextFrom(from);
        while (at < text_.size() && text_[at] != u'<') {
            at = cursor_.next();
        }
        return at;
    }

    std::optional<std::size_t> endOfTag(std::size_t at) {
        if (const auto end = endOfComment(at)) {
            return end;
        }
        if (const auto end = endOfInstruction(at)) {
            return end;
        }
        return endOfElement(at);
    }

  private:
    std::optional<std::size_t> endOfComment(std::size_t at) {
        constexpr std::u16string_view open = u"<!--";
        constexpr std::u16string_view close = u"-->";
        if (!startsWithAt(text_, at, open)) {
            return std::nullopt;
        }
        const std::size_t from = at + open.size();
        if (commentClose_ < from) {
            commentClose_ = text_.find(close, from);
        }
        if (commentClose_ == none) {
            return std::nullopt;
        }
        return commentClose_ + close.size();
    }

    // Up to the last "?>" of the line.
    std::optional<std::size_t> endOfInstruction(std::size_t at) {
        constexpr std::u16string_view open = u"<?";
        constexpr std::u16string_view close = u"?>";
        if (!startsWithAt(text_, at, open)) {
            return std::nullopt;
        }
        const std::size_t from = at + open.size();
        if (lineEnd_ < from) {
            lineEnd_ = from;
            while (lineEnd_ < text_.size() && !text::isLineEnd(text_[lineEnd_])) {
                ++lineEnd_;
            }
            instructionClose_ = text_.substr(from, lineEnd_ - from).rfind(close);
            if (instructionClose_ != none) {
                instructionClose_ += from;
            }
        }
        if (instructionClose_ == none || instructionClose_ < from) {
            return std::nullopt;
        }
        return instructionClose_ + close.size();
    }

    std::optional<std::size_t> endOfElement(std::size_t at) {
        std::size_t name = at + 1;
        if (name < text_.size() &&
            std::u16string_view(u"/!$").find(text_[name]) != std::u16string_view::npos) {
            ++name;
        }
        std::size_t nameEnd = name;
        bool hasBoundary = false; // the name may also end there; the rest is then attributes
        while (nameEnd < text_.size() && isNameUnit(text_[nameEnd])) {
            hasBoundary = hasBoundary ||
                          (nameEnd > name && isSign(text_[nameEnd]) != isSign(text_[nameEnd - 1]));
            ++nameEnd;
        }
        if (nameEnd == name || !(hasBoundary || text::isWordBoundary(text_, nameEnd))) {
            return std::nullopt;
        }
        return endOfAttributes(nameEnd);
    }

    // Up to the ">" outside quotes.
    std::optional<std::size_t> endOfAttributes(std::size_t from) {
        if (!neverEnds_.empty() && neverEnds_[from - neverEndsFrom_]) {
            return std::nullopt;
        }
        for (std::size_t at = cursor_.nextFrom(from); at < text_.size(); at = cursor_.next()) {
            const char16_t unit = text_[at];
            if (unit == u'>') {
                return at + 1;
            }
            if (unit != u'<') {
                do {
                    at = cursor_.next();
                } while (at < text_.size() && text_[at] != unit);
            }
        }
        if (neverEnds_.empty()) {
            learnWhatNeverEnds(from);
        }
        return std::nullopt;
    }

    // One walk from the end answers this for every place, so that many unfinished tags cost no more
    // than one.
    void learnWhatNeverEnds(std::size_t from) {
        neverEndsFrom_ = from;
        neverEnds_.resize(text_.size() - from + 1);
        bool plain = false; // whether an attribute list outside quotes finds its end from here
        bool inDouble = false;
        bool inSingle = false;
        neverEnds_[text_.size() - from] = true;
        for (std::size_t at = text_.size(); at-- > from;) {
            switch (text_[at]) {
            case u'>':
                plain = true;
                break;
            case u'"':
                std::swap(plain, inDouble);
                break;
            case u'\'':
                std::swap(plain, inSingle);
                break;
            default:
                break;
            }
            neverEnds_[at - from] = !plain;
        }
    }

    static constexpr std::size_t none = std::u16string_view::npos;

    std::u16string_view text_;
    text::UnitCursor cursor_;
    std::size_t commentClose_ = 0;     // the next "-->"; 0: not looked for yet
    std::size_t lineEnd_ = 0;          // end of the line in which the last instruction began
    std::size_t instructionClose_ = 0; // the last "?>" before lineEnd_
    std::size_t neverEndsFrom_ = 0;
    std::vector<bool> neverEnds_;
};

// Whether `text` begins with the marker, ASCII letters in either case; no other character
// lower-cases to one of a marker's.
bool beginsWithMarker(std::u16string_view text, std::u16string_view marker) {
    return text.size() >= marker.size() &&
           std::ranges::equal(text.substr(0, marker.size()), marker, [](char16_t a, char16_t b) {
               return (a >= u'A' && a <= u'Z' ? a + (u'a' - u'A') : a) == b;
           });
}

// Is given the pieces of a text in order, alternately text and tag, and says which to keep.
class ScriptFilter {
  public:
    bool keeps(std::u16string_view piece, bool isTag) {
        if (!isTag && !piece.empty() && !inScript_) {
            return true;
        }
        bool opens = false;
        bool closes = false;
        for (std::size_t at = text::findUnit(piece, 0, u'<'); at < piece.size() && !opens;
             at = text::findUnit(piece, at + 1, u'<')) {
            const std::u16string_view rest = piece.substr(at);
            opens = beginsWithMarker(rest, u"<script");
            closes = closes || beginsWithMarker(rest, u"</script");
        }
        inScript_ = opens || (inScript_ && !closes);
        return false;
    }

  private:
    bool inScript_ = false;
};

// "<" to the next ">", or to the end.
std::u16string removeSpans(std::u16string text) {
    std::size_t to = 0;
    std::size_t from = 0;
    const auto keepUpTo = [&](std::size_t end) {
        if (to != from) {
            std::char_traits<char16_t>::move(text.data() + to, text.data() + from, end - from);
        }
        to += end - from;
    };
    bool inside = false;
    text::UnitCursor cursor(text, angles);
    for (std::size_t at = cursor.next(); at < text.size(); at = cursor.next()) {
        if (!inside && text[at] == u'<') {
            keepUpTo(at);
            inside = true;
        } else if (inside && text[at] == u'>') {
            from = at + 1;
            inside = false;
        }
    }
    if (!inside) {
        keepUpTo(text.size());
    }
    text.resize(to);
    return text;
}

// Calls visit(tag) for each tag, in order. The text before the tag at hand may change meanwhile.
template <class Visit>
void forEachTag(std::u16string_view text, Visit visit) {
    TagScanner scanner(text);
    for (std::size_t at = scanner.nextOpen(0); at < text.size();) {
        const auto end = scanner.endOfTag(at);
        if (end) {
            visit(Range{at, *end});
        }
        at = scanner.nextOpen(end.value_or(at + 1));
    }
}

// A text that holds the split marker is split at the marker too: see splitByMatchesInString().
std::u16string removeTagsPieceByPiece(const std::u16string &text) {
    std::u16string result;
    ScriptFilter filter;
    bool isTag = false;
    for (const std::u16string &piece : splitByMatchesInString(text, findTags(text))) {
        if (filter.keeps(piece, isTag)) {
            result.append(piece);
        }
        isTag = !isTag;
    }
    return result;
}

std::u16string removeTags(std::u16string text) {
    if (holdsSplitMarker(text)) {
        return removeTagsPieceByPiece(text);
    }
    const std::u16string_view whole(text);
    ScriptFilter filter;
    std::size_t to = 0;
    std::size_t from = 0;
    const auto takeUpTo = [&](std::size_t end) {
        if (filter.keeps(whole.substr(from, end - from), false)) {
            std::char_traits<char16_t>::move(text.data() + to, text.data() + from, end - from);
            to += end - from;
        }
    };
    forEachTag(whole, [&](const Range &tag) {
        takeUpTo(tag.begin);
        filter.keeps(whole.substr(tag.begin, tag.end - tag.begin), true);
        from = tag.end;
    });
    takeUpTo(text.size());
    text.resize(to);
    return text;
}

} // namespace

std::u16string removeBullets(std::u16string text) {
    return rules::bullets.apply(std::move(text));
}

std::u16string removeReplyQuotes(std::u16string text) {
    return text::removeUnits(std::move(text), replyMarks);
}

std::string removeReplyQuotes(std::string text) {
    return text::removeUnits(std::move(text), replyMarks);
}

std::u16string removeHTMLTags(std::u16string text, bool withScripts) {
    return withScripts ? removeTags(std::move(text)) : removeSpans(std::move(text));
}

std::vector<Range> findTags(std::u16string_view text) {
    std::vector<Range> tags;
    forEachTag(text, [&](const Range &tag) { tags.push_back(tag); });
    return tags;
}

} // namespace nerlo::engine
