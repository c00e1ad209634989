#include "platform/x11/X11Selection.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <poll.h>
#include <xcb/xfixes.h>

namespace nerlo::platform::x11 {

namespace {

// Targets that say how to transfer, and are no content.
constexpr std::array<std::string_view, 7> protocolTargets{
    "TARGETS", "MULTIPLE",         "TIMESTAMP",      "SAVE_TARGETS",
    "DELETE",  "INSERT_SELECTION", "INSERT_PROPERTY"};

constexpr std::size_t largestPiece = 256 * 1024;
// Formats of an owner that are looked at, counted before those without a usable name and repeated
// ones are left out.
constexpr std::size_t mostAtoms = 4 * pasteboardFormatLimit;
// Other clients that take large formats from us at the same time, and pairs in one MULTIPLE.
constexpr std::size_t mostSendings = 64;
constexpr std::size_t mostPairs = 64;
// The server's clock is read at most so often until two milliseconds have passed on it.
constexpr int mostLooks = 1000;

template <class T>
const T &as(const xcb_generic_event_t &event) {
    return reinterpret_cast<const T &>(event);
}

} // namespace

std::unique_ptr<X11Selection> X11Selection::open(std::string &declined) {
    auto connection = Connection::open();
    if (!connection) {
        declined = "no X display";
        return nullptr;
    }
    auto *xcb = connection->get();
    const auto *fixes = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (!fixes || fixes->present == 0) {
        declined = "the X display has no XFixes extension";
        return nullptr;
    }
    const Reply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        xcb, xcb_xfixes_query_version(xcb, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    if (!version) {
        declined = "the X display's XFixes extension does not answer";
        return nullptr;
    }
    auto peer = std::unique_ptr<X11Selection>(new X11Selection(std::move(connection)));
    peer->fixesEvent_ = fixes->first_event;
    peer->description_ = "X11, XFixes " + std::to_string(version->major_version) + "." +
                         std::to_string(version->minor_version);
    return peer;
}

X11Selection::X11Selection(std::unique_ptr<Connection> connection)
    : connection_(std::move(connection))
    , window_(connection_->makeWindow(XCB_EVENT_MASK_PROPERTY_CHANGE)) {
    atoms_ = {connection_->atom("CLIPBOARD"),         connection_->atom("TARGETS"),
              connection_->atom("MULTIPLE"),          connection_->atom("TIMESTAMP"),
              connection_->atom("SAVE_TARGETS"),      connection_->atom("INCR"),
              connection_->atom("ATOM_PAIR"),         connection_->atom("NULL"),
              connection_->atom("CLIPBOARD_MANAGER"), connection_->atom("NERLO_DATA"),
              connection_->atom("NERLO_TIME")};
    auto *xcb = connection_->get();
    pieceSize_ = std::min<std::size_t>(largestPiece,
                                       std::size_t{xcb_get_maximum_request_length(xcb)} * 4 / 2);
    xcb_xfixes_select_selection_input(xcb, window_, atoms_.clipboard,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        xcb, xcb_get_selection_owner(xcb, atoms_.clipboard), nullptr));
    owner_ = owner ? owner->owner : xcb_window_t{XCB_NONE};
}

X11Selection::~X11Selection() = default;

int X11Selection::fileDescriptor() const {
    return lost_ ? -1 : xcb_get_file_descriptor(connection_->get());
}

std::optional<EventSource::Clock::time_point> X11Selection::deadline() const {
    if (more_) {
        return Clock::time_point::min();
    }
    std::optional<Clock::time_point> first;
    const auto consider = [&](Clock::time_point time) {
        first = std::min(first.value_or(time), time);
    };
    for (const auto &question : questions_) {
        consider(question.due());
    }
    for (const auto &sending : sendings_) {
        consider(sending.stalled);
    }
    return first;
}

void X11Selection::process() {
    if (lost_) {
        return;
    }
    int left = eventsAtOnce;
    for (; left > 0; --left) {
        Event event(xcb_poll_for_event(connection_->get()));
        if (!event) {
            break;
        }
        take(std::move(event));
    }
    for (int served = 0; served < eventsAtOnce && !waiting_.empty(); ++served) {
        const auto event = std::move(waiting_.front());
        waiting_.pop_front();
        dispatch(*event);
    }
    answerOverdueAndStale();
    xcb_flush(connection_->get());
    // Waiting for a reply may have read further events.
    if (auto *event = xcb_poll_for_queued_event(connection_->get())) {
        take(Event(event));
        left = 0;
    }
    more_ = left == 0 || !waiting_.empty();
    if (connection_->broken()) {
        lost_ = true;
        while (!questions_.empty()) {
            answer(questions_.begin(), PasteboardStatus::unavailable);
        }
        sendings_.clear();
        offers_.clear();
        lost();
    }
    if (unneeded_ && !owned() && sendings_.empty()) {
        unneeded_();
    }
}

// Events

void X11Selection::take(Event event) {
    if ((event->response_type & 0x7f) == fixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
        count(*event);
    } else if (event->response_type != 0) { // an error: some client's window is gone
        waiting_.push_back(std::move(event));
    }
}

void X11Selection::count(const xcb_generic_event_t &event) {
    const auto &news = as<xcb_xfixes_selection_notify_event_t>(event);
    if (news.selection != atoms_.clipboard) {
        return;
    }
    ++changeCount_;
    const bool set = news.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
    owner_ = set ? news.owner : xcb_window_t{XCB_NONE};
    selectionTime_ = news.selection_timestamp;
    if (owner_ == window_) {
        taken_ = changeCount_;
    } else {
        offers_.clear();
    }
    changed();
}

// After this, everything that the server did before has been counted.
void X11Selection::synchronize() {
    auto *xcb = connection_->get();
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    while (auto *event = xcb_poll_for_event(xcb)) {
        take(Event(event));
    }
}

xcb_timestamp_t X11Selection::serverTime() {
    setProperty(window_, atoms_.time, XCB_ATOM_INTEGER, std::string());
    synchronize();
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    std::erase_if(waiting_, [&](const Event &event) {
        const auto &property = as<xcb_property_notify_event_t>(*event);
        const bool answers = (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY &&
                             property.window == window_ && property.atom == atoms_.time;
        if (answers) {
            time = property.time;
        }
        return answers;
    });
    return time;
}

void X11Selection::dispatch(const xcb_generic_event_t &event) {
    switch (event.response_type & 0x7f) {
    case XCB_SELECTION_NOTIFY:
        arrived(as<xcb_selection_notify_event_t>(event));
        break;
    case XCB_SELECTION_REQUEST:
        serve(as<xcb_selection_request_event_t>(event));
        break;
    case XCB_PROPERTY_NOTIFY:
        if (as<xcb_property_notify_event_t>(event).state == XCB_PROPERTY_NEW_VALUE) {
            pieceArrived(as<xcb_property_notify_event_t>(event));
        } else {
            pieceTaken(as<xcb_property_notify_event_t>(event));
        }
        break;
    case XCB_DESTROY_NOTIFY:
        std::erase_if(sendings_, [&](const Sending &sending) {
            return sending.requestor == as<xcb_destroy_notify_event_t>(event).window;
        });
        break;
    default:
        break;
    }
}

template <class T>
void X11Selection::setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                               const T &units) {
    xcb_change_property(connection_->get(), XCB_PROP_MODE_REPLACE, window, name, type,
                        sizeof units[0] * 8, static_cast<std::uint32_t>(units.size()),
                        units.data());
}

// Asking

X11Selection::Clock::time_point X11Selection::Question::due() const {
    auto first = end;
    for (const auto &transfer : transfers) {
        first = std::min(first, transfer.stalled);
    }
    return first;
}

void X11Selection::readFormats(Pasteboard::FormatsHandler handler) {
    if (lost_) {
        handler({});
        return;
    }
    auto &question = questions_.emplace_back();
    question.formatsHandler = std::move(handler);
    question.end = Clock::now() + pasteboardReadLimit;
    begin(std::prev(questions_.end()));
}

void X11Selection::read(ChangeCount of, PasteboardRequest request,
                        Pasteboard::ReadHandler handler) {
    if (lost_) {
        handler({});
        return;
    }
    auto &question = questions_.emplace_back();
    question.of = of;
    question.reading.emplace(std::move(request));
    question.room = question.reading->room();
    question.readHandler = std::move(handler);
    begin(std::prev(questions_.end()));
}

void X11Selection::begin(Questions::iterator question) {
    synchronize();
    if (!question->wantsAtoms()) {
        readOn(question);
        return;
    }
    question->of = changeCount_;
    if (owner_ == XCB_NONE || owned()) {
        answerFormats(question, {});
        return;
    }
    question->room = std::make_shared<std::size_t>(mostAtoms * sizeof(xcb_atom_t));
    convert(*question, atoms_.targets, 0);
}

// Asks for as many formats as may be asked for now.
void X11Selection::readOn(Questions::iterator question) {
    if (question->of != changeCount_ || owner_ == XCB_NONE) {
        answer(question, PasteboardStatus::changed);
        return;
    }
    auto &reading = *question->reading;
    while (const auto place = reading.next()) {
        if (!owned()) {
            convert(*question, connection_->atom(reading.format(*place)), *place);
        } else if (!answerFromOffers(reading, *place)) {
            reading.failed(PasteboardReading::Failure::refused);
        }
    }
    question->end = reading.end();
    if (reading.finished()) {
        answer(question, PasteboardStatus::done);
    }
}

bool X11Selection::answerFromOffers(PasteboardReading &reading, std::size_t place) const {
    const auto offer = std::ranges::find(offers_, reading.format(place),
                                         [](const Offer &o) { return o.data.format; });
    if (offer == offers_.end()) {
        return false;
    }
    const auto size = offer->data.bytes->size();
    if (size > *reading.room()) {
        reading.failed(PasteboardReading::Failure::tooLarge);
    } else {
        *reading.room() -= size;
        reading.arrived(place, offer->data);
    }
    return true;
}

void X11Selection::convert(Question &question, xcb_atom_t target, std::size_t place) {
    auto &transfer = question.transfers.emplace_back();
    transfer.target = target;
    transfer.place = place;
    startTransfer(transfer);
    // The time limit of the other formats is one for all of them together.
    if (question.reading && !question.reading->first()) {
        transfer.stalled = question.reading->end();
    }
}

void X11Selection::startTransfer(Transfer &transfer) {
    transfer.window = connection_->makeWindow(XCB_EVENT_MASK_PROPERTY_CHANGE);
    transfer.stalled = Clock::now() + pasteboardStallLimit;
    xcb_convert_selection(connection_->get(), transfer.window, atoms_.clipboard, transfer.target,
                          atoms_.data, XCB_CURRENT_TIME);
    xcb_flush(connection_->get());
}

void X11Selection::endTransfer(Question &question, Transfers::iterator transfer) {
    xcb_destroy_window(connection_->get(), transfer->window);
    question.transfers.erase(transfer);
}

std::optional<std::pair<X11Selection::Questions::iterator, X11Selection::Transfers::iterator>>
X11Selection::find(xcb_window_t window) {
    for (auto question = questions_.begin(); question != questions_.end(); ++question) {
        const auto transfer = std::ranges::find(question->transfers, window, &Transfer::window);
        if (transfer != question->transfers.end()) {
            return std::pair(question, transfer);
        }
    }
    return std::nullopt;
}

void X11Selection::arrived(const xcb_selection_notify_event_t &event) {
    if (event.selection == atoms_.manager && event.requestor == window_) {
        handingOver_ = false;
        handedOver_ = event.property != XCB_NONE;
        return;
    }
    const auto found = find(event.requestor);
    if (!found || event.target != found->second->target || found->second->incremental) {
        return;
    }
    const auto [question, transfer] = *found;
    if (event.property != atoms_.data) {
        failed(question, transfer, PasteboardReading::Failure::refused);
        return;
    }
    auto property = connection_->property(transfer->window, atoms_.data, *question->room, true);
    if (!property) {
        failed(question, transfer, PasteboardReading::Failure::tooLarge);
    } else if (property->type == atoms_.incremental) {
        transfer->incremental = true;
        transfer->stalled = std::max(transfer->stalled, Clock::now() + pasteboardStallLimit);
    } else if (property->unit != (question->wantsAtoms() ? 32 : 8)) {
        failed(question, transfer, PasteboardReading::Failure::refused);
    } else {
        *question->room -= property->bytes.size();
        transfer->type = property->type;
        transfer->bytes = std::move(property->bytes);
        transferred(question, transfer);
    }
}

void X11Selection::pieceArrived(const xcb_property_notify_event_t &event) {
    const auto found = find(event.window);
    if (event.atom != atoms_.data || !found || !found->second->incremental) {
        return;
    }
    const auto [question, transfer] = *found;
    const auto piece = connection_->property(transfer->window, atoms_.data, *question->room, true);
    if (!piece) {
        failed(question, transfer, PasteboardReading::Failure::tooLarge);
    } else if (piece->bytes.empty()) {
        transferred(question, transfer);
    } else if (piece->unit != (question->wantsAtoms() ? 32 : 8)) {
        failed(question, transfer, PasteboardReading::Failure::refused);
    } else {
        *question->room -= piece->bytes.size();
        transfer->type = piece->type;
        transfer->bytes += piece->bytes;
        transfer->stalled = std::max(transfer->stalled, Clock::now() + pasteboardStallLimit);
    }
}

void X11Selection::transferred(Questions::iterator question, Transfers::iterator transfer) {
    auto ended = std::move(*transfer);
    endTransfer(*question, transfer);
    if (question->wantsAtoms()) {
        answerFormats(question, std::move(ended.bytes));
        return;
    }
    std::string type;
    if (ended.type != ended.target) {
        type = connection_->names(std::span(&ended.type, 1), pasteboardFormatNameLimit).front();
    }
    auto &reading = *question->reading;
    reading.arrived(ended.place, {reading.format(ended.place), std::move(type),
                                  pasteboardBytes(std::move(ended.bytes))});
    begin(question);
}

void X11Selection::failed(Questions::iterator question, Transfers::iterator transfer,
                          PasteboardReading::Failure failure) {
    *question->room += transfer->bytes.size();
    endTransfer(*question, transfer);
    if (question->wantsAtoms()) {
        answer(question, PasteboardStatus::unavailable);
        return;
    }
    question->reading->failed(failure);
    begin(question);
}

void X11Selection::answerFormats(Questions::iterator question, std::string bytes) {
    PasteboardFormats result{PasteboardStatus::done, question->of, {}};
    if (owned()) {
        for (const auto &offer : offers_) {
            result.formats.push_back(offer.data.format);
        }
    } else if (owner_ != XCB_NONE) {
        auto atoms = Property{XCB_ATOM_ATOM, 32, std::move(bytes)}.words();
        result.complete = atoms.size() <= pasteboardFormatLimit;
        atoms.resize(std::min(atoms.size(), pasteboardFormatLimit));
        for (auto &name : connection_->names(atoms, pasteboardFormatNameLimit)) {
            if (name.empty()) {
                result.complete = false;
            } else if (std::ranges::find(protocolTargets, name) == protocolTargets.end() &&
                       std::ranges::find(result.formats, name) == result.formats.end()) {
                result.formats.push_back(std::move(name));
            }
        }
    }
    const auto handler = std::move(question->formatsHandler);
    questions_.erase(question);
    handler(std::move(result));
}

void X11Selection::answer(Questions::iterator question, PasteboardStatus status) {
    while (!question->transfers.empty()) {
        endTransfer(*question, question->transfers.begin());
    }
    auto answered = std::move(*question);
    questions_.erase(question);
    if (answered.wantsAtoms()) {
        answered.formatsHandler({status, answered.of, {}});
    } else {
        answered.readHandler(status == PasteboardStatus::timedOut
                                 ? answered.reading->late()
                                 : answered.reading->result(status));
    }
}

void X11Selection::overdue(Questions::iterator question, Clock::time_point now) {
    // Only the first transfer of a question stalls before the question ends.
    auto &transfer = question->transfers.front();
    if (transfer.incremental && !transfer.repeated && now < question->end) {
        // Some owners forget one reader of a large content over another.
        *question->room += transfer.bytes.size();
        xcb_destroy_window(connection_->get(), transfer.window);
        transfer.incremental = false;
        transfer.repeated = true;
        transfer.bytes.clear();
        startTransfer(transfer);
    } else {
        answer(question, PasteboardStatus::timedOut);
    }
}

void X11Selection::answerOverdueAndStale() {
    const auto now = Clock::now();
    for (auto next = questions_.begin(); next != questions_.end();) {
        const auto question = next++;
        if (question->due() <= now) {
            overdue(question, now);
        } else if (question->of != changeCount_) {
            while (!question->transfers.empty()) {
                endTransfer(*question, question->transfers.begin());
            }
            begin(question); // the formats are asked for again, the rest is answered
        }
    }
    for (auto next = sendings_.begin(); next != sendings_.end();) {
        const auto sending = next++;
        if (sending->stalled <= now) {
            dropSending(sending);
        }
    }
}

// Serving

void X11Selection::write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
                         Pasteboard::WriteHandler handler) {
    if (lost_) {
        handler({});
        return;
    }
    std::vector<Offer> offers;
    for (auto &data : content) {
        const auto target = connection_->atom(data.format);
        const auto type = data.type.empty() ? target : connection_->atom(data.type);
        offers.push_back({target, type, std::move(data)});
    }
    // The server refuses a taking whose time lies before the last one. So the time just after that
    // of the content which we replace lets any newer copy win, even one that comes between our last
    // look and our taking, and yet is late enough for the owner to believe that it lost. The look
    // comes when that time has passed, so that no newer copy can have it too.
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    auto now = serverTime();
    if (onlyOver && selectionTime_ != XCB_CURRENT_TIME) {
        for (int look = 0; now - selectionTime_ < 2 && look < mostLooks; ++look) {
            now = serverTime();
        }
        time = selectionTime_ + 1;
    }
    if (onlyOver && *onlyOver != changeCount_) {
        handler({PasteboardStatus::changed, 0});
        return;
    }
    taken_.reset();
    xcb_set_selection_owner(connection_->get(), window_, atoms_.clipboard, time);
    synchronize();
    if (!taken_) {
        handler(
            {connection_->broken() ? PasteboardStatus::unavailable : PasteboardStatus::changed, 0});
        return;
    }
    if (owner_ == window_) { // and not yet lost again
        offers_ = std::move(offers);
    }
    handler({PasteboardStatus::done, *taken_});
}

std::vector<xcb_atom_t> X11Selection::offeredTargets() const {
    std::vector<xcb_atom_t> targets;
    for (const auto &offer : offers_) {
        targets.push_back(offer.target);
    }
    return targets;
}

void X11Selection::serve(const xcb_selection_request_event_t &request) {
    // Clients from before the ICCCM name no property.
    const auto property = request.property == XCB_NONE ? request.target : request.property;
    bool served = false;
    if (owned() && request.selection == atoms_.clipboard) {
        served = request.target == atoms_.multiple
                     ? serveMultiple(request.requestor, property)
                     : serveTarget(request.requestor, request.target, property);
    }
    union {
        xcb_selection_notify_event_t event;
        char bytes[32]; // the size of an event on the wire
    } notify{};
    notify.event = {XCB_SELECTION_NOTIFY,
                    0,
                    0,
                    request.time,
                    request.requestor,
                    request.selection,
                    request.target,
                    served ? property : xcb_atom_t{XCB_NONE}};
    xcb_send_event(connection_->get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, notify.bytes);
}

bool X11Selection::serveTarget(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
    if (target == atoms_.targets) {
        auto targets = offeredTargets();
        targets.insert(targets.end(),
                       {atoms_.targets, atoms_.multiple, atoms_.timestamp, atoms_.saveTargets});
        setProperty(requestor, property, XCB_ATOM_ATOM, targets);
        return true;
    }
    if (target == atoms_.timestamp) {
        setProperty(requestor, property, XCB_ATOM_INTEGER, std::array{selectionTime_});
        return true;
    }
    if (target == atoms_.saveTargets) {
        setProperty(requestor, property, atoms_.null, std::string());
        return true;
    }
    const auto offer = std::ranges::find(offers_, target, &Offer::target);
    if (offer == offers_.end()) {
        return false;
    }
    const auto &bytes = *offer->data.bytes;
    if (bytes.size() <= pieceSize_) {
        setProperty(requestor, property, offer->type, bytes);
        return true;
    }
    if (sendings_.size() >= mostSendings) {
        return false;
    }
    // In pieces: the requestor deletes the property to ask for the next one.
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_->get(), requestor, XCB_CW_EVENT_MASK, &mask);
    std::erase_if(sendings_, [&](const Sending &sending) {
        return sending.requestor == requestor && sending.property == property;
    });
    sendings_.push_back({requestor, property, offer->type, offer->data.bytes, 0, false,
                         Clock::now() + pasteboardReadLimit});
    setProperty(
        requestor, property, atoms_.incremental,
        std::array{static_cast<std::uint32_t>(std::min<std::size_t>(bytes.size(), 0x7fffffff))});
    return true;
}

bool X11Selection::serveMultiple(xcb_window_t requestor, xcb_atom_t property) {
    const auto asked =
        connection_->property(requestor, property, mostPairs * 2 * sizeof(xcb_atom_t), false);
    if (!asked) {
        return false;
    }
    auto pairs = asked->words();
    for (std::size_t pair = 0; pair + 1 < pairs.size(); pair += 2) {
        if (pairs[pair] == atoms_.multiple ||
            !serveTarget(requestor, pairs[pair], pairs[pair + 1])) {
            pairs[pair + 1] = XCB_NONE;
        }
    }
    setProperty(requestor, property, atoms_.atomPair, pairs);
    return true;
}

void X11Selection::sendPiece(Sending &sending) {
    const auto piece = std::string_view(*sending.bytes).substr(sending.sent, pieceSize_);
    setProperty(sending.requestor, sending.property, sending.type, piece);
    sending.sent += piece.size();
    sending.lastSent = piece.empty();
    sending.stalled = Clock::now() + pasteboardReadLimit;
}

void X11Selection::pieceTaken(const xcb_property_notify_event_t &event) {
    const auto sending = std::ranges::find_if(sendings_, [&](const Sending &candidate) {
        return candidate.requestor == event.window && candidate.property == event.atom;
    });
    if (sending == sendings_.end()) {
        return;
    }
    if (sending->lastSent) {
        dropSending(sending);
    } else {
        sendPiece(*sending);
    }
}

void X11Selection::dropSending(std::list<Sending>::iterator sending) {
    const auto requestor = sending->requestor;
    sendings_.erase(sending);
    const bool others = std::ranges::any_of(
        sendings_, [&](const Sending &other) { return other.requestor == requestor; });
    if (!others) {
        const std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
        xcb_change_window_attributes(connection_->get(), requestor, XCB_CW_EVENT_MASK, &mask);
    }
}

bool X11Selection::managerRuns() const {
    auto *xcb = connection_->get();
    const Reply<xcb_get_selection_owner_reply_t> manager(
        xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, atoms_.manager), nullptr));
    return manager && manager->owner != XCB_NONE;
}

bool X11Selection::handOver() {
    if (lost_ || !owned() || !managerRuns()) {
        return !lost_ && owned();
    }
    auto *xcb = connection_->get();
    setProperty(window_, atoms_.data, XCB_ATOM_ATOM, offeredTargets());
    xcb_convert_selection(xcb, window_, atoms_.manager, atoms_.saveTargets, atoms_.data,
                          XCB_CURRENT_TIME);
    xcb_flush(xcb);
    handingOver_ = true;
    const auto end = Clock::now() + pasteboardHandOverLimit;
    while (handingOver_ && !lost_ && owned()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd waiting{fileDescriptor(), POLLIN, 0};
        if (left <= 0 || (!more_ && poll(&waiting, 1, static_cast<int>(left)) == 0)) {
            break;
        }
        process();
    }
    return !lost_ && owned() && !handedOver_;
}

void X11Selection::onlyServe(std::function<void()> unneeded) {
    questions_.clear();
    changed = lost = [] {};
    unneeded_ = std::move(unneeded);
}

} // namespace nerlo::platform::x11
