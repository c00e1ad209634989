#include "engine/CharacterCleaning.h"
#include "engine/CutSigns.h"
#include "engine/MarkdownMarks.h"
#include "engine/Markup.h"
#include "engine/Structure.h"
#include "engine/StructureGuard.h"
#include "tests/reference/PlainEngine.h"
#include "text/Characters.h"

#include <algorithm>
#include <vector>

namespace nerlo::reference {

namespace {

using String = std::u16string;
using View = std::u16string_view;
using engine::LineKind;
using engine::Reach;

constexpr View blanks = u" \u00A0";

std::size_t inkEnd(View words) {
    return words.find_last_not_of(blanks) + 1;
}

String signsOf(String text) {
    std::erase_if(text, [](char16_t unit) { return !engine::structureSigns.contains(unit); });
    return text;
}

String withoutLineEnds(const String &text) {
    String result;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", at), text.size());
        String line = text.substr(at, end - at);
        line.erase(end < text.size() ? inkEnd(line) : line.size());
        line.erase(0, at > 0 ? std::min(line.find_first_not_of(blanks), line.size()) : 0);
        result.append(line).append(text, end, 1);
        at = end + 1;
    }
    return result;
}

// Paragraph by paragraph, each as a whole, its words in a string of their own.
class PlainGuard {
  public:
    PlainGuard(const String &text, std::span<const engine::Operation *const> steps,
               const engine::CleaningContext &context)
        : text_(text)
        , steps_(steps.begin(), steps.end())
        , context_(context)
        , lines_(engine::scanStructure(text))
        , signs_(text_) {
        for (auto &line : lines_) {
            if (has(engine::tagsOperation) && line.kind == LineKind::markup) {
                line.kind = line.words < line.end ? LineKind::prose : LineKind::blank;
            }
            signs_.add(line);
        }
    }

    String run() {
        bool inList = false;
        for (std::size_t at = 0; at < lines_.size(); ++at) {
            const auto &line = lines_[at];
            const String all = cut(line.begin, line.end);
            const bool indented = !all.empty() && blanks.find(all[0]) != View::npos;
            inList = line.item || (inList && (indented || line.kind == LineKind::blank));
            const std::size_t begin = result_.size();
            bool fixed = true;
            if (line.kind != LineKind::prose || line.words == line.end) {
                result_ += has(Reach::quoteMarks) && isQuotedProse(at) ? u"" : all;
                fixed = all.find_first_not_of(u" \t\u00A0") != View::npos && result_.size() > begin;
            } else if (inList || isQuoted(at)) {
                const std::size_t first = at;
                fixed = !marks(at).empty();
                at = markedParagraph(at);
                fixed = fixed || at > first;
            } else {
                at = paragraphs(at);
                fixed = false;
            }
            fixedBegin_ = fixed ? std::min(fixedBegin_, begin) : fixedBegin_;
            fixedEnd_ = fixed ? result_.size() : fixedEnd_;
            result_ += cut(lines_[at].end, lines_[at].next());
        }
        if (has(Reach::textEnds)) {
            while (result_.size() > fixedEnd_ && text::isWhiteSpace(result_.back())) {
                result_.pop_back();
            }
            for (; fixedBegin_ > 0 && !result_.empty() && text::isWhiteSpace(result_[0]);
                 --fixedBegin_) {
                result_.erase(0, 1);
            }
        }
        std::size_t count = 0;
        const bool markdown =
            has(engine::cleanCharactersOperation) && context_.options.udCleanCharactersMarkdown;
        return markdown ? engine::removeMarkdown(result_, count) : result_;
    }

  private:
    String cut(std::size_t begin, std::size_t end) const {
        return text_.substr(begin, end - begin);
    }
    bool has(std::int32_t index) const {
        return std::ranges::find(steps_, index, &engine::Operation::index) != steps_.end();
    }
    bool has(Reach reach) const {
        return std::ranges::find(steps_, reach, &engine::Operation::reach) != steps_.end();
    }
    bool isQuoted(std::size_t at) const { return lines_[at].quoted > lines_[at].begin; }

    bool isInked(std::size_t at) const { return lines_[at].words < lines_[at].end; }

    bool isQuotedProse(std::size_t at) const {
        std::size_t begin = at;
        while (isQuoted(begin) && begin > 0 && isQuoted(begin - 1) &&
               !(isInked(begin) && !isInked(begin - 1) && hasQuotedInkAbove(begin))) {
            --begin;
        }
        bool inked = false;
        std::size_t end = begin;
        for (; end < lines_.size() && isQuoted(end); ++end) {
            if (inked && isInked(end) && !isInked(end - 1)) {
                break;
            }
            inked = inked || isInked(end);
            if (lines_[end].kind != LineKind::prose) {
                return false;
            }
        }
        return end > begin;
    }

    bool hasQuotedInkAbove(std::size_t at) const {
        while (at > 0 && isQuoted(at - 1)) {
            if (isInked(--at)) {
                return true;
            }
        }
        return false;
    }

    bool goesOn(std::size_t at) const {
        return at < lines_.size() && lines_[at].kind == LineKind::prose && !lines_[at].item &&
               lines_[at].words < lines_[at].end;
    }

    bool isMeant(std::size_t at) const {
        const String line = cut(lines_[at].words, lines_[at].end);
        const std::size_t ink = inkEnd(line);
        return line.size() > 1 && ink > 0 && goesOn(at + 1) &&
               (line.substr(ink) == u"  " || (ink == line.size() && line.back() == u'\\'));
    }

    auto depth(std::size_t at) const {
        return std::ranges::count(cut(lines_[at].begin, lines_[at].quoted), u'>');
    }

    String marks(std::size_t at) const {
        const auto &line = lines_[at];
        const String mark = cut(line.quoted, line.words);
        return (has(Reach::quoteMarks) && isQuotedProse(at) ? u"" : cut(line.begin, line.quoted)) +
               (has(Reach::bullets) && line.item ? engine::removeBullets(u"\n" + mark).substr(1)
                                                 : mark);
    }

    std::size_t paragraphs(std::size_t at) {
        std::size_t last = at;
        for (std::size_t row = at; row < lines_.size(); ++row) {
            const bool plain = lines_[row].kind == LineKind::prose && !lines_[row].item;
            if (plain && !isQuoted(row)) {
                last = row;
            } else if (lines_[row].kind != LineKind::blank) {
                break;
            }
        }
        String words;
        std::vector<std::size_t> places;
        std::vector<String> breaks;
        for (std::size_t row = at; row <= last; ++row) {
            const auto &line = lines_[row];
            const std::size_t ink = inkEnd(cut(line.begin, line.end));
            if (row < last && isMeant(row)) {
                words += cut(line.begin, line.begin + ink) + engine::breakSign;
                places.push_back(words.size() - 1);
                breaks.push_back(cut(line.begin + ink, line.next()));
            } else {
                words += cut(line.begin, row < last ? line.next() : line.end);
            }
        }
        if (has(Reach::lineEnds)) {
            const std::size_t indent = at > 0 ? words.find_first_not_of(blanks) : 0;
            words.erase(0, indent);
            for (std::size_t &place : places) {
                place -= indent;
            }
            words.erase(lines_[last].breakSize > 0 ? inkEnd(words) : words.size());
        }
        clean(words, places, breaks);
        return last;
    }

    std::size_t markedParagraph(std::size_t at) {
        result_ += marks(at);
        const bool item = lines_[at].item;
        String words;
        std::vector<std::size_t> places;
        std::vector<String> breaks;
        for (;; ++at) {
            const auto &line = lines_[at];
            const String all = cut(line.words, line.end);
            const bool kept = isMeant(at) || !has(Reach::lineEnds) || line.breakSize == 0;
            if (!goesOn(at + 1)) {
                clean(words + (kept ? all : all.substr(0, inkEnd(all))), places, breaks);
                return at;
            }
            if (has(Reach::quoteMarks) && !item && !isMeant(at) && depth(at) == depth(at + 1) &&
                isQuotedProse(at) && isQuotedProse(at + 1)) {
                words += all + cut(line.end, line.next()) + marks(at + 1);
                continue;
            }
            words += all.substr(0, inkEnd(all)) + engine::breakSign;
            places.push_back(words.size() - 1);
            breaks.push_back((kept ? all.substr(inkEnd(all)) : String()) +
                             cut(line.end, line.next()) + marks(at + 1));
        }
    }

    // With what stands for breaks at these places.
    void clean(const String &words, const std::vector<std::size_t> &places,
               const std::vector<String> &breaks) {
        engine::InlinePlaces marksInside;
        engine::findInlinePlaces(words, marksInside);
        std::vector<text::Range> ranges;
        engine::findInlineStructure({words, marksInside}, places, has(engine::tagsOperation),
                                    ranges);
        std::vector<String> literals;
        String hidden;
        std::size_t from = 0;
        std::size_t next = 0;
        const auto keep = [&](std::size_t end) {
            hidden += words.substr(from, end - from);
            for (; next < places.size() && places[next] < end; ++next) {
                literals.push_back(breaks[next]);
            }
            from = end;
        };
        std::vector<String> inside;
        for (const text::Range &range : ranges) {
            keep(range.begin);
            String literal;
            for (; from < range.end; ++from) {
                const bool broken = next < places.size() && places[next] == from;
                literal += broken ? breaks[next++] : words.substr(from, 1);
            }
            inside.push_back(literal);
            hidden += engine::wordSign;
        }
        keep(words.size());
        hidden = cleaned(hidden);
        std::size_t word = 0;
        std::size_t broken = 0;
        for (const char16_t unit : hidden) {
            result_ += unit == engine::breakSign  ? literals[broken++]
                       : unit == engine::wordSign ? cleanedWord(inside[word++])
                                                  : String(1, unit);
        }
    }

    String cleaned(String text) const {
        for (const engine::Operation *const step : steps_) {
            String next = text;
            if (step->reach == Reach::lineJoints) {
                const bool spaced = context_.options.udChangeWrongInsertedReturnsOption == 1;
                next = signs_.areCut() ? text : joinWrappedLines(text, spaced);
            } else if (step->reach == Reach::lineEnds) {
                next = withoutLineEnds(text);
            } else if (step->index == engine::cleanCharactersOperation) {
                next = engine::cleanCharactersAlone(text, context_.options);
            } else if (step->reach == Reach::prose) {
                next = step->run(text, context_);
            }
            text = signsOf(next) == signsOf(text) ? next : text;
        }
        return text;
    }

    String cleanedWord(const String &word) const {
        if (word == u"\u2019" && has(engine::cleanCharactersOperation)) {
            return engine::cleanCharactersAlone(word, context_.options);
        }
        const bool address = has(Reach::addresses) && word.size() > 1 && !word.starts_with(u'`');
        return address ? engine::runSteps(word, std::vector{engine::findOperation(42)}, context_, 1)
                       : word;
    }

    const String text_;
    const std::vector<const engine::Operation *> steps_;
    const engine::CleaningContext &context_;
    std::vector<engine::StructuredLine> lines_;
    engine::CutSigns signs_;
    String result_;
    std::size_t fixedBegin_ = String::npos;
    std::size_t fixedEnd_ = 0;
};

} // namespace

std::u16string runGuarded(const std::u16string &text,
                          std::span<const engine::Operation *const> steps,
                          const engine::CleaningContext &context) {
    return PlainGuard(text, steps, context).run();
}

} // namespace nerlo::reference
