// One content on GNOME's clipboard, each format with bytes of its own, by the compositor's
// interface for remote desktops. Its bytes stay here until somebody asks for them.
//
// Nothing is shared or controlled: such a session shows itself and takes input only when it is
// started, and this one is not.
//
// Main thread, with an event loop.
#pragma once

#include "platform/Pasteboard.h"
#include "platform/qt/PipeTransfer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <map>
#include <memory>

namespace nerlo::platform {

class MutterOffer : public QObject {
    Q_OBJECT

  public:
    // `set` runs once: whether the content stands on the clipboard now. It stays as long as this
    // object and nobody replaces it; then the bytes are given back. `set` must not end this object.
    MutterOffer(QDBusConnection bus, PasteboardContent content, std::function<void(bool)> set);
    ~MutterOffer() override;

  private slots:
    void onOwnerChanged(const QDBusMessage &message);
    void onTransfer(const QString &format, uint serial);
    void onClosed() { close(); }

  private:
    using Next = std::function<void(const QDBusMessage &reply)>;

    // Calls a method of the session; goes on with `next` unless it fails.
    void call(const QString &method, const QVariantList &arguments, Next next);
    void begin();
    void serve(const QDBusMessage &reply, const QString &format, uint serial);
    void served(uint serial, bool whole);
    void end(bool set);
    void close();

    QDBusConnection bus_;
    PasteboardContent content_;
    std::function<void(bool)> set_; // null once it has run
    QString session_;               // its object path; empty for none
    std::map<uint, std::unique_ptr<PipeTransfer>> transfers_;
};

} // namespace nerlo::platform
