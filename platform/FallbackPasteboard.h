// A clipboard that is reached in one way, and in another one while that is not there.
//
// Main thread.
#pragma once

#include "platform/Created.h"
#include "platform/Pasteboard.h"

#include <functional>
#include <memory>

namespace nerlo::platform {

class FallbackPasteboard final : public Pasteboard {
  public:
    // `openOther` is called when the other way is first needed, and may decline: then the first one
    // stays, and fails.
    using Open = std::function<Created<Pasteboard>()>;
    FallbackPasteboard(std::unique_ptr<Pasteboard> first, Open openOther);

    // Goes the first way from now on; what stands on the clipboard has this count there.
    void useFirst(ChangeCount count);
    void useOther();

    ChangeCount changeCount() const override { return now_->changeCount() + offset_; }
    bool notifiesChanges() const override { return now_->notifiesChanges(); }
    void setChangeHandler(std::function<void()> changed) override;
    void setLostHandler(std::function<void()> lost) override;
    void readFormats(FormatsHandler handler) override;
    void read(ChangeCount of, PasteboardRequest request, ReadHandler handler) override;
    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override;
    std::string description() const override { return now_->description(); }
    std::vector<std::string> limitations() const override;

    bool usesFirst() const { return now_ == first_.get(); }

  private:
    void use(Pasteboard &way, ChangeCount count);
    void listen(Pasteboard &way);

    std::unique_ptr<Pasteboard> first_;
    Created<Pasteboard> other_; // keeps what was written to it, also while it is not used
    Open openOther_;
    Pasteboard *now_;
    // The two count in their own ways, and a change of the way is no change of the content.
    ChangeCount offset_ = 0;
    std::function<void()> changed_;
    std::function<void()> lost_;
};

} // namespace nerlo::platform
