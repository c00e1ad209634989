// The order in which the formats of one read are asked for, and what has come of it. A backend asks
// the owner and moves the bytes; what to ask for next, and when to stop, is decided here.
//
// One thread.
#pragma once

#include "platform/Pasteboard.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::platform {

class PasteboardReading {
  public:
    using Clock = std::chrono::steady_clock;

    explicit PasteboardReading(PasteboardRequest request);

    // A format that may be asked for now: its place, for the functions below. Nothing while enough
    // of them are under way, or when there is none left.
    std::optional<std::size_t> next();
    // Whether nothing is under way and nothing is left to ask for.
    bool finished() const;
    const std::string &format(std::size_t place) const { return formats_[place]; }
    // Whether one of the formats is read of which only one is wanted. The owner is given up when it
    // is silent then.
    bool first() const { return first_; }
    // When the reading is over, whatever has arrived.
    Clock::time_point end() const { return end_; }

    // The bytes that still may be kept. Whoever keeps some takes them off, and gives them back if
    // it drops them.
    const std::shared_ptr<std::size_t> &room() const { return room_; }

    enum class Failure { refused, tooLarge };
    // `data.bytes` have been taken off the room.
    void arrived(std::size_t place, PasteboardData data);
    void failed(Failure failure);

    // What the reading has come to, at its end or before. Called once.
    PasteboardRead result(PasteboardStatus status);
    // As above, when the time is over.
    PasteboardRead late();

  private:
    void readOthers();

    PasteboardRequest request_;
    std::vector<std::string> formats_; // in the order of asking; the others once there is a first
    bool first_;
    std::size_t next_ = 0;
    std::size_t underWay_ = 0;
    Clock::time_point end_;
    std::shared_ptr<std::size_t> room_;
    std::vector<std::optional<PasteboardData>> got_; // by place
    bool tooLarge_ = false;
};

} // namespace nerlo::platform
