// Ties handlers that may run late to the object that they belong to: once it is gone they do
// nothing.
#pragma once

#include "platform/MainQueue.h"

#include <memory>
#include <utility>

namespace nerlo::platform {

// A member of the object. The handlers may be copied and dropped on any thread, but only run on the
// thread that ends the object.
class Alive {
  public:
    // Assigning a new one ends the handlers of the old one.
    Alive() = default;
    Alive(const Alive &) = delete;
    Alive &operator=(const Alive &) = delete;
    Alive(Alive &&) = default;
    Alive &operator=(Alive &&) = default;

    // `function`, as long as this is there.
    template <class Function>
    auto guard(Function function) const {
        return [function = std::move(function),
                token = std::weak_ptr(token_)]<class... Arguments>(Arguments &&...arguments) {
            if (!token.expired()) {
                function(std::forward<Arguments>(arguments)...);
            }
        };
    }

    // For other threads: takes arguments by value, and passes them on to `function` on the main
    // queue, as long as this is there then.
    template <class Function>
    auto guardOn(MainQueue &queue, Function function) const {
        return [&queue,
                late = guard(std::move(function))]<class... Arguments>(Arguments... arguments) {
            queue.post([late, ... arguments = std::move(arguments)]() mutable {
                late(std::move(arguments)...);
            });
        };
    }

  private:
    std::shared_ptr<const bool> token_ = std::make_shared<bool>(true);
};

} // namespace nerlo::platform
