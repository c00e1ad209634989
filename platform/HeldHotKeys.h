// What the hot-key services of desktops that answer later have in common: the hot keys that were
// registered, and whom to tell of them.
//
// Main thread only. A handler may register and end any hot key.
#pragma once

#include "platform/HotKeyService.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace nerlo::platform {

struct HeldHotKey {
    HotKeyRequest request;
    HotKeyStatus status{HotKeyState::pending, {}};

    // The lasting name under which the desktop keeps it.
    std::string name() const {
        return request.name.empty() ? "hot-key-" + std::to_string(request.id.id) : request.name;
    }
};

// `Entry` is a HeldHotKey with what else the service knows of it.
template <class Entry>
class HeldHotKeys : public HotKeyService {
  public:
    bool installHandler(Pressed pressed) override {
        pressed_ = std::move(pressed);
        return true;
    }
    void removeHandler() override { pressed_ = nullptr; }

    HotKeyStatus status(Handle handle) const override {
        const auto entry = entries_.find(handle);
        return entry == entries_.end() ? HotKeyStatus() : entry->second.status;
    }
    void setStatusHandler(StatusChanged changed) override { statusChanged_ = std::move(changed); }

  protected:
    Handle hold(Entry entry) {
        entries_.emplace(++last_, std::move(entry));
        return last_;
    }

    std::vector<Handle> handles() const {
        std::vector<Handle> all;
        for (const auto &[handle, entry] : entries_) {
            all.push_back(handle);
        }
        return all;
    }

    // Tells it if it is new.
    void setStatus(Handle handle, const HotKeyStatus &status) {
        if (std::exchange(entries_.at(handle).status, status) != status) {
            tell(entries_.at(handle).request.id, status);
        }
    }
    // The arguments are copies, because the handler may end the hot key.
    void tell(HotKeyId id, HotKeyStatus status) const {
        if (const StatusChanged changed = statusChanged_) {
            changed(id, status);
        }
    }

    void press(HotKeyId id) const {
        if (const Pressed pressed = suspended_ ? nullptr : pressed_) {
            pressed(id);
        }
    }

    std::map<Handle, Entry> entries_;
    bool suspended_ = false;

  private:
    Pressed pressed_;
    StatusChanged statusChanged_;
    Handle last_ = 0;
};

} // namespace nerlo::platform
