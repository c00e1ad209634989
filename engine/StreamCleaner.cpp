#include "engine/StreamCleaner.h"

#include "engine/LocalForms.h"
#include "engine/Whitespace.h"
#include "text/Utf.h"

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using Steps = std::span<const Operation *const>;

// Texts on which an operation runs: UTF-16, or UTF-8 in whole characters.
template <class Text>
using View = std::basic_string_view<typename Text::value_type>;

bool isTrailByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// The units before and behind a place inside a text.
struct Neighbours {
    char16_t before;
    char16_t after;
};

std::optional<Neighbours> neighbours(std::u16string_view text, std::size_t at) {
    const bool inPair = (text[at - 1] & 0xFC00) == 0xD800 && (text[at] & 0xFC00) == 0xDC00;
    return inPair ? std::nullopt : std::optional(Neighbours{text[at - 1], text[at]});
}

std::u16string_view toUnits(std::u16string_view text, std::u16string &) {
    return text;
}

std::u16string_view toUnits(std::string_view text, std::u16string &room) {
    room.clear();
    text::Utf8Decoder().decode(text, room);
    return room;
}

char16_t firstUnit(std::u16string_view text) {
    return text.front();
}

char16_t firstUnit(std::string_view text) {
    std::size_t size = 1;
    while (size < text.size() && isTrailByte(text[size])) {
        ++size;
    }
    std::u16string room;
    return isAscii(text.front()) ? static_cast<unsigned char>(text.front())
                                 : toUnits(text.substr(0, size), room).front();
}

char16_t lastUnit(std::u16string_view text) {
    return text.back();
}

char16_t lastUnit(std::string_view text) {
    std::size_t at = text.size() - 1;
    while (at > 0 && isTrailByte(text[at])) {
        --at;
    }
    std::u16string room;
    return isAscii(text.back()) ? static_cast<unsigned char>(text.back())
                                : toUnits(text.substr(at), room).back();
}

std::optional<Neighbours> neighbours(std::string_view text, std::size_t at) {
    if (isTrailByte(text[at])) {
        return std::nullopt;
    }
    return Neighbours{lastUnit(text.substr(0, at)), firstUnit(text.substr(at))};
}

void append(std::u16string &to, std::u16string_view units) {
    to.append(units);
}

void append(std::string &to, std::u16string_view units) {
    text::appendUtf8(to, units);
}

std::u16string runOn(std::u16string text, const Operation &step, const LocalForm &,
                     const CleaningContext &context) {
    return step.run(std::move(text), context);
}

std::string runOn(std::string text, const Operation &, const LocalForm &form,
                  const CleaningContext &context) {
    return form.runOnBytes(std::move(text), context);
}

// One operation on a text that comes in pieces.
template <class Text>
class Stage {
  public:
    Stage() = default;
    virtual ~Stage() = default;
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

    virtual void feed(View<Text> piece, Text &to) = 0;
    virtual void finish(Text &to) = 0;
};

// What stands before the last place to cut is done at once, as fast as a whole text. What stands
// behind it goes through the rules unit by unit, up to the next place to cut.
template <class Text>
class RulesStage : public Stage<Text> {
  public:
    RulesStage(const Operation &step, LocalForm form, const CleaningContext &context)
        : step_(step)
        , form_(std::move(form))
        , context_(context) {}

    void feed(View<Text> piece, Text &to) override {
        if (piece.empty()) {
            return;
        }
        std::size_t begin = 0;
        if (open_) {
            begin = firstCut(piece);
            throughRules(piece.substr(0, begin), to);
            if (begin == piece.size()) {
                last_ = lastUnit(piece);
                return;
            }
            finish(to);
        }
        const std::size_t cut = lastCut(piece, begin);
        if (cut > begin) {
            work_.assign(piece, begin, cut - begin);
            work_ = runOn(std::move(work_), step_, form_, context_);
            to.append(work_);
        }
        throughRules(piece.substr(cut), to);
        last_ = lastUnit(piece);
        open_ = true;
    }

    void finish(Text &to) override {
        units_.clear();
        for (text::StreamedRule &rule : form_.rules) {
            next_.clear();
            rule.feed(units_, next_);
            rule.finish(next_);
            std::swap(units_, next_);
        }
        append(to, units_);
        open_ = false;
    }

  private:
    // A single rule can only see both sides of a place if it finds the units at it together. Of
    // several, one may make neighbours for the next: none of them changes the unit on one side.
    bool mayCut(Neighbours at) const {
        const auto &rules = form_.rules;
        if (rules.size() == 1) {
            return !rules.front().joins(at.before, at.after);
        }
        const auto isKept = [&](char16_t unit) {
            return std::ranges::none_of(
                rules, [unit](const text::StreamedRule &rule) { return rule.looksAt(unit); });
        };
        return isKept(at.before) || isKept(at.after);
    }

    bool mayCut(View<Text> piece, std::size_t at) const {
        const std::optional<Neighbours> units = neighbours(piece, at);
        return units && mayCut(*units);
    }

    std::size_t firstCut(View<Text> piece) const {
        const bool splitsPair = (last_ & 0xFC00) == 0xD800 && (firstUnit(piece) & 0xFC00) == 0xDC00;
        if (!splitsPair && mayCut(Neighbours{last_, firstUnit(piece)})) {
            return 0;
        }
        std::size_t at = 1;
        while (at < piece.size() && !mayCut(piece, at)) {
            ++at;
        }
        return at;
    }

    std::size_t lastCut(View<Text> piece, std::size_t begin) const {
        std::size_t at = piece.size() - 1;
        while (at > begin && !mayCut(piece, at)) {
            --at;
        }
        return std::max(at, begin);
    }

    void throughRules(View<Text> piece, Text &to) {
        std::u16string_view units = toUnits(piece, decoded_);
        for (text::StreamedRule &rule : form_.rules) {
            next_.clear();
            rule.feed(units, next_);
            std::swap(units_, next_);
            units = units_;
        }
        append(to, units);
    }

    const Operation &step_;
    LocalForm form_;
    const CleaningContext &context_;
    Text work_;
    std::u16string decoded_;
    std::u16string units_;
    std::u16string next_;
    bool open_ = false; // the rules have been given something since the last place to cut
    char16_t last_ = 0;
};

// What stands behind the last place to cut waits for the next one.
class WordsStage : public Stage<std::u16string> {
  public:
    WordsStage(const Operation &step, const LocalForm &form, const CleaningContext &context)
        : step_(step)
        , form_(form)
        , context_(context) {}

    void feed(std::u16string_view piece, std::u16string &to) override {
        if (piece.empty()) {
            return;
        }
        const std::size_t known = waiting_.size();
        waiting_.append(piece);
        std::size_t cut = waiting_.size();
        if (!form_.mayEnd(waiting_.back())) {
            do {
                --cut;
            } while (cut > std::max<std::size_t>(known, 1) && !mayCut(cut));
            if (cut == 0 || !mayCut(cut)) {
                return;
            }
        }
        std::u16string rest = waiting_.substr(cut);
        waiting_.resize(cut);
        finish(to);
        waiting_ = std::move(rest);
    }

    void finish(std::u16string &to) override {
        to.append(step_.run(std::move(waiting_), context_));
        waiting_.clear();
    }

  private:
    bool mayCut(std::size_t at) const {
        const std::optional<Neighbours> units = neighbours(waiting_, at);
        return units && form_.mayCut(units->before, units->after);
    }

    const Operation &step_;
    const LocalForm form_;
    const CleaningContext &context_;
    std::u16string waiting_;
};

class EndsStage : public Stage<std::u16string> {
  public:
    explicit EndsStage(LocalForm form)
        : form_(std::move(form)) {}

    void feed(std::u16string_view piece, std::u16string &to) override {
        if (!piece.empty()) {
            to.append(std::exchange(form_.before, {}));
        }
        if (!form_.trims) {
            to.append(piece);
            return;
        }
        const auto inked = [](char16_t unit) { return !whiteSpaceUnits.contains(unit); };
        const auto last = std::find_if(piece.rbegin(), piece.rend(), inked);
        const auto end = static_cast<std::size_t>(piece.rend() - last);
        if (end != 0) {
            const std::size_t begin =
                begun_
                    ? 0
                    : static_cast<std::size_t>(std::ranges::find_if(piece, inked) - piece.begin());
            to.append(blanks_).append(piece, begin, end - begin);
            blanks_.clear();
            begun_ = true;
        }
        if (begun_) {
            blanks_.append(piece, end);
        }
    }

    void finish(std::u16string &to) override {
        to.append(std::exchange(form_.before, {})).append(form_.after);
    }

  private:
    LocalForm form_;
    bool begun_ = false;
    std::u16string blanks_; // at the end so far
};

template <class Text>
std::unique_ptr<Stage<Text>> stageFor(const Operation &step, LocalForm form,
                                      const CleaningContext &context) {
    if constexpr (std::is_same_v<Text, std::u16string>) {
        if (form.onlyAtEnds) {
            return std::make_unique<EndsStage>(std::move(form));
        }
        if (form.mayCut) {
            return std::make_unique<WordsStage>(step, form, context);
        }
    }
    return std::make_unique<RulesStage<Text>>(step, std::move(form), context);
}

LocalForm formOf(const Operation &step, const CleaningContext &context) {
    return step.localForm(context.options).value();
}

} // namespace

class StreamCleaner::Stages {
  public:
    Stages() = default;
    virtual ~Stages() = default;
    Stages(const Stages &) = delete;
    Stages &operator=(const Stages &) = delete;

    virtual void feed(std::string_view bytes, std::string &to) = 0;
    virtual void finish(std::string &to) = 0;
    virtual std::optional<std::size_t> invalidAt() const = 0;
};

template <class Text>
class StreamCleaner::StagesOn : public Stages {
  public:
    StagesOn(Steps steps, const CleaningContext &context)
        : context_(context) {
        for (const Operation *const step : steps) {
            stages_.push_back(stageFor<Text>(*step, formOf(*step, context_), context_));
        }
    }

    void feed(std::string_view bytes, std::string &to) override {
        while (!bytes.empty()) {
            View<Text> text = nextOf(bytes);
            for (const auto &stage : stages_) {
                next_.clear();
                stage->feed(text, next_);
                std::swap(text_, next_);
                text = text_;
            }
            if constexpr (std::is_same_v<Text, std::string>) {
                if (to.empty() && !stages_.empty()) {
                    std::swap(to, text_); // no copy
                    continue;
                }
            }
            give(text, to);
        }
    }

    void finish(std::string &to) override {
        decoder_.finish();
        if (decoder_.invalidAt()) {
            return;
        }
        text_.clear();
        for (const auto &stage : stages_) {
            next_.clear();
            stage->feed(text_, next_);
            stage->finish(next_);
            std::swap(text_, next_);
        }
        give(text_, to);
        text::appendUtf8(to, half_);
    }

    std::optional<std::size_t> invalidAt() const override { return decoder_.invalidAt(); }

  private:
    View<Text> nextOf(std::string_view &bytes) {
        if constexpr (std::is_same_v<Text, std::string>) {
            return decoder_.next(bytes);
        } else {
            decoded_.clear();
            decoder_.decode(std::exchange(bytes, {}), decoded_);
            return decoded_;
        }
    }

    static void give(std::string_view bytes, std::string &to) { to.append(bytes); }

    // The last unit may be the first half of a character.
    void give(std::u16string_view units, std::string &to) {
        if (units.empty()) {
            return;
        }
        if (!half_.empty()) {
            const std::size_t more = (units.front() & 0xFC00) == 0xDC00 ? 1 : 0;
            text::appendUtf8(to, std::exchange(half_, {}).append(units.substr(0, more)));
            units.remove_prefix(more);
        }
        if (!units.empty() && (units.back() & 0xFC00) == 0xD800) {
            half_ = units.back();
            units.remove_suffix(1);
        }
        text::appendUtf8(to, units);
    }

    const CleaningContext context_;
    std::conditional_t<std::is_same_v<Text, std::string>, text::Utf8Checker, text::Utf8Decoder>
        decoder_;
    std::vector<std::unique_ptr<Stage<Text>>> stages_;
    std::u16string decoded_;
    Text text_;
    Text next_;
    std::u16string half_;
};

bool canStream(Steps steps, const CleaningOptions &options) {
    return !options.udProtectStructure && std::ranges::all_of(steps, [&](const Operation *step) {
        return step->localForm && step->localForm(options);
    });
}

StreamCleaner::StreamCleaner(Steps steps, const CleaningContext &context) {
    const bool onBytes = std::ranges::all_of(
        steps, [&](const Operation *step) { return formOf(*step, context).runOnBytes; });
    if (onBytes) {
        stages_ = std::make_unique<StagesOn<std::string>>(steps, context);
    } else {
        stages_ = std::make_unique<StagesOn<std::u16string>>(steps, context);
    }
}

StreamCleaner::~StreamCleaner() = default;

void StreamCleaner::feed(std::string_view bytes, std::string &to) {
    stages_->feed(bytes, to);
}

void StreamCleaner::finish(std::string &to) {
    stages_->finish(to);
}

std::optional<std::size_t> StreamCleaner::invalidAt() const {
    return stages_->invalidAt();
}

} // namespace nerlo::engine
