// Applications that come to the front at the caller's command.
#pragma once

#include "platform/ActiveApplication.h"

#include <utility>

namespace nerlo::test {

class MemoryActiveApplication final : public platform::ActiveApplication {
  public:
    void setActivatedHandler(Handler activated) override {
        handler_ = std::move(activated);
        ++subscriptions;
    }
    std::string description() const override { return "in memory"; }

    void activate(const std::string &identifier) {
        if (handler_) {
            handler_(identifier);
        }
    }

    int subscriptions = 0; // calls of setActivatedHandler

  private:
    Handler handler_;
};

} // namespace nerlo::test
