// Our end of the CLIPBOARD selection of X11: asks its owner, and is its owner after a write of
// ours.
//
// Everything here happens on the I/O thread, and only ever waits for the X server itself. Other
// clients are answered and listened to as their events come, each with a time limit.
#pragma once

#include "platform/Pasteboard.h"
#include "platform/PasteboardReading.h"
#include "platform/x11/Connection.h"
#include "platform/x11/EventPump.h"

#include <atomic>
#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace nerlo::platform::x11 {

class X11Selection final : public EventSource {
  public:
    // Null if the display lacks what is needed; then `declined` says what.
    static std::unique_ptr<X11Selection> open(std::string &declined);
    ~X11Selection() override;

    // Any thread. Owner notifications counted since the start.
    ChangeCount changeCount() const { return changeCount_; }
    // Run on the I/O thread; to be set before the peer is run there.
    std::function<void()> changed;
    std::function<void()> lost;

    // As in Pasteboard; the handlers run on the I/O thread, some before the function returns.
    void readFormats(Pasteboard::FormatsHandler handler);
    void read(ChangeCount of, PasteboardRequest request, Pasteboard::ReadHandler handler);
    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               Pasteboard::WriteHandler handler);
    // Offers content of ours to the clipboard manager, if there is one, and serves it until it has
    // taken the content; blocks for a bounded time. Whether nobody has it but us.
    bool handOver();
    // From now on the content is served and nothing else is done. `unneeded` runs when it is ours
    // no longer, and all that took it have it.
    void onlyServe(std::function<void()> unneeded);

    int fileDescriptor() const override;
    std::optional<Clock::time_point> deadline() const override;
    void process() override;

    const std::string &description() const { return description_; }

  private:
    // One conversion asked of the owner. Each has a window of its own: what an owner still sends
    // after it was given up cannot be taken for the answer to another question.
    struct Transfer {
        xcb_window_t window = XCB_NONE;
        xcb_atom_t target = XCB_NONE;
        std::size_t place = 0;    // in the reading
        bool incremental = false; // the owner sends in pieces
        bool repeated = false;    // asked for again, after it stalled
        xcb_atom_t type = XCB_NONE;
        std::string bytes;
        Clock::time_point stalled; // given up unless something arrives before
    };
    using Transfers = std::list<Transfer>;
    // A question of our program: for the formats, or for the bytes of some.
    struct Question {
        ChangeCount of = 0;
        Clock::time_point end;
        std::shared_ptr<std::size_t> room; // for bytes that may still come
        Transfers transfers;

        Pasteboard::FormatsHandler formatsHandler; // null: formats are being read
        std::optional<PasteboardReading> reading;
        Pasteboard::ReadHandler readHandler;

        bool wantsAtoms() const { return formatsHandler != nullptr; }
        Clock::time_point due() const;
    };
    // A large format on its way from us to another client.
    struct Sending {
        xcb_window_t requestor = XCB_NONE;
        xcb_atom_t property = XCB_NONE;
        xcb_atom_t type = XCB_NONE;
        std::shared_ptr<const std::string> bytes;
        std::size_t sent = 0;
        bool lastSent = false; // the empty piece that ends the transfer
        Clock::time_point stalled;
    };
    struct Offer {
        xcb_atom_t target = XCB_NONE;
        xcb_atom_t type = XCB_NONE;
        PasteboardData data;
    };
    using Questions = std::list<Question>;

    explicit X11Selection(std::unique_ptr<Connection> connection);

    // Events. An owner notification is counted as soon as it is taken off the connection, the
    // others wait their turn.
    void take(Event event);
    void synchronize();
    void dispatch(const xcb_generic_event_t &event);
    void count(const xcb_generic_event_t &event);

    // Asking.
    void begin(Questions::iterator question);
    void readOn(Questions::iterator question);
    bool answerFromOffers(PasteboardReading &reading, std::size_t place) const;
    void convert(Question &question, xcb_atom_t target, std::size_t place);
    void startTransfer(Transfer &transfer);
    void endTransfer(Question &question, Transfers::iterator transfer);
    // The question and the transfer whose window this is; nothing for a window of old.
    std::optional<std::pair<Questions::iterator, Transfers::iterator>> find(xcb_window_t window);
    void arrived(const xcb_selection_notify_event_t &event);
    void pieceArrived(const xcb_property_notify_event_t &event);
    void transferred(Questions::iterator question, Transfers::iterator transfer);
    void failed(Questions::iterator question, Transfers::iterator transfer,
                PasteboardReading::Failure failure);
    void answerFormats(Questions::iterator question, std::string atoms);
    void answer(Questions::iterator question, PasteboardStatus status);
    void overdue(Questions::iterator question, Clock::time_point now);
    void answerOverdueAndStale();

    // Serving.
    void serve(const xcb_selection_request_event_t &request);
    bool serveTarget(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    bool serveMultiple(xcb_window_t requestor, xcb_atom_t property);
    void sendPiece(Sending &sending);
    void pieceTaken(const xcb_property_notify_event_t &event);
    void dropSending(std::list<Sending>::iterator sending);
    // Whether there is a clipboard manager, which keeps texts of programs that end.
    bool managerRuns() const;
    std::vector<xcb_atom_t> offeredTargets() const;

    xcb_timestamp_t serverTime();
    bool owned() const { return !offers_.empty(); }
    template <class T>
    void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const T &units);

    std::unique_ptr<Connection> connection_;
    std::string description_;
    bool lost_ = false;
    int fixesEvent_ = 0;        // number of XFixes' first event
    std::size_t pieceSize_ = 0; // of what is sent at once, in bytes
    xcb_window_t window_ = XCB_NONE;
    struct {
        xcb_atom_t clipboard, targets, multiple, timestamp, saveTargets, incremental, atomPair,
            null, manager, data, time;
    } atoms_{};

    std::atomic<ChangeCount> changeCount_{0};
    xcb_window_t owner_ = XCB_NONE;
    xcb_timestamp_t selectionTime_ = XCB_CURRENT_TIME; // of the owner's taking; 0: unknown
    std::optional<ChangeCount> taken_;                 // our own taking, once it is counted
    std::deque<Event> waiting_;
    Questions questions_;
    std::vector<Offer> offers_; // what we own; empty: nothing
    std::list<Sending> sendings_;
    bool handingOver_ = false;
    bool handedOver_ = false;
    std::function<void()> unneeded_;
    bool more_ = false; // events that the connection will not tell of again
};

} // namespace nerlo::platform::x11
