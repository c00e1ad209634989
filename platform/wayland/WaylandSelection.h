// The clipboard of one seat, spoken to through data-control: what it holds, reading it, replacing
// it.
//
// Everything but the constructor, prepare() and the destructor runs on the I/O thread, and
// so do all handlers.
#pragma once

#include "platform/Pasteboard.h"
#include "platform/linux/Transfer.h"
#include "platform/wayland/DataControl.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::platform::wayland {

class WaylandSelection final : private DeviceEvents, private OfferEvents, private SourceEvents {
  public:
    // `replaced` gets the new count when another program replaced the content. The count of an own
    // write goes to that write's handler instead.
    WaylandSelection(EventLoop &loop, std::function<void(ChangeCount)> replaced);
    // The loop must have been stopped if it was started.
    ~WaylandSelection();

    // Where the loop allows round trips: takes up the protocol, and learns what the clipboard
    // holds. Returns why this compositor cannot be used, or nothing.
    std::string prepare();
    const char *protocol() const { return protocol_->name; }
    ChangeCount changeCount() const { return count_; }

    // As in Pasteboard.
    void readFormats(const Pasteboard::FormatsHandler &handler);
    void read(ChangeCount of, PasteboardRequest request, Pasteboard::ReadHandler handler);
    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               Pasteboard::WriteHandler handler);

    // Whether content of ours is on the clipboard, as far as we know.
    bool owns() const { return !sources_.empty(); }
    // From now on the content is served and nothing else is done. `unneeded` runs when it is ours
    // no longer; what others still take of it is the loop's.
    void onlyServe(std::function<void()> unneeded);

    // The connection is lost: everything under way ends. There may be a new one to prepare.
    void lost();

  private:
    struct Offer {
        wl_proxy *proxy = nullptr; // null: the clipboard is empty
        std::vector<std::string> formats;
        bool complete = true; // false: some are left off
    };
    struct OwnSource {
        wl_proxy *proxy;
        PasteboardContent content;
    };
    struct ReadJob;
    struct WriteJob {
        PasteboardContent content;
        std::optional<ChangeCount> onlyOver;
        Pasteboard::WriteHandler handler;
    };
    // From the request that sets the selection until the compositor has handled it: what comes in
    // between includes the news of our own write.
    struct WriteWindow {
        wl_proxy *source; // null: an emptying
        int replacements = 0;
        bool cancelled = false;
    };

    void newOffer(wl_proxy *offer) override;
    void selection(wl_proxy *offer) override;
    void primarySelection(wl_proxy *offer) override;
    void finished() override;
    void offeredFormat(wl_proxy *offer, const char *format) override;
    void send(wl_proxy *source, const char *format, int fd) override;
    void cancelled(wl_proxy *source) override;

    void addGlobal(std::uint32_t name, std::string_view interface, std::uint32_t version);
    void removeGlobal(std::uint32_t name);
    void destroyObjects();
    void takeSeat();
    void leaveSeat();
    Offer takeAnnounced(wl_proxy *offer);
    void replaceContent(Offer offer);
    void endReads(PasteboardStatus status);
    void readOn(const std::shared_ptr<ReadJob> &job);
    // False if no pipe can be had.
    bool startTransfer(const std::shared_ptr<ReadJob> &job, std::size_t place);
    void transferEnded(const std::shared_ptr<ReadJob> &job, std::size_t place,
                       IncomingTransfer::Outcome outcome, std::string bytes);
    void endRead(const std::shared_ptr<ReadJob> &job, PasteboardStatus status);
    void startWrite();
    void setContent();
    void confirmWrite();
    void endWrite(PasteboardWrite result);
    void tellWhetherNeeded() const;

    EventLoop &loop_;
    std::function<void(ChangeCount)> replaced_;
    std::function<void()> unneeded_;
    std::unique_ptr<Registry> registry_;
    std::map<std::uint32_t, wl_seat *> seats_;
    std::uint32_t seat_ = 0; // the one in use; 0, which names nothing, for none
    const DataControl *protocol_ = nullptr;
    wl_proxy *manager_ = nullptr;
    wl_proxy *device_ = nullptr;
    std::map<std::string, std::uint32_t, std::less<>> managers_; // names of globals by interface

    ChangeCount count_ = 1;
    std::vector<Offer> announced_; // oldest first; the event that says what it is comes later
    Offer current_;
    std::vector<OwnSource> sources_;
    std::vector<std::shared_ptr<ReadJob>> reads_;
    std::deque<WriteJob> writes_;
    std::optional<WriteWindow> window_;
};

} // namespace nerlo::platform::wayland
