#include "engine/StepStream.h"

#include <algorithm>
#include <utility>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

std::size_t nowhere(View, std::size_t) {
    return 0;
}

// Behind the last empty line.
std::size_t lastParagraph(View text, std::size_t from) {
    for (std::size_t at = text.size(); at-- > std::max<std::size_t>(from, 2);) {
        const bool pair = text[at - 1] == u'\r';
        if (text[at] == u'\n' && text[at - (pair ? 2 : 1)] == u'\n') {
            return at + 1;
        }
    }
    return 0;
}

} // namespace

StepStream::StepStream(std::span<const Operation *const> steps, const CleaningContext &context,
                       const text::UnitSet &signs, bool wary, Done done)
    : context_(context)
    , signs_(signs)
    , wary_(wary)
    , done_(std::move(done)) {
    for (const Operation *const step : steps) {
        const Cut cut = cutOf(*step);
        if (stages_.empty() || stages_.back().cut != cut) {
            stages_.push_back({cut});
        }
        stages_.back().steps.push_back(step);
    }
}

StepStream::Cut StepStream::cutOf(const Operation &step) const {
    if (step.reach == Reach::lineJoints) {
        return lastParagraph;
    }
    return step.inPieces && step.inPieces(context_.options) ? lastCut : nowhere;
}

void StepStream::put(std::u16string &text, bool last) {
    pass(0, text, last);
}

void StepStream::pass(std::size_t at, std::u16string &text, bool last) {
    if (at == stages_.size()) {
        done_(text);
        text.clear();
        return;
    }
    Stage &stage = stages_[at];
    if (stage.waiting.empty()) {
        stage.waiting.swap(text);
    } else {
        stage.waiting.append(text);
    }
    const std::size_t size = stage.waiting.size();
    const std::size_t cut = last ? size : stage.cut(stage.waiting, stage.searched);
    stage.searched = size - cut;
    if (cut == 0 && !last) {
        text.clear();
        return;
    }
    text.assign(stage.waiting, cut);
    stage.waiting.resize(cut);
    stage.waiting.swap(text);
    text = ran(stage, std::move(text));
    pass(at + 1, text, last);
}

std::u16string StepStream::signsOf(View text) const {
    std::u16string found;
    text::UnitCursor cursor(text, signs_);
    for (std::size_t at = cursor.next(); at < text.size(); at = cursor.next()) {
        found.push_back(text[at]);
    }
    return found;
}

std::u16string StepStream::ran(const Stage &stage, std::u16string text) const {
    const auto runAll = [&](std::u16string given) {
        for (const Operation *const step : stage.steps) {
            given = step->run(std::move(given), context_);
        }
        return given;
    };
    if (stage.cut != nowhere && !wary_) {
        return runAll(std::move(text));
    }
    const std::u16string signs = signsOf(text);
    std::u16string all = runAll(text);
    if (signsOf(all) == signs) {
        return all;
    }
    for (const Operation *const step : stage.steps) {
        std::u16string next = step->run(text, context_);
        if (signsOf(next) == signs) {
            text = std::move(next);
        }
    }
    return text;
}

} // namespace nerlo::engine
