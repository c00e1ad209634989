#include "platform/FallbackPasteboard.h"

#include <utility>

namespace nerlo::platform {

FallbackPasteboard::FallbackPasteboard(std::unique_ptr<Pasteboard> first, Open openOther)
    : first_(std::move(first))
    , openOther_(std::move(openOther))
    , now_(first_.get()) {
    listen(*first_);
}

void FallbackPasteboard::listen(Pasteboard &way) {
    way.setChangeHandler([this, &way] {
        // A copy: the handler may replace itself.
        if (const auto changed = changed_; changed && now_ == &way) {
            changed();
        }
    });
    way.setLostHandler([this, &way] {
        if (const auto lost = lost_; lost && now_ == &way) {
            lost();
        }
    });
}

void FallbackPasteboard::use(Pasteboard &way, ChangeCount count) {
    offset_ = changeCount() - count;
    now_ = &way;
}

void FallbackPasteboard::useFirst(ChangeCount count) {
    use(*first_, count);
}

void FallbackPasteboard::useOther() {
    if (!other_.backend) {
        other_ = openOther_();
        if (!other_.backend) {
            return;
        }
        listen(*other_.backend);
    }
    use(*other_.backend, other_.backend->changeCount());
}

std::vector<std::string> FallbackPasteboard::limitations() const {
    auto limitations = now_->limitations();
    if (!usesFirst() && !other_.lacks.empty()) {
        limitations.push_back(other_.lacks);
    }
    return limitations;
}

void FallbackPasteboard::setChangeHandler(std::function<void()> changed) {
    changed_ = std::move(changed);
}

void FallbackPasteboard::setLostHandler(std::function<void()> lost) {
    lost_ = std::move(lost);
}

void FallbackPasteboard::readFormats(FormatsHandler handler) {
    now_->readFormats([offset = offset_, handler = std::move(handler)](PasteboardFormats formats) {
        formats.changeCount += offset;
        handler(std::move(formats));
    });
}

void FallbackPasteboard::read(ChangeCount of, PasteboardRequest request, ReadHandler handler) {
    now_->read(of - offset_, std::move(request), std::move(handler));
}

void FallbackPasteboard::write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
                               WriteHandler handler) {
    if (onlyOver) {
        *onlyOver -= offset_;
    }
    now_->write(std::move(content), onlyOver,
                [offset = offset_, handler = std::move(handler)](PasteboardWrite written) {
                    written.changeCount += offset;
                    handler(written);
                });
}

} // namespace nerlo::platform
