// The conversation with the program's own extension of GNOME's Shell. For the backends of GNOME.
//
// Main thread, with an event loop.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <functional>
#include <string>

namespace nerlo::platform {

class GnomeShell : public QObject {
    Q_OBJECT

  public:
    explicit GnomeShell(QDBusConnection bus);

    // Why this desktop does not have the extension, in English; nothing if it runs. Waits for the
    // bus.
    static std::string missing(const QDBusConnection &bus);

    using Answer = std::function<void(const QDBusMessage &)>;
    // `answer` gets the reply, or an error, within `limit`, and not after the end of this object.
    void call(const QString &method, const QVariantList &arguments, std::chrono::milliseconds limit,
              Answer answer);
    // Waits for the reply, or an error, for at most `limit`.
    QDBusMessage ask(const QString &method, std::chrono::milliseconds limit);

  signals:
    void changed(const QDBusMessage &state);
    // Another window came to the front, with the name that it gives itself.
    void activated(const QString &application);
    // The extension was ended; it may come back, with a signal of its own.
    void left();

  private slots:
    void onChanged(const QDBusMessage &state) { emit changed(state); }
    void onActivated(const QString &application) { emit activated(application.left(longestName)); }

  private:
    static constexpr qsizetype longestName = 256;

    QDBusConnection bus_;
};

} // namespace nerlo::platform
