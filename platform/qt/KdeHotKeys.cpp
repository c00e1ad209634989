#include "platform/qt/KdeHotKeys.h"

#include "platform/Alive.h"
#include "platform/HeldHotKeys.h"
#include "platform/qt/KdeShortcuts.h"
#include "platform/qt/QtKeys.h"

#include <QKeySequence>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

struct KdeHotKey : HeldHotKey {
    int key = 0;

    QString action() const { return QString::fromStdString(name()); }
};

class KdeHotKeys final : public HeldHotKeys<KdeHotKey> {
  public:
    KdeHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout, QDBusConnection bus,
               const std::string &applicationId, const std::string &applicationName)
        : mainQueue_(mainQueue)
        , layout_(layout)
        , shortcuts_(std::move(bus), QString::fromStdString(applicationId),
                     QString::fromStdString(applicationName)) {
        QObject::connect(&shortcuts_, &KdeShortcuts::pressed, &shortcuts_,
                         [this](const QString &action) { pressAction(action); });
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
            shortcuts_.release(entry.action());
        }
    }

    Registration registerHotKey(const HotKeyRequest &request) override {
        const int key = qtKeyOf(request.keyCode, request.modifiers, layout_);
        if (key == 0) {
            return {0, "the desktop has no name for this key"};
        }
        const Handle handle = hold({{request}, key});
        bind(handle);
        return {handle, {}};
    }

    void unregisterHotKey(Handle handle) override {
        const auto entry = entries_.find(handle);
        if (entry == entries_.end()) {
            return;
        }
        const QString action = entry->second.action();
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

    void setSuspended(bool suspended) override {
        if (std::exchange(suspended_, suspended) == suspended) {
            return;
        }
        for (const auto &[handle, entry] : entries_) {
            if (suspended) {
                shortcuts_.release(entry.action());
            } else {
                bind(handle);
            }
        }
    }

    std::string description() const override { return "KDE's global shortcuts"; }

  private:
    std::map<Handle, KdeHotKey>::iterator find(const QString &action) {
        return std::ranges::find_if(
            entries_, [&](const auto &entry) { return entry.second.action() == action; });
    }

    void bind(Handle handle) {
        const KdeHotKey &entry = entries_.at(handle);
        shortcuts_.bind(entry.action(), QString::fromStdString(entry.request.title), entry.key,
                        [this, handle](int key, const QString &why, const QString &owner) {
                            if (entries_.contains(handle) && !suspended_) {
                                take(handle, key, why, owner);
                            }
                        });
    }

    void take(Handle handle, int key, const QString &why, const QString &owner = {}) {
        HotKeyStatus status{HotKeyState::refused, why.toStdString(), owner.toStdString()};
        if (key != 0) {
            const bool ours = key == entries_.at(handle).key;
            status = {HotKeyState::active,
                      ours ? ""
                           : QKeySequence(key).toString(QKeySequence::NativeText).toStdString(),
                      {}};
        }
        setStatus(handle, status);
    }

    void restart(bool there) {
        for (const Handle handle : handles()) {
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

    void pressAction(const QString &action) {
        if (const auto entry = find(action); entry != entries_.end()) {
            press(entry->second.request.id);
        }
    }

    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
    KdeShortcuts shortcuts_;
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
