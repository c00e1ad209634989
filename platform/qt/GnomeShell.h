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
    // What the extension offers has two parts.
    enum class Part { clipboard, keys };
    explicit GnomeShell(QDBusConnection bus, Part part = Part::clipboard);

    // Why this desktop can never have the extension, in English; nothing if it can.
    static std::string impossible(const QDBusConnection &bus);
    static constexpr const char *description = "GNOME, by the Shell's extension";
    // Why it is not there, for the user's eyes.
    static constexpr const char *notEnabled = "GNOME's extension \"Nerlo Pro\" is not enabled: "
                                              "gnome-extensions enable nerlo-pro@nerlo.org";

    // Whether the extension runs, as far as is known.
    bool isThere() const { return there_; }

    using Answer = std::function<void(const QDBusMessage &)>;
    // `answer` gets the reply, or an error, within `limit`, and not after the end of this object.
    void call(const QString &method, const QVariantList &arguments, std::chrono::milliseconds limit,
              Answer answer = {});
    // Waits for the reply, or an error, for at most `limit`.
    QDBusMessage ask(const QString &method, std::chrono::milliseconds limit);

  signals:
    void changed(const QDBusMessage &state);
    // Another window came to the front, with the name that it gives itself.
    void activated(const QString &application);
    // A hot key, by the number that the extension gave it.
    void pressed(uint grabbed);
    // It knows this program now; what it was asked for before it has refused.
    void listening();
    // The extension was ended, or runs again and knows nothing of what it was told before.
    void came();
    void left();

  private slots:
    void onChanged(const QDBusMessage &state) { emit changed(state); }
    void onActivated(const QString &application) { emit activated(application.left(longestName)); }
    void onPressed(uint grabbed) { emit pressed(grabbed); }
    void onListening() { emit listening(); }

  private:
    static constexpr qsizetype longestName = 256;

    QDBusMessage method(const QString &name, const QVariantList &arguments) const;

    QDBusConnection bus_;
    const QString interface_;
    bool there_;
};

} // namespace nerlo::platform
