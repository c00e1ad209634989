#include "platform/PasteboardReading.h"

#include <algorithm>
#include <utility>

namespace nerlo::platform {

namespace {

// An owner that does its work in one go is not to be left with a long queue of formats which nobody
// waits for any more; one that forgets some of them holds up only so many.
constexpr std::size_t mostUnderWay = 4;

} // namespace

PasteboardReading::PasteboardReading(PasteboardRequest request)
    : request_(std::move(request))
    , formats_(request_.firstOf)
    , first_(!formats_.empty())
    , end_(Clock::now() + pasteboardReadLimit)
    , room_(std::make_shared<std::size_t>(request_.firstLimit))
    , got_(formats_.size()) {
    if (!first_) {
        readOthers();
    }
}

void PasteboardReading::readOthers() {
    const auto kept = first_ ? got_[next_ - 1]->bytes->size() : 0;
    first_ = false;
    // What has been asked for is not asked for again.
    formats_.resize(next_);
    for (auto &format : request_.others) {
        if (std::find(formats_.begin(), formats_.end(), format) == formats_.end()) {
            formats_.push_back(std::move(format));
        }
    }
    got_.resize(formats_.size());
    if (kept > request_.limit) {
        tooLarge_ = tooLarge_ || next_ < formats_.size();
        next_ = formats_.size();
        return;
    }
    *room_ = request_.limit - kept;
    end_ = Clock::now() + pasteboardOthersLimit;
}

std::optional<std::size_t> PasteboardReading::next() {
    if (next_ == formats_.size() || underWay_ == (first_ ? 1 : mostUnderWay)) {
        return std::nullopt;
    }
    ++underWay_;
    return next_++;
}

bool PasteboardReading::finished() const {
    return underWay_ == 0 && next_ == formats_.size();
}

void PasteboardReading::arrived(std::size_t place, PasteboardData data) {
    if (first_ && data.bytes->empty()) {
        failed(Failure::refused);
        return;
    }
    --underWay_;
    got_[place] = std::move(data);
    if (first_) {
        readOthers();
    }
}

void PasteboardReading::failed(Failure failure) {
    --underWay_;
    tooLarge_ = tooLarge_ || failure == Failure::tooLarge;
}

PasteboardRead PasteboardReading::result(PasteboardStatus status) {
    PasteboardRead read{status, {}, tooLarge_};
    if (status == PasteboardStatus::done || status == PasteboardStatus::timedOut) {
        for (auto &data : got_) {
            if (data) {
                read.content.push_back(std::move(*data));
            }
        }
    }
    return read;
}

PasteboardRead PasteboardReading::late() {
    return result(first_ ? PasteboardStatus::timedOut : PasteboardStatus::done);
}

} // namespace nerlo::platform
