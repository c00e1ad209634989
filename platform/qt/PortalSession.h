// The conversation with the portal's GlobalShortcuts: one session at a time, and while the user is
// asked for the next one, that beside it. For PortalHotKeys.
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace nerlo::platform {

struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

class PortalSession : public QObject {
    Q_OBJECT

  public:
    PortalSession(QDBusConnection bus, QString applicationId);
    ~PortalSession() override;

    // Begins another session if there are shortcuts; the present one lasts until that has bound
    // them, so that it stays if the user declines. An answer to an earlier call does not come any
    // more.
    void bind(QList<PortalShortcut> shortcuts);

    // Whether the desktop is believed to have the portal.
    bool available() const { return available_; }
    // Whether there is a session that has bound what it was asked to.
    bool isBound() const { return !session_.isEmpty(); }

  signals:
    void activated(const QString &id);
    // What the session has bound, now or since the user changed it, with the keys in the desktop's
    // words.
    void bound(const QMap<QString, QString> &triggers);
    // Nothing new is bound; one English line says why. What a session has bound before stays as
    // long as isBound().
    void refused(const QString &why);

  private slots:
    void onResponse(uint code, const QVariantMap &results, const QDBusMessage &message);
    void onActivated(const QDBusMessage &message);
    void onShortcutsChanged(const QDBusMessage &message);
    void onClosed(const QDBusMessage &message);

  private:
    using Answer = std::function<void(const QVariantMap &results)>;

    void introduce();
    void createSession();
    void bindShortcuts();
    // Calls a method that is answered by a Response signal. `answer` gets the results of a success.
    void request(const QString &method, QVariantList arguments, QVariantMap options, Answer answer);
    void fail(const QString &why);
    void failCall(const QDBusMessage &error);
    void abandon();
    void close(QString &session);
    void nameOwnerChanged(bool there);

    QDBusConnection bus_;
    QString applicationId_;
    QList<PortalShortcut> shortcuts_;
    QString session_;        // its object path; empty for none
    QString next_;           // the one that has not bound anything yet
    QString awaitedRequest_; // the object path whose Response counts
    Answer answer_;
    quint64 generation_ = 0; // of bind(); late answers belong to an earlier one
    quint64 tokens_ = 0;     // of requests
    quint64 sessions_ = 0;   // since the portal was started
    bool introduced_ = false;
    bool available_ = true;
};

} // namespace nerlo::platform
