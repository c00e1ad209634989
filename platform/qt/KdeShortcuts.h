// The conversation with KDE's service for global shortcuts. For KdeHotKeys.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace nerlo::platform {

class KdeShortcuts : public QObject {
    Q_OBJECT

  public:
    KdeShortcuts(QDBusConnection bus, QString component, QString componentName);

    static bool isThere(const QDBusConnection &bus);

    // Binds `key`, the toolkit's key and modifiers as one number. `bound` gets the key that is
    // bound now, which is another one where the user has chosen so, or 0, why there is none, and,
    // where that is known, who has it ("KWin, Kill Window").
    using Bound = std::function<void(int key, const QString &why, const QString &owner)>;
    void bind(const QString &action, const QString &title, int key, Bound bound);
    // Gives the key back. The service still knows the action.
    void release(const QString &action);
    // The service forgets the action.
    void forget(const QString &action);

  signals:
    void pressed(const QString &action);
    // The user has chosen another key; 0 for none.
    void changed(const QString &action, int key);
    // The service has gone, or has come again and knows nothing of what was bound.
    void restarted(bool there);

  private slots:
    void onPressed(const QDBusMessage &message);
    void onChanged(const QDBusMessage &message);

  private:
    using Answer = std::function<void(const QDBusMessage &reply)>;
    void call(const QString &method, const QVariantList &arguments, Answer answer = {});
    void listen();
    void tellOwner(int key, const Bound &bound);
    QStringList idOf(const QString &action, const QString &title = {}) const;

    QDBusConnection bus_;
    QString component_;
    QString componentName_;
    bool listening_ = false;
};

} // namespace nerlo::platform
