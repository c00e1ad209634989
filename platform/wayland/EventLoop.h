// Serves one connection to a compositor, and the transfers that belong to it, on the I/O thread.
//
// A compositor ends the connection of a client that does not keep pace with it, which one program
// with an absurd number of formats can bring about; so a lost connection is taken up again, at
// growing intervals, as long as there is a compositor.
#pragma once

#include "platform/linux/IoThread.h"
#include "platform/linux/Transfer.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct wl_display;

namespace nerlo::platform::wayland {

using Clock = std::chrono::steady_clock;

class EventLoop {
  public:
    using Task = std::function<void()>;

    // What becomes of the connection; all on the I/O thread.
    struct Watcher {
        // It ended: the objects on it are dead and have to be destroyed.
        Task lost;
        // There is a new one, to be set up now; roundTrip() may be used. False if that failed.
        std::function<bool()> restored;
        // There is no compositor any more. Called once, after `lost`; nothing follows.
        Task gone;
    };

    // Null when there is no compositor at `displayName` (a name below XDG_RUNTIME_DIR or a path).
    // `io` must outlive it.
    static std::unique_ptr<EventLoop> connect(IoThread &io, const std::string &displayName);
    // The display that the environment names; empty for none. A compositor under the default name
    // counts only in a Wayland session: in another it is some nested one, and not the desktop.
    static std::string defaultDisplay();

    // Disconnects. stop() must have been called if start() was.
    ~EventLoop();

    // Before start(), or in Watcher::restored: serves the connection on the calling thread until
    // the compositor has handled every request made so far. False if it has not after `limit` or is
    // gone.
    bool roundTrip(Clock::duration limit);
    // From now on the I/O thread serves the connection. Without `watcher.restored` a lost
    // connection stays lost. Called once, before posts.
    void start(Watcher watcher);
    // Serves on until `atLeast`, then gives outgoing transfers until `atMost` to finish, and waits
    // for the end of it; nothing runs on the I/O thread any more then. The connection still exists,
    // for the caller to destroy its objects, and so do outgoing transfers that have not finished.
    void stop(Clock::time_point atLeast, Clock::time_point atMost);

    // Runs `task` on the I/O thread. Any thread, also after the connection was lost, but not after
    // stop().
    void post(Task task);

    // The rest is for the I/O thread alone.

    // After stop(): leaves a process behind that goes on with the connection and the outgoing
    // transfers, and forgets what ours still waited for. True in the new process, where `watcher`
    // is told from now on; false here, where the connection leads nowhere then, or if the system
    // grants none.
    bool goOnBehind(Watcher watcher);
    // Runs `reached` once no transfer is under way; nothing follows.
    void endWithTransfers(Task reached);

    wl_display *display() const { return display_; }
    bool connected() const { return connected_; }
    void add(std::unique_ptr<Transfer> transfer);
    // Abandons the outgoing transfers that have been still for longest, until `most` are left.
    void limitOutgoing(std::size_t most);
    // Abandons all incoming transfers.
    void abandonIncoming();
    // Runs `task` once: with true when the compositor has handled every request made so far, with
    // false when it has not done so by `limit` or is gone. Never inside this call.
    void afterRoundTrip(Clock::duration limit, std::function<void(bool answered)> task);

  private:
    struct RoundTrip;
    struct Running {
        std::unique_ptr<Transfer> transfer;
        IoThread::Watch watch; // none if the system has no more of them

        Clock::time_point deadline() const {
            return watch ? transfer->deadline() : Clock::time_point::min();
        }
    };
    // What stop() asks for.
    struct End {
        Clock::time_point atLeast;
        Clock::time_point atMost;
        std::function<void()> reached;
    };

    EventLoop(IoThread &io, std::string displayName, wl_display *display);

    void watchDisplay();
    void watchTransfer(Running &running);
    // After everything that runs on the I/O thread: sends what was asked for, and sees to it that
    // what is to come wakes the thread. At the end that was asked for, nothing may follow it.
    void settle();
    void flush();
    void read();
    void advance(const Transfer &transfer);
    void expire();
    void expireTransfers(Clock::time_point until);
    void expireRoundTrips(Clock::time_point until);
    void finish(RoundTrip &trip, bool answered);
    Clock::time_point nextDeadline() const;
    bool endReached() const;
    void lose();
    void reconnect();

    IoThread &io_;
    const std::string displayName_;
    wl_display *display_;
    bool started_ = false;
    bool connected_ = true;
    bool flushBlocked_ = false;
    IoThread::Watch watch_;
    IoThread::Timer timer_;
    std::list<Running> transfers_;
    std::vector<std::unique_ptr<RoundTrip>> roundTrips_;
    Watcher watcher_;
    Clock::time_point connectedSince_ = Clock::now();
    Clock::duration retryDelay_{};
    Clock::time_point retryAt_ = Clock::time_point::max();
    std::optional<End> end_;
};

} // namespace nerlo::platform::wayland
