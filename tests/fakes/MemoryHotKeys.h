// Hot keys that are pressed by hand.
#pragma once

#include "platform/HotKeyService.h"

#include <map>
#include <utility>
#include <vector>

namespace nerlo::test {

class MemoryHotKeys final : public platform::HotKeyService {
  public:
    bool installHandler(Pressed pressed) override {
        if (refusesHandler) {
            return false;
        }
        pressed_ = std::move(pressed);
        return true;
    }
    void removeHandler() override {
        ++removals;
        pressed_ = nullptr;
    }
    Registration registerHotKey(const platform::HotKeyRequest &request) override {
        requests.push_back(request);
        const Combination combination{request.keyCode, request.modifiers};
        for (const auto &[handle, other] : registered) {
            if (Combination{other.keyCode, other.modifiers} == combination) {
                return {0, "registered already"};
            }
        }
        for (const auto &taken : takenByOthers) {
            if (taken == combination) {
                return {0, "another program uses it"};
            }
        }
        registered.emplace(++last_, request);
        return {last_, {}};
    }
    void unregisterHotKey(Handle handle) override { registered.erase(handle); }
    platform::HotKeyStatus status(Handle handle) const override {
        const auto later = statuses_.find(handle);
        return later != statuses_.end() ? later->second
               : registered.contains(handle)
                   ? platform::HotKeyStatus{platform::HotKeyState::active, {}}
                   : platform::HotKeyStatus{};
    }
    void setStatusHandler(StatusChanged changed) override { statusChanged_ = std::move(changed); }
    void setSuspended(bool nowSuspended) override { suspended = nowSuspended; }
    std::string description() const override { return "hot keys in memory"; }

    // The user presses it; false when nobody has registered it.
    bool press(std::uint32_t keyCode, std::uint32_t modifiers) {
        for (const auto &[handle, request] : registered) {
            if (request.keyCode == keyCode && request.modifiers == modifiers) {
                return deliver(request.id);
            }
        }
        return false;
    }
    bool hasHandlers() const { return pressed_ || statusChanged_; }
    // A hot-key event that may belong to another program.
    bool deliver(platform::HotKeyId id) {
        if (!pressed_ || suspended) {
            return false;
        }
        const Pressed pressed = pressed_;
        pressed(id);
        return true;
    }
    // The desktop's late answer.
    void answer(Handle handle, platform::HotKeyStatus status) {
        statuses_[handle] = status;
        if (statusChanged_) {
            statusChanged_(registered.at(handle).id, status);
        }
    }

    using Combination = std::pair<std::uint32_t, std::uint32_t>;
    bool refusesHandler = false;
    std::vector<Combination> takenByOthers;
    bool suspended = false;
    int removals = 0;
    std::map<Handle, platform::HotKeyRequest> registered;
    std::vector<platform::HotKeyRequest> requests; // all that were ever made

  private:
    Pressed pressed_;
    StatusChanged statusChanged_;
    std::map<Handle, platform::HotKeyStatus> statuses_;
    Handle last_ = 0;
};

} // namespace nerlo::test
