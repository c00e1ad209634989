#include "clipboard/nrPasteboardWatcher.h"

#include "clipboard/PasteboardFormats.h"
#include "platform/SpreadsheetLinks.h"
#include "text/Ascii.h"

#include <algorithm>
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

nrPasteboardWatcher::nrPasteboardWatcher(platform::Pasteboard &pasteboard_,
                                         platform::MainQueue &mainQueue_,
                                         platform::ActiveApplication &activeApplication_,
                                         clipboard::nrChangePasterboard &engine_)
    : pasteboard(pasteboard_)
    , mainQueue(mainQueue_)
    , activeApplication(activeApplication_)
    , engine(engine_)
    , changeCount(pasteboard_.changeCount()) {
    engine.setWriteListener(this);
    shared = this;
}

nrPasteboardWatcher::~nrPasteboardWatcher() {
    stop();
    if (disableAppsState) {
        stopEngine();
    }
    engine.setWriteListener(nullptr);
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
    started = mainQueue.now();
    if (pasteboard.notifiesChanges()) {
        pasteboard.setChangeHandler([this] { scheduleNextTick(); });
    }
    scheduleNextTick();
}

void nrPasteboardWatcher::stop() {
    if (!started) {
        return;
    }
    started.reset();
    pasteboard.setChangeHandler(nullptr);
    mainQueue.cancel(std::exchange(timer, 0));
}

void nrPasteboardWatcher::scheduleNextTick() {
    const bool polls = !pasteboard.notifiesChanges();
    if (!started || timer != 0 || (!polls && pasteboard.changeCount() == changeCount)) {
        return;
    }
    // The first tick that lies ahead: one that is missed, in a computer's sleep, is not made up
    // for.
    const auto now = mainQueue.now();
    auto due = *started + firstTickAfter;
    if (due <= now) {
        due += ((now - due) / tickInterval + 1) * tickInterval;
    }
    timer = mainQueue.postAfter(
        due - now,
        [this] {
            timer = 0;
            update();
            scheduleNextTick();
        },
        polls ? tickTolerance : 0ms);
}

void nrPasteboardWatcher::update() {
    // The count is kept as it was seen here: a copy that comes while this one is being looked at is
    // a new one.
    const auto count = pasteboard.changeCount();
    if (count == changeCount) {
        return;
    }
    changeCount = count;
    if (const auto linkType = sparedLinkType(); !linkType.empty()) {
        cleanUnlessLink(count, linkType);
    } else {
        engine.changePasteboard();
    }
}

std::string_view nrPasteboardWatcher::sparedLinkType() const {
    if (!disableAppsState || !currentAppBundle) {
        return {};
    }
    const auto links = platform::spreadsheetLinks();
    const auto link = std::ranges::find_if(links, [&](const platform::SpreadsheetLink &row) {
        return text::equalIgnoringAsciiCase(row.identifier, *currentAppBundle);
    });
    return link == links.end() ? std::string_view() : link->type;
}

void nrPasteboardWatcher::cleanUnlessLink(platform::ChangeCount count, std::string_view linkType) {
    pasteboard.readFormats([this, count, linkType, still = std::weak_ptr(alive)](
                               const platform::PasteboardFormats &offered) {
        if (still.expired() || offered.status != platform::PasteboardStatus::done) {
            return;
        }
        // The formats may be those of a copy that came after the tick.
        if (changeCount == count) {
            changeCount = offered.changeCount;
        }
        if (!platform::offersLink(offered.formats, linkType)) {
            engine.changePasteboard();
        }
    });
}

void nrPasteboardWatcher::addOneCount(platform::ChangeCount written) {
    changeCount = written;
}

void nrPasteboardWatcher::addOneCount() {
    changeCount = pasteboard.changeCount();
}

void nrPasteboardWatcher::toggleEngine(bool on) {
    disableAppsState = on;
    if (on) {
        startEngine();
    } else {
        stopEngine();
    }
}

void nrPasteboardWatcher::startEngine() {
    if (currentAppBundle) {
        return;
    }
    activeApplication.setActivatedHandler(
        [this](std::string identifier) { appActivated(std::move(identifier)); });
    addOneCount();
}

void nrPasteboardWatcher::stopEngine() {
    activeApplication.setActivatedHandler(nullptr);
    currentAppBundle.reset();
}

void nrPasteboardWatcher::appActivated(std::string identifier) {
    if (identifier.empty()) {
        currentAppBundle.reset();
    } else {
        currentAppBundle = std::move(identifier);
    }
}

} // namespace nerlo::clipboard
