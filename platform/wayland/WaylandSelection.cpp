#include "platform/wayland/WaylandSelection.h"

#include "platform/PasteboardReading.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include <wayland-client.h>

namespace nerlo::platform::wayland {

namespace {

// A program that pastes may stop reading for a while (a pager at the end of a pipe does), but not
// hold our content for ever.
constexpr auto receiverStallLimit = std::chrono::seconds(60);
// Receivers served at the same time; beyond that the one that has been still for longest goes.
constexpr std::size_t receiverLimit = 64;

// Offers that no event has given a use yet. There should be one at a time; of a compositor that
// sends more, only the latest are kept, so that it cannot fill the memory.
constexpr std::size_t announcedLimit = 8;

bool contains(const std::vector<std::string> &names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

// Longer names do not fit into a message of the protocol, and nobody could ask for them.
bool usableName(const std::string &name) {
    return !name.empty() && name.size() <= pasteboardFormatNameLimit &&
           name.find('\0') == std::string::npos;
}

} // namespace

struct WaylandSelection::ReadJob {
    PasteboardReading reading;
    Pasteboard::ReadHandler handler; // null once the job has ended

    void finish(PasteboardStatus status) {
        if (handler) {
            std::exchange(handler, nullptr)(
                status == PasteboardStatus::timedOut ? reading.late() : reading.result(status));
        }
    }
};

WaylandSelection::WaylandSelection(EventLoop &loop, std::function<void(ChangeCount)> replaced)
    : loop_(loop)
    , replaced_(std::move(replaced)) {}

WaylandSelection::~WaylandSelection() {
    destroyObjects();
}

void WaylandSelection::destroyObjects() {
    leaveSeat();
    for (const auto &[name, seat] : std::exchange(seats_, {})) {
        wl_seat_destroy(seat);
    }
    if (manager_) {
        destroyManager(std::exchange(manager_, nullptr));
    }
    managers_.clear();
    registry_.reset();
}

std::string WaylandSelection::prepare() {
    registry_ = std::make_unique<Registry>(
        loop_.display(),
        [this](std::uint32_t name, std::string_view interface, std::uint32_t version) {
            addGlobal(name, interface, version);
        },
        [this](std::uint32_t name) { removeGlobal(name); });
    if (!loop_.roundTrip(pasteboardServerLimit)) {
        return "the Wayland compositor does not answer";
    }
    for (const auto &protocol : dataControls) {
        const auto found = managers_.find(protocol.manager->name);
        if (!manager_ && found != managers_.end()) {
            protocol_ = &protocol;
            // Version 1 of either: from version 2 on, one of them also tells of each change of the
            // primary selection, which would wake us for nothing.
            manager_ = registry_->bind(found->second, *protocol.manager, 1);
        }
    }
    if (!manager_) {
        return "the Wayland compositor has no data-control protocol";
    }
    takeSeat();
    if (!loop_.roundTrip(pasteboardServerLimit)) {
        return "the Wayland compositor does not answer";
    }
    return {};
}

void WaylandSelection::addGlobal(std::uint32_t name, std::string_view interface, std::uint32_t) {
    if (interface == wl_seat_interface.name) {
        seats_[name] = reinterpret_cast<wl_seat *>(registry_->bind(name, wl_seat_interface, 1));
        if (manager_) {
            takeSeat();
        }
    } else {
        managers_.emplace(interface, name);
    }
}

void WaylandSelection::removeGlobal(std::uint32_t name) {
    const auto found = seats_.find(name);
    if (found == seats_.end()) {
        return;
    }
    if (name == seat_) {
        leaveSeat();
        replaceContent({});
    }
    wl_seat_destroy(found->second);
    seats_.erase(found);
    takeSeat();
}

void WaylandSelection::takeSeat() {
    if (!device_ && manager_ && !seats_.empty()) {
        seat_ = seats_.begin()->first;
        device_ = protocol_->newDevice(manager_, seats_.begin()->second, *this);
    }
}

void WaylandSelection::leaveSeat() {
    announced_.push_back(std::exchange(current_, {}));
    for (const Offer &offer : std::exchange(announced_, {})) {
        if (offer.proxy) {
            destroyOffer(offer.proxy);
        }
    }
    for (const OwnSource &source : sources_) {
        destroySource(source.proxy);
    }
    sources_.clear();
    if (device_) {
        destroyDevice(std::exchange(device_, nullptr));
    }
    seat_ = 0;
    tellWhetherNeeded();
}

void WaylandSelection::finished() {
    // The seat went, or the compositor has withdrawn the protocol from us: there is no use in
    // asking for the same seat again.
    leaveSeat();
    replaceContent({});
}

void WaylandSelection::newOffer(wl_proxy *offer) {
    if (announced_.size() == announcedLimit) {
        destroyOffer(announced_.front().proxy);
        announced_.erase(announced_.begin());
    }
    announced_.push_back({.proxy = offer, .formats = {}});
    listen(offer, *this);
}

void WaylandSelection::offeredFormat(wl_proxy *offer, const char *format) {
    const auto found = std::ranges::find(announced_, offer, &Offer::proxy);
    if (found == announced_.end() || contains(found->formats, format)) {
        return;
    }
    if (found->formats.size() < pasteboardFormatLimit && usableName(format)) {
        found->formats.emplace_back(format);
    } else {
        found->complete = false;
    }
}

WaylandSelection::Offer WaylandSelection::takeAnnounced(wl_proxy *offer) {
    const auto found = std::ranges::find(announced_, offer, &Offer::proxy);
    if (found == announced_.end()) {
        return {};
    }
    Offer taken = std::move(*found);
    announced_.erase(found);
    return taken;
}

void WaylandSelection::selection(wl_proxy *offer) {
    Offer taken = takeAnnounced(offer);
    // An offer that was never announced, or the current one once more, is no news.
    if (taken.proxy || !offer) {
        replaceContent(std::move(taken));
    }
}

void WaylandSelection::primarySelection(wl_proxy *offer) {
    if (const Offer taken = takeAnnounced(offer); taken.proxy) {
        destroyOffer(taken.proxy);
    }
}

void WaylandSelection::replaceContent(Offer offer) {
    if (current_.proxy) {
        destroyOffer(current_.proxy);
    }
    current_ = std::move(offer);
    ++count_;
    endReads(PasteboardStatus::changed);
    if (window_) {
        ++window_->replacements;
    } else {
        replaced_(count_);
    }
}

void WaylandSelection::endReads(PasteboardStatus status) {
    for (const auto &job : std::exchange(reads_, {})) {
        job->finish(status);
    }
    loop_.abandonIncoming();
}

void WaylandSelection::readFormats(const Pasteboard::FormatsHandler &handler) {
    if (!loop_.connected()) {
        handler({});
        return;
    }
    handler({PasteboardStatus::done, count_, current_.formats, current_.complete});
}

void WaylandSelection::read(ChangeCount of, PasteboardRequest request,
                            Pasteboard::ReadHandler handler) {
    const auto job = std::make_shared<ReadJob>(
        ReadJob{PasteboardReading(std::move(request)), std::move(handler)});
    if (!loop_.connected()) {
        job->finish(PasteboardStatus::unavailable);
    } else if (of != count_) {
        job->finish(PasteboardStatus::changed);
    } else {
        reads_.push_back(job);
        readOn(job);
    }
}

// Asks for as many formats as may be asked for now.
void WaylandSelection::readOn(const std::shared_ptr<ReadJob> &job) {
    while (const auto place = job->reading.next()) {
        if (!contains(current_.formats, job->reading.format(*place))) {
            job->reading.failed(PasteboardReading::Failure::refused);
        } else if (!startTransfer(job, *place)) {
            endRead(job, PasteboardStatus::unavailable);
            return;
        }
    }
    if (job->reading.finished()) {
        // A compositor closes the pipe at once when the content is replaced; the news of that may
        // come a moment later, and ends the job otherwise.
        loop_.afterRoundTrip(pasteboardServerLimit,
                             [this, job](bool) { endRead(job, PasteboardStatus::done); });
    }
}

bool WaylandSelection::startTransfer(const std::shared_ptr<ReadJob> &job, std::size_t place) {
    Pipe pipe = makePipe();
    if (!pipe.reader) {
        return false;
    }
    receive(current_.proxy, job->reading.format(place).c_str(), pipe.writer.get());
    // The time limit of the other formats is one for all of them together.
    const auto silence = job->reading.first() ? pasteboardStallLimit : pasteboardReadLimit;
    loop_.add(std::make_unique<IncomingTransfer>(
        std::move(pipe.reader), TransferLimits{job->reading.room(), silence, job->reading.end()},
        [this, job, place](IncomingTransfer::Outcome outcome, std::string bytes) {
            if (job->handler) {
                transferEnded(job, place, outcome, std::move(bytes));
            }
        }));
    return true;
}

void WaylandSelection::transferEnded(const std::shared_ptr<ReadJob> &job, std::size_t place,
                                     IncomingTransfer::Outcome outcome, std::string bytes) {
    using Outcome = IncomingTransfer::Outcome;
    auto &reading = job->reading;
    if (outcome == Outcome::abandoned) {
        endRead(job, PasteboardStatus::timedOut);
        return;
    }
    if (outcome == Outcome::complete) {
        reading.arrived(place, {reading.format(place), {}, pasteboardBytes(std::move(bytes))});
    } else {
        reading.failed(outcome == Outcome::tooLarge ? PasteboardReading::Failure::tooLarge
                                                    : PasteboardReading::Failure::refused);
    }
    readOn(job);
}

void WaylandSelection::endRead(const std::shared_ptr<ReadJob> &job, PasteboardStatus status) {
    std::erase(reads_, job);
    job->finish(status);
}

void WaylandSelection::write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
                             Pasteboard::WriteHandler handler) {
    writes_.push_back({std::move(content), onlyOver, std::move(handler)});
    if (writes_.size() == 1) {
        startWrite();
    }
}

// One write at a time. The first round trip brings in what other programs did before; the second
// one brings in the news of our own write.
void WaylandSelection::startWrite() {
    loop_.afterRoundTrip(pasteboardServerLimit, [this](bool answered) {
        const auto &onlyOver = writes_.front().onlyOver;
        if (!loop_.connected() || !device_) {
            endWrite({PasteboardStatus::unavailable, 0});
        } else if (!answered) {
            endWrite({PasteboardStatus::timedOut, 0});
        } else if (onlyOver && *onlyOver != count_) {
            endWrite({PasteboardStatus::changed, 0});
        } else {
            setContent();
        }
    });
}

void WaylandSelection::setContent() {
    PasteboardContent &content = writes_.front().content;
    window_ = WriteWindow{nullptr};
    if (!content.empty()) {
        window_->source = protocol_->newSource(manager_, *this);
        for (const PasteboardData &data : content) {
            if (usableName(data.format)) {
                addFormat(window_->source, data.format.c_str());
            }
        }
        sources_.push_back({window_->source, std::move(content)});
    }
    setSelection(device_, window_->source);
    loop_.afterRoundTrip(pasteboardServerLimit, [this](bool answered) {
        if (answered) {
            confirmWrite();
            return;
        }
        window_.reset();
        endWrite(
            {loop_.connected() ? PasteboardStatus::timedOut : PasteboardStatus::unavailable, 0});
    });
}

void WaylandSelection::confirmWrite() {
    const WriteWindow window = *std::exchange(window_, std::nullopt);
    const bool overtaken = window.source ? window.cancelled : current_.proxy != nullptr;
    // One piece of news for our write, one more if a copy came after it; a compositor may keep ours
    // from us.
    for (int missing = (overtaken ? 2 : 1) - window.replacements; missing > 0; --missing) {
        ++count_;
    }
    const ChangeCount own = overtaken ? count_ - 1 : count_;
    endWrite({PasteboardStatus::done, own});
    if (overtaken) {
        replaced_(count_);
    }
}

void WaylandSelection::endWrite(PasteboardWrite result) {
    const auto handler = std::move(writes_.front().handler);
    writes_.pop_front();
    handler(result);
    if (!writes_.empty()) {
        startWrite();
    }
}

void WaylandSelection::send(wl_proxy *source, const char *format, int fd) {
    FileDescriptor receiver(fd);
    const auto own = std::ranges::find(sources_, source, &OwnSource::proxy);
    if (own == sources_.end()) {
        return;
    }
    const auto data =
        std::ranges::find(own->content, std::string_view(format),
                          [](const auto &each) -> std::string_view { return each.format; });
    if (data == own->content.end()) {
        return;
    }
    if (auto transfer =
            OutgoingTransfer::create(std::move(receiver), data->bytes, receiverStallLimit)) {
        loop_.add(std::move(transfer));
        loop_.limitOutgoing(receiverLimit);
    }
}

void WaylandSelection::cancelled(wl_proxy *source) {
    if (window_ && window_->source == source) {
        window_->cancelled = true;
    }
    std::erase_if(sources_, [source](const OwnSource &own) { return own.proxy == source; });
    destroySource(source);
    tellWhetherNeeded();
}

void WaylandSelection::onlyServe(std::function<void()> unneeded) {
    reads_.clear();
    writes_.clear();
    window_.reset();
    replaced_ = [](ChangeCount) {};
    unneeded_ = std::move(unneeded);
}

void WaylandSelection::tellWhetherNeeded() const {
    if (unneeded_ && !owns()) {
        unneeded_();
    }
}

void WaylandSelection::lost() {
    endReads(PasteboardStatus::unavailable);
    destroyObjects();
}

} // namespace nerlo::platform::wayland
