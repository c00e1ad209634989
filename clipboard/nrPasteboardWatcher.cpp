#include "clipboard/nrPasteboardWatcher.h"

#include <cassert>
#include <cmath>
#include <utility>

namespace nerlo::clipboard {

using namespace std::chrono_literals;

namespace {

constexpr auto firstTickAfter = 2000ms;
constexpr auto tickInterval = 500ms;
// A polled tick may be late by this much, so that the platform can wake up for several things at
// once.
constexpr auto tickTolerance = 500ms;

nrPasteboardWatcher *shared = nullptr;

} // namespace

nrPasteboardWatcher::nrPasteboardWatcher(platform::Pasteboard &pasteboard,
                                         platform::MainQueue &mainQueue,
                                         platform::ActiveApplication &activeApplication,
                                         nrChangePasterboard &engine)
    : pasteboard_(pasteboard)
    , mainQueue_(mainQueue)
    , activeApplication_(activeApplication)
    , engine_(engine)
    , changeCount_(pasteboard.changeCount())
    , copied_{changeCount_, {}} {
    engine_.setListener(this);
    shared = this;
}

nrPasteboardWatcher::~nrPasteboardWatcher() {
    stop();
    activeApplication_.setActivatedHandler(nullptr);
    engine_.setListener(nullptr);
    if (shared == this) {
        shared = nullptr;
    }
}

nrPasteboardWatcher &nrPasteboardWatcher::sharedInstance() {
    assert(shared);
    return *shared;
}

std::int64_t nrPasteboardWatcher::checkVersion(double toolkitVersion) {
    const double version = std::floor(toolkitVersion);
    return version <= 1038 ? 106 : version <= 1138 ? 107 : version <= 1187 ? 108 : 109;
}

void nrPasteboardWatcher::start() {
    stop();
    started_ = mainQueue_.now();
    scheduleNextTick();
}

void nrPasteboardWatcher::stop() {
    if (!started_) {
        return;
    }
    started_.reset();
    mainQueue_.cancel(std::exchange(timer_, 0));
}

void nrPasteboardWatcher::scheduleNextTick() {
    const bool polls = !pasteboard_.notifiesChanges();
    if (!started_ || timer_ != 0 || (!polls && pasteboard_.changeCount() == changeCount_)) {
        return;
    }
    // The first tick that lies ahead: one that is missed, in a computer's sleep, is not made up
    // for.
    const auto now = mainQueue_.now();
    auto due = *started_ + firstTickAfter;
    if (due <= now) {
        due += ((now - due) / tickInterval + 1) * tickInterval;
    }
    timer_ = mainQueue_.postAfter(
        due - now,
        [this] {
            timer_ = 0;
            update();
            scheduleNextTick();
        },
        polls ? tickTolerance : 0ms);
}

void nrPasteboardWatcher::update() {
    // The count is kept as it was seen here: a copy that comes while this one is being looked at is
    // a new one.
    const auto count = pasteboard_.changeCount();
    // The end of a write of ours comes to clipboardChanged().
    if (count == changeCount_ || engine_.writing()) {
        return;
    }
    noteProgram(count);
    CopyTable exceptions =
        disableAppsState_ ? spreadsheetRows(currentAppBundle_.value_or("")) : CopyTable();
    // The copy has been dealt with already, be it by leaving it alone. Only our own content cannot
    // have gone: what is put back in its place is a copy whose program was gone before it was seen.
    if (!engine_.wrote(changeCount_)) {
        exceptions.push_back(putBackRow());
    }
    changeCount_ = count;
    engine_.changePasteboard(std::move(exceptions));
}

void nrPasteboardWatcher::addOneCount(platform::ChangeCount written) {
    changeCount_ = written;
    copied_.count = written;
}

std::string nrPasteboardWatcher::copiedFrom(platform::ChangeCount count) {
    noteProgram(count);
    return copied_.program;
}

void nrPasteboardWatcher::noteProgram(platform::ChangeCount count) {
    if (copied_.count != count) {
        copied_ = {count, program_};
        if (programChanged_) {
            programChanged_();
        }
    }
}

void nrPasteboardWatcher::addOneCount() {
    changeCount_ = pasteboard_.changeCount();
}

// The copy is noted now: at the next tick, another program may be in front.
void nrPasteboardWatcher::clipboardChanged() {
    noteProgram(pasteboard_.changeCount());
    if (atOnce_ && running()) {
        update();
    } else {
        scheduleNextTick();
    }
}

void nrPasteboardWatcher::toggleEngine(bool on) {
    disableAppsState_ = on;
    if (on) {
        startEngine();
    } else {
        stopEngine();
    }
}

void nrPasteboardWatcher::startEngine() {
    if (currentAppBundle_) {
        return;
    }
    subscribe();
    addOneCount();
}

void nrPasteboardWatcher::stopEngine() {
    if (!followsPrograms_) {
        activeApplication_.setActivatedHandler(nullptr);
    }
    currentAppBundle_.reset();
}

void nrPasteboardWatcher::followPrograms() {
    followsPrograms_ = true;
    subscribe();
}

void nrPasteboardWatcher::subscribe() {
    activeApplication_.setActivatedHandler(
        [this](std::string identifier) { appActivated(std::move(identifier)); });
}

void nrPasteboardWatcher::appActivated(std::string identifier) {
    program_ = identifier;
    currentAppBundle_ = disableAppsState_ && !identifier.empty()
                            ? std::optional(std::move(identifier))
                            : std::nullopt;
}

} // namespace nerlo::clipboard
