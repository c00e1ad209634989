#include "platform/qt/GnomeHotKeys.h"

#include "platform/HeldHotKeys.h"
#include "platform/VirtualKeys.h"
#include "platform/qt/GnomeOrOther.h"

#include <chrono>
#include <utility>

namespace nerlo::platform {

namespace {

constexpr std::chrono::seconds answerLimit{10};

// "<Super><Shift>0x37", by the place of the key; empty for one that no keyboard has.
QString acceleratorOf(const HotKeyRequest &request) {
    const auto key = x11KeyOfVirtualKey(request.keyCode);
    if (!key) {
        return {};
    }
    const std::pair<std::uint32_t, const char *> rows[] = {{hotKeyCommand, "<Control>"},
                                                           {hotKeyControl, "<Super>"},
                                                           {hotKeyOption, "<Alt>"},
                                                           {hotKeyShift, "<Shift>"}};
    QString accelerator;
    for (const auto &[flag, name] : rows) {
        if ((request.modifiers & flag) != 0) {
            accelerator += QLatin1String(name);
        }
    }
    return accelerator + QStringLiteral("0x%1").arg(*key, 2, 16, QLatin1Char('0'));
}

// What came of it; active if there is a number for it.
HotKeyStatus statusIn(const QDBusMessage &reply, uint grabbed) {
    if (grabbed != 0) {
        return {HotKeyState::active, {}};
    }
    if (reply.type() == QDBusMessage::ReplyMessage) {
        return {HotKeyState::refused, "another program has taken this key combination"};
    }
    if (reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.AccessDenied")) {
        return {HotKeyState::pending, {}}; // it tells when it knows us
    }
    const bool older = reply.errorName().startsWith(
        QLatin1String("org.freedesktop.DBus.Error.Unknown")); // method, object or interface
    return {HotKeyState::refused,
            older ? "GNOME runs an older version of the extension \"Nerlo Pro\": log out and in"
                  : "GNOME's extension \"Nerlo Pro\" does not answer"};
}

struct GnomeHotKey : HeldHotKey {
    QString accelerator;
    uint question = 0; // that is not answered yet; the answers to others come too late
    uint grabbed = 0;  // by the extension; 0 for not
    HotKeyService::Handle other = 0; // with the other service
};

class GnomeHotKeys final : public HeldHotKeys<GnomeHotKey> {
  public:
    explicit GnomeHotKeys(std::unique_ptr<HotKeyService> otherwise)
        : otherwise_(std::move(otherwise)) {
        QObject::connect(&shell_, &GnomeShell::pressed, &shell_,
                         [this](uint grabbed) { pressGrabbed(grabbed); });
        QObject::connect(&shell_, &GnomeShell::listening, &shell_, [this] { takeMissing(); });
        QObject::connect(&shell_, &GnomeShell::came, &shell_, [this] { move(); });
        QObject::connect(&shell_, &GnomeShell::left, &shell_, [this] { move(); });
        otherwise_->setStatusHandler([this](HotKeyId id, const HotKeyStatus &status) {
            for (const auto &[handle, entry] : entries_) {
                if (entry.request.id == id && entry.other != 0) {
                    setStatus(handle, status);
                    return;
                }
            }
        });
    }
    ~GnomeHotKeys() override {
        otherwise_->setStatusHandler(nullptr);
        for (auto &[handle, entry] : entries_) {
            release(entry);
        }
    }

    bool installHandler(Pressed pressed) override {
        HeldHotKeys::installHandler(std::move(pressed));
        return otherwise_->installHandler([this](HotKeyId id) { press(id); });
    }
    void removeHandler() override {
        HeldHotKeys::removeHandler();
        otherwise_->removeHandler();
    }

    Registration registerHotKey(const HotKeyRequest &request) override {
        const QString accelerator = acceleratorOf(request);
        if (accelerator.isEmpty()) {
            return {0, "the keyboard has no such key"};
        }
        const Handle handle = hold({{request}, accelerator});
        take(handle);
        return {handle, {}};
    }
    void unregisterHotKey(Handle handle) override {
        if (const auto entry = entries_.find(handle); entry != entries_.end()) {
            release(entry->second);
            entries_.erase(entry);
        }
    }

    void setSuspended(bool suspended) override {
        if (std::exchange(suspended_, suspended) == suspended) {
            return;
        }
        otherwise_->setSuspended(suspended);
        for (auto &[handle, entry] : entries_) {
            if (suspended && entry.other == 0) {
                release(entry);
            } else if (!suspended && entry.other == 0) {
                take(handle);
            }
        }
    }

    void retryRefused() override {
        if (!shell_.isThere()) {
            otherwise_->retryRefused();
            return;
        }
        takeMissing();
    }

    bool available() const override { return shell_.isThere() || otherwise_->available(); }
    std::string description() const override {
        return shell_.isThere() ? GnomeShell::description
                                : otherwise_->description() + "; " + GnomeShell::notEnabled;
    }

  private:
    void take(Handle handle) {
        GnomeHotKey &entry = entries_.at(handle);
        if (!shell_.isThere()) {
            Registration registration = otherwise_->registerHotKey(entry.request);
            entry.other = registration.handle;
            entry.status = entry.other != 0
                               ? otherwise_->status(entry.other)
                               : HotKeyStatus{HotKeyState::refused, registration.refusal};
            return;
        }
        const uint question = entry.question = ++questions_;
        shell_.call(QStringLiteral("Grab"), {entry.accelerator}, answerLimit,
                    [this, handle, question](const QDBusMessage &reply) {
                        const uint grabbed = reply.signature() == QLatin1String("u")
                                                 ? reply.arguments()[0].toUInt()
                                                 : 0;
                        const auto asked = entries_.find(handle);
                        if (asked != entries_.end() && asked->second.question == question) {
                            asked->second.question = 0;
                            asked->second.grabbed = grabbed;
                            setStatus(handle, statusIn(reply, grabbed));
                        } else if (grabbed != 0) {
                            shell_.call(QStringLiteral("Release"), {grabbed}, answerLimit);
                        }
                    });
    }

    // Those that the extension has not given, if it would have to.
    void takeMissing() {
        for (const auto &[handle, entry] : entries_) {
            if (entry.grabbed == 0 && entry.question == 0 && !suspended_) {
                take(handle);
            }
        }
    }

    void release(GnomeHotKey &entry) {
        entry.question = 0;
        if (const uint grabbed = std::exchange(entry.grabbed, 0); grabbed != 0) {
            shell_.call(QStringLiteral("Release"), {grabbed}, answerLimit);
        }
        if (const Handle other = std::exchange(entry.other, 0); other != 0) {
            otherwise_->unregisterHotKey(other);
        }
    }

    // The extension has come, and gives them all; or it has gone, with what it had given.
    void move() {
        for (auto &[handle, entry] : entries_) {
            entry.grabbed = 0;
            release(entry);
        }
        for (const Handle handle : handles()) {
            if (entries_.contains(handle) && !(suspended_ && shell_.isThere())) {
                take(handle);
                tell(entries_.at(handle).request.id, status(handle));
            }
        }
    }

    void pressGrabbed(uint grabbed) {
        for (const auto &[handle, entry] : entries_) {
            if (entry.grabbed == grabbed && grabbed != 0) {
                press(entry.request.id);
                return;
            }
        }
    }

    std::unique_ptr<HotKeyService> otherwise_;
    uint questions_ = 0;
    GnomeShell shell_{QDBusConnection::sessionBus(), GnomeShell::Part::keys};
};

} // namespace

Created<HotKeyService> createGnomeHotKeys(std::unique_ptr<HotKeyService> &otherwise) {
    return createInGnome<HotKeyService, GnomeHotKeys>(std::move(otherwise));
}

} // namespace nerlo::platform
