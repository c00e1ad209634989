#include "platform/qt/PortalHotKeys.h"

#include "platform/Alive.h"
#include "platform/HeldHotKeys.h"
#include "platform/qt/PortalSession.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

class PortalHotKeys final : public HeldHotKeys<HeldHotKey> {
  public:
    PortalHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout, QDBusConnection bus,
                  const std::string &applicationId)
        : mainQueue_(mainQueue)
        , layout_(layout)
        , session_(std::move(bus), QString::fromStdString(applicationId)) {
        QObject::connect(&session_, &PortalSession::activated, &session_,
                         [this](const QString &id) { activate(id); });
        QObject::connect(&session_, &PortalSession::bound, &session_,
                         [this](const QMap<QString, QString> &triggers) { take(triggers); });
        QObject::connect(&session_, &PortalSession::refused, &session_,
                         [this](const QString &why) { refuse(why.toStdString()); });
    }

    Registration registerHotKey(const HotKeyRequest &request) override {
        bindSoon();
        return {hold({request}), {}};
    }
    void unregisterHotKey(Handle handle) override {
        if (entries_.erase(handle) != 0) {
            bindSoon();
        }
    }

    // The desktop keeps the keys while we are suspended; pressing them runs nothing.
    void setSuspended(bool suspended) override { suspended_ = suspended; }

    bool available() const override { return missing_.empty(); }
    std::string description() const override {
        return missing_.empty() ? "the desktop portal's GlobalShortcuts" : missing_;
    }

  private:
    static QString idOf(const HeldHotKey &entry) { return QString::fromStdString(entry.name()); }

    // Many shortcuts may come and go within one task, above all at the start; binding after that
    // task asks the user once for all of them.
    void bindSoon() {
        if (std::exchange(bindPosted_, true)) {
            return;
        }
        mainQueue_.post(alive_.guard([this] {
            bindPosted_ = false;
            bind();
        }));
    }

    void bind() {
        QList<PortalShortcut> shortcuts;
        for (auto &[handle, entry] : entries_) {
            QVariantMap properties{
                {QStringLiteral("description"), QString::fromStdString(entry.request.title)}};
            if (const auto trigger = preferredTrigger(entry.request, layout_); !trigger.empty()) {
                properties.insert(QStringLiteral("preferred_trigger"),
                                  QString::fromStdString(trigger));
            }
            shortcuts.append({idOf(entry), properties});
            if (entry.status.state != HotKeyState::active) {
                entry.status = {HotKeyState::pending, {}};
            }
        }
        session_.bind(shortcuts);
    }

    void activate(const QString &id) {
        for (const auto &[handle, entry] : entries_) {
            if (entry.status.state == HotKeyState::active && idOf(entry) == id) {
                press(entry.request.id);
                return;
            }
        }
    }

    void take(const QMap<QString, QString> &triggers) {
        missing_.clear();
        setStatuses([&](const HeldHotKey &entry) -> HotKeyStatus {
            const auto trigger = triggers.find(idOf(entry));
            if (trigger == triggers.end()) {
                return {HotKeyState::refused, "the desktop did not bind this shortcut"};
            }
            return {HotKeyState::active, trigger->toStdString()};
        });
    }

    void refuse(const std::string &why) {
        missing_ = session_.available() ? std::string() : why;
        setStatuses([&](const HeldHotKey &entry) {
            const bool stays = session_.isBound() && entry.status.state == HotKeyState::active;
            return stays ? entry.status : HotKeyStatus{HotKeyState::refused, why};
        });
    }

    template <class StatusOf>
    void setStatuses(StatusOf statusOf) {
        std::vector<std::pair<HotKeyId, HotKeyStatus>> changes;
        for (auto &[handle, entry] : entries_) {
            if (auto status = statusOf(entry); status != entry.status) {
                entry.status = status;
                changes.emplace_back(entry.request.id, std::move(status));
            }
        }
        for (const auto &[id, status] : changes) {
            tell(id, status);
        }
    }

    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
    PortalSession session_;
    std::string missing_; // why there is no portal, as far as is known
    bool bindPosted_ = false;
    Alive alive_;
};

} // namespace

Created<HotKeyService> createPortalHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                           std::string applicationId) {
    // A D-Bus connection of its own, because the portal identifies applications by connection, and
    // the name must be registered before the first request.
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                             QStringLiteral("nerlo-hot-keys"));
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(bus.name());
        return {nullptr, "there is no session bus"};
    }
    return {std::make_unique<PortalHotKeys>(mainQueue, layout, std::move(bus), applicationId), {}};
}

std::string preferredTrigger(const HotKeyRequest &request, const KeyboardLayout &layout) {
    // Desktops match the name against Latin layouts too, but not the other way round.
    const std::u16string text = layout.textOfKey(request.keyCode);
    const bool latin = std::ranges::all_of(text, [](char16_t unit) { return unit < 0x100; });
    static const XkbKeyboardLayout us(xkb::Keymap::fromNames("us"));
    const std::string symbol =
        (latin ? layout : static_cast<const KeyboardLayout &>(us)).symbolOfKey(request.keyCode);
    if (symbol.empty()) {
        return {};
    }
    const struct {
        std::uint32_t flag;
        const char *name;
    } names[] = {{hotKeyCommand, "CTRL+"},
                 {hotKeyControl, "LOGO+"},
                 {hotKeyOption, "ALT+"},
                 {hotKeyShift, "SHIFT+"}};
    std::string trigger;
    for (const auto &row : names) {
        if ((request.modifiers & row.flag) != 0) {
            trigger += row.name;
        }
    }
    return trigger + symbol;
}

} // namespace nerlo::platform
