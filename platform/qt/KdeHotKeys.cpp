#include "platform/qt/KdeHotKeys.h"

#include "platform/Alive.h"
#include "platform/qt/KdeShortcuts.h"
#include "platform/qt/QtKeys.h"

#include <QKeySequence>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

class KdeHotKeys final : public HotKeyService {
  public:
    KdeHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout, QDBusConnection bus,
               const std::string &applicationId, const std::string &applicationName)
        : mainQueue_(mainQueue)
        , layout_(layout)
        , shortcuts_(std::move(bus), QString::fromStdString(applicationId),
                     QString::fromStdString(applicationName)) {
        QObject::connect(&shortcuts_, &KdeShortcuts::pressed, &shortcuts_,
                         [this](const QString &action) { press(action); });
        QObject::connect(&shortcuts_, &KdeShortcuts::changed, &shortcuts_,
                         [this](const QString &action, int key) {
                             if (const auto entry = find(action); entry != entries_.end()) {
                                 take(entry->first, key,
                                      QStringLiteral("the desktop's settings give it no keys"));
                             }
                         });
        QObject::connect(&shortcuts_, &KdeShortcuts::restarted, &shortcuts_,
                         [this](bool there) { restart(there); });
    }
    ~KdeHotKeys() override {
        for (const auto &[handle, entry] : entries_) {
            shortcuts_.release(actionOf(entry.request));
        }
    }

    bool installHandler(Pressed pressed) override {
        pressed_ = std::move(pressed);
        return true;
    }
    void removeHandler() override { pressed_ = nullptr; }

    Registration registerHotKey(const HotKeyRequest &request) override {
        const int key = qtKeyOf(request.keyCode, request.modifiers, layout_);
        if (key == 0) {
            return {0, "the desktop has no name for this key"};
        }
        entries_.emplace(++last_, Entry{request, key, {HotKeyState::pending, {}}});
        bind(last_);
        return {last_, {}};
    }

    void unregisterHotKey(Handle handle) override {
        const auto entry = entries_.find(handle);
        if (entry == entries_.end()) {
            return;
        }
        const QString action = actionOf(entry->second.request);
        entries_.erase(entry);
        shortcuts_.release(action);
        // At the end of the program, or when another shortcut follows, the service keeps what the
        // user has chosen there.
        mainQueue_.post(alive_.guard([this, action] {
            if (find(action) == entries_.end()) {
                shortcuts_.forget(action);
            }
        }));
    }

    HotKeyStatus status(Handle handle) const override {
        const auto entry = entries_.find(handle);
        return entry == entries_.end() ? HotKeyStatus() : entry->second.status;
    }
    void setStatusHandler(StatusChanged changed) override { statusChanged_ = std::move(changed); }

    void setSuspended(bool suspended) override {
        if (std::exchange(suspended_, suspended) == suspended) {
            return;
        }
        for (const auto &[handle, entry] : entries_) {
            if (suspended) {
                shortcuts_.release(actionOf(entry.request));
            } else {
                bind(handle);
            }
        }
    }

    std::string description() const override { return "KDE's global shortcuts"; }

  private:
    struct Entry {
        HotKeyRequest request;
        int key;
        HotKeyStatus status;
    };
    using Entries = std::map<Handle, Entry>;

    static QString actionOf(const HotKeyRequest &request) {
        return request.name.empty() ? QStringLiteral("hot-key-%1").arg(request.id.id)
                                    : QString::fromStdString(request.name);
    }

    Entries::iterator find(const QString &action) {
        return std::ranges::find_if(
            entries_, [&](const auto &entry) { return actionOf(entry.second.request) == action; });
    }

    void bind(Handle handle) {
        const Entry &entry = entries_.at(handle);
        shortcuts_.bind(actionOf(entry.request), QString::fromStdString(entry.request.title),
                        entry.key,
                        [this, handle](int key, const QString &why, const QString &owner) {
                            if (entries_.contains(handle) && !suspended_) {
                                take(handle, key, why, owner);
                            }
                        });
    }

    void take(Handle handle, int key, const QString &why, const QString &owner = {}) {
        Entry &entry = entries_.at(handle);
        HotKeyStatus status{HotKeyState::refused, why.toStdString(), owner.toStdString()};
        if (key != 0) {
            const bool ours = key == entry.key;
            status = {HotKeyState::active,
                      ours ? ""
                           : QKeySequence(key).toString(QKeySequence::NativeText).toStdString(),
                      {}};
        }
        if (status == entry.status) {
            return;
        }
        entry.status = status;
        if (statusChanged_) {
            const StatusChanged changed = statusChanged_;
            changed(entry.request.id, status);
        }
    }

    void restart(bool there) {
        std::vector<Handle> handles;
        for (const auto &[handle, entry] : entries_) {
            handles.push_back(handle);
        }
        for (const Handle handle : handles) {
            if (!entries_.contains(handle)) {
                continue; // a status handler has ended it
            }
            if (there && !suspended_) {
                bind(handle);
            } else if (!there) {
                take(handle, 0, QStringLiteral("the desktop's global shortcuts have ended"));
            }
        }
    }

    void press(const QString &action) {
        const auto entry = find(action);
        if (entry != entries_.end() && pressed_ && !suspended_) {
            const Pressed pressed = pressed_;
            pressed(entry->second.request.id);
        }
    }

    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
    KdeShortcuts shortcuts_;
    Pressed pressed_;
    StatusChanged statusChanged_;
    Entries entries_;
    Handle last_ = 0;
    bool suspended_ = false;
    Alive alive_;
};

} // namespace

Created<HotKeyService> createKdeHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                        const std::string &applicationId,
                                        const std::string &applicationName) {
    auto bus = QDBusConnection::sessionBus();
    if (!KdeShortcuts::isThere(bus)) {
        return {nullptr, "KDE's global shortcuts are not there"};
    }
    return {std::make_unique<KdeHotKeys>(mainQueue, layout, std::move(bus), applicationId,
                                         applicationName),
            {}};
}

} // namespace nerlo::platform
