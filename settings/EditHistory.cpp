#include "settings/EditHistory.h"

#include <utility>

namespace nerlo::settings {

namespace {

constexpr std::size_t valuesOfARow = 8; // of the table of copies

std::size_t valuesOf(const RecordItems &items) {
    std::size_t values = 0;
    for (const RecordItem &item : items) {
        values += item.record.size();
        for (const auto &[key, value] : item.record) {
            const auto *array = value.as<storage::PropertyArray>();
            values += array ? array->size() : 0;
        }
    }
    return values;
}

std::size_t valuesOf(const EditedState &state) {
    const auto *rows = state.copyTable ? state.copyTable->as<storage::PropertyArray>() : nullptr;
    return valuesOf(state.profiles) + valuesOf(state.sharedRules) + state.shortcuts.size() +
           (rows ? rows->size() * valuesOfARow : 0);
}

} // namespace

void EditHistory::add(EditedState before, EditedState after, std::string_view typing) {
    if (before == after) {
        return;
    }
    gestures_.resize(done_);
    const bool goesOn = !typing.empty() && typing == typing_ && done_ > 0;
    if (goesOn) {
        before = std::move(gestures_.back().before);
        gestures_.pop_back();
    }
    typing_ = typing;
    // Typed and taken back: as if nothing had been done.
    if (!(goesOn && before == after)) {
        const std::size_t values = valuesOf(before) + valuesOf(after);
        gestures_.push_back({std::move(before), std::move(after), values});
    }
    forget();
    done_ = gestures_.size();
}

void EditHistory::forget() {
    std::size_t values = 0;
    for (const Gesture &gesture : gestures_) {
        values += gesture.values;
    }
    while (gestures_.size() > mostGestures || (gestures_.size() > 1 && values > mostValues)) {
        values -= gestures_.front().values;
        gestures_.pop_front();
    }
}

EditHistory::Change EditHistory::undo() {
    endTyping();
    const Gesture &gesture = gestures_[--done_];
    return {gesture.after, gesture.before};
}

EditHistory::Change EditHistory::redo() {
    endTyping();
    const Gesture &gesture = gestures_[done_++];
    return {gesture.before, gesture.after};
}

} // namespace nerlo::settings
