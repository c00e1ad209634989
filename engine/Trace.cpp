#include "engine/Trace.h"

#include "engine/CharacterCleaning.h"
#include "engine/FindReplace.h"
#include "engine/StructureGuard.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <utility>

namespace nerlo::engine {

namespace {

using text::Change;
using text::Range;

constexpr std::size_t everything = std::u16string::npos;

// A direction through a step: from its input to its output, or back.
struct Direction {
    Range Change::*from;
    Range Change::*to;
};
constexpr Direction forward{&Change::before, &Change::after};
constexpr Direction back{&Change::after, &Change::before};

using Places = std::span<const TracedChange>;

// The place, seen from the other side of a step. What the step changed goes with it if it lies in
// the place; if it only overlaps, the whole change belongs to the place.
Range carried(Range place, Places changes, Direction way) {
    if (changes.empty()) {
        return place;
    }
    const auto from = [&](const TracedChange &one) { return one.change.*way.from; };
    const auto to = [&](const TracedChange &one) { return one.change.*way.to; };
    const auto first = std::ranges::partition_point(
        changes, [&](const TracedChange &one) { return from(one).end <= place.begin; });
    const bool inside = first != changes.end() && from(*first).begin < place.begin;
    Range result;
    if (inside) {
        result.begin = to(*first).begin;
    } else {
        const auto passed = first == changes.begin() ? nullptr : &*std::prev(first);
        result.begin = passed ? place.begin + to(*passed).end - from(*passed).end : place.begin;
    }
    if (place.begin == place.end) {
        result.end = inside ? to(*first).end : result.begin;
        return result;
    }
    const auto behind = std::ranges::partition_point(
        changes, [&](const TracedChange &one) { return from(one).begin < place.end; });
    if (behind == changes.begin()) {
        result.end = place.end;
    } else if (const TracedChange &last = *std::prev(behind); from(last).end >= place.end) {
        result.end = to(last).end;
    } else {
        result.end = place.end + to(last).end - from(last).end;
    }
    return result;
}

// The first place of a text that may touch a change that is not listed, seen from the other side of
// a step.
std::size_t carriedEnd(std::size_t known, Places changes, Direction way) {
    if (known == everything) {
        return everything;
    }
    const auto behind = std::ranges::partition_point(
        changes, [&](const TracedChange &one) { return (one.change.*way.from).begin < known; });
    if (behind == changes.begin()) {
        return known;
    }
    const Change &last = std::prev(behind)->change;
    return (last.*way.from).end >= known ? (last.*way.to).begin
                                         : known + (last.*way.to).end - (last.*way.from).end;
}

std::u16string beginningOf(std::u16string_view text, Range place) {
    text = text.substr(place.begin, place.end - place.begin);
    std::size_t size = std::min(text.size(), tracedUnits);
    if (size < text.size() && (text[size - 1] & 0xFC00) == 0xD800) {
        ++size;
    }
    return std::u16string(text.substr(0, size));
}

class Tracer {
  public:
    Tracer(std::u16string text, std::size_t mostPlaces, const Tracing &how)
        : mostPlaces_(mostPlaces)
        , how_(how) {
        trace_.text = std::move(text);
    }

    // `run` gives the text as it is after this step, of which operation and part are known.
    template <class Run>
    void step(TraceStep known, Run run) {
        if (how_.stop.stop_requested()) {
            return;
        }
        before_.assign(trace_.text);
        trace_.text = run(std::move(trace_.text));
        TraceStep &step = trace_.steps.emplace_back(std::move(known));
        if (!text::sameUnits(trace_.text, before_)) {
            list(step, before_);
        }
        known_.push_back(knownEnd_);
        knownEnd_ = carriedEnd(knownEnd_, step.places, forward);
    }

    const std::u16string &text() const { return trace_.text; }
    const Tracing &how() const { return how_; }

    Trace take() {
        carryToSource();
        carryToResult();
        return std::move(trace_);
    }

  private:
    void list(TraceStep &step, std::u16string_view before) {
        const text::Difference difference = text::differenceOf(before, trace_.text, mostPlaces_);
        step.changes = difference.count;
        if (how_.watch) {
            how_.watch({step, before, trace_.text, difference});
        }
        for (const Change &change : difference.changes) {
            if (change.before.end >= knownEnd_) {
                knownEnd_ = std::min(knownEnd_, change.before.begin);
                return;
            }
            step.places.push_back({change,
                                   {},
                                   {},
                                   beginningOf(before, change.before),
                                   beginningOf(trace_.text, change.after)});
        }
        if (step.changes > step.places.size()) {
            const auto &places = step.places;
            knownEnd_ =
                std::min(knownEnd_, places.empty() ? 0 : places.back().change.before.end + 1);
        }
    }

    void carryToSource() {
        for (std::size_t at = 0; at < trace_.steps.size(); ++at) {
            for (TracedChange &place : trace_.steps[at].places) {
                place.source = place.change.before;
                for (std::size_t earlier = at; earlier-- > 0;) {
                    place.source = carried(place.source, trace_.steps[earlier].places, back);
                }
            }
        }
    }

    // Drops the places that a later step, which did not list all it changed, hides.
    void carryToResult() {
        std::size_t known = knownEnd_;
        for (std::size_t at = trace_.steps.size(); at-- > 0;) {
            std::vector<TracedChange> &places = trace_.steps[at].places;
            const std::size_t knownBefore = carriedEnd(known, places, back);
            while (!places.empty() && places.back().change.after.end >= known) {
                places.pop_back();
            }
            for (TracedChange &place : places) {
                place.result = place.change.after;
                for (std::size_t later = at + 1; later < trace_.steps.size(); ++later) {
                    place.result = carried(place.result, trace_.steps[later].places, forward);
                }
            }
            known = std::min(known_[at], knownBefore);
        }
    }

    std::size_t mostPlaces_;
    const Tracing &how_;
    Trace trace_;
    std::u16string before_; // what the last step was given; its memory serves the next
    // As carriedEnd(): of the present text, and of what each step was given.
    std::size_t knownEnd_ = everything;
    std::vector<std::size_t> known_;
};

using Steps = std::span<const Operation *const>;

void traceAlone(Tracer &tracer, Steps steps, const CleaningContext &context) {
    for (const Operation *const operation : steps) {
        if (operation->index == findReplaceOperation) {
            for (const NumberedRule &rule : activeRules(context.options)) {
                tracer.step({.operation = operation, .rule = rule.number},
                            [&](std::u16string text) {
                                return applyRule(std::move(text), rule, context.report);
                            });
            }
        } else if (operation->index == cleanCharactersOperation && tracer.how().characterClasses) {
            for (const CharacterClass &row : characterClasses()) {
                if (row.isOn(context.options)) {
                    tracer.step({.operation = operation, .characters = row.name},
                                [&](std::u16string text) { return row.cleaned(std::move(text)); });
                }
            }
        } else {
            tracer.step({.operation = operation}, [&](std::u16string text) {
                return operation->run(std::move(text), context);
            });
        }
    }
}

// With the list of rules cut behind the one of this number.
CleaningOptions withRulesUpTo(std::size_t number, const CleaningOptions &options) {
    CleaningOptions some = options;
    auto &list =
        some.udOnlyOneProfile ? some.udFindAndReplaceItems : some.udFindAndReplaceItemsProfile;
    auto *items = list ? list->as<storage::PropertyArray>() : nullptr;
    if (items && number < items->size()) {
        items->resize(number, false);
    }
    return some;
}

CleaningOptions withClassesUpTo(const CharacterClass &last, const CleaningOptions &options) {
    CleaningOptions some = options;
    const auto rows = characterClasses();
    for (const CharacterClass &row :
         rows.subspan(static_cast<std::size_t>(&last - rows.data()) + 1)) {
        some.*row.otherwise = row.usual;
    }
    return some;
}

// What the guard protects is told from the text that its first step is given. So the text behind
// each step is what the steps up to there make of that one.
void traceGuarded(Tracer &tracer, Steps steps, const CleaningContext &context) {
    const std::u16string given = tracer.text();
    struct Stage {
        std::size_t steps;
        std::size_t rule = 0;
        const CharacterClass *characters = nullptr;
    };
    std::vector<Stage> stages;
    for (std::size_t at = 0; at < steps.size(); ++at) {
        if (steps[at]->index == findReplaceOperation) {
            for (const NumberedRule &rule : activeRules(context.options)) {
                stages.push_back({at + 1, rule.number});
            }
        } else if (steps[at]->index == cleanCharactersOperation && tracer.how().characterClasses) {
            for (const CharacterClass &row : characterClasses()) {
                if (row.isOn(context.options)) {
                    stages.push_back({at + 1, 0, &row});
                }
            }
        } else {
            stages.push_back({at + 1});
        }
    }
    for (const Stage &stage : stages) {
        const CleaningOptions options =
            stage.characters  ? withClassesUpTo(*stage.characters, context.options)
            : stage.rule != 0 ? withRulesUpTo(stage.rule, context.options)
                              : context.options;
        const bool last = &stage == &stages.back(); // what could not be done is told once
        const CleaningContext part{options, context.locale, context.actualVersion,
                                   last ? context.report : nullptr};
        tracer.step({.operation = steps[stage.steps - 1],
                     .rule = stage.rule,
                     .characters = stage.characters ? stage.characters->name : std::string_view()},
                    [&](const std::u16string &) {
                        return runGuarded(given, steps.first(stage.steps), part, cachedPiece);
                    });
    }
}

Trace traceSteps(std::u16string text, Steps steps, const CleaningContext &context,
                 std::size_t mostPlaces, const Tracing &how = {}) {
    Tracer tracer(std::move(text), mostPlaces, how);
    if (!context.options.udProtectStructure) {
        traceAlone(tracer, steps, context);
        return tracer.take();
    }
    const Steps guarded = guardedSteps(steps);
    traceAlone(tracer, {steps.begin(), guarded.begin()}, context);
    traceGuarded(tracer, guarded, context);
    traceAlone(tracer, {guarded.end(), steps.end()}, context);
    return tracer.take();
}

} // namespace

Trace tracePipeline(std::u16string text, const CleaningContext &context, std::size_t mostPlaces,
                    const Tracing &how) {
    return traceSteps(std::move(text), operationsSwitchedOn(context.options), context, mostPlaces,
                      how);
}

Trace traceOperation(const Operation &operation, std::u16string text,
                     const CleaningContext &context, std::size_t mostPlaces) {
    const Operation *const only = &operation;
    return traceSteps(std::move(text), {&only, 1}, context, mostPlaces);
}

} // namespace nerlo::engine
