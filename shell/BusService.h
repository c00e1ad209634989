// The program on the session bus: org.nerlo.NerloPro.xml says what it offers.
//
// The name on the bus is also what makes the program a single one.
#pragma once

#include "shell/CommandLine.h"
#include "shell/Commands.h"

#include <optional>

#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QVariant>

namespace nerlo::shell {

class BusService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(bool AutomaticMode READ automaticMode)
    Q_PROPERTY(QString SelectedProfile READ selectedProfile)
    Q_PROPERTY(QString Backend READ backend)

  public:
    // `commands` must outlive the service, and be complete before the event loop runs: no call is
    // answered before.
    explicit BusService(const Commands &commands);

    enum class Name {
        ours,  // no other program of this kind runs in the session
        taken, // one does
        noBus, // there is no session bus
    };
    Name takeName();
    // From here on calls are refused. The name stays for as long as the program holds anything that
    // the next one needs.
    void end();

    // Tells the bus that a cleaned text has reached the clipboard.
    void cleaned() { emit Cleaned(); }
    // Tells the bus the properties that differ from those of the last call; the first one tells
    // none.
    void stateChanged();

    bool automaticMode() const { return commands_.automaticNow(); }
    QString selectedProfile() const { return QString::fromStdString(commands_.profileNow()); }
    QString backend() const { return QString::fromStdString(commands_.backend()); }

    // The methods of the interface.
  public slots:
    void Clean();
    void Operation(int index);
    QString Restore();
    bool Automatic(const QString &mode);
    void Activate();
    void Preferences();
    void Profile(const QString &name);
    QString Doctor();
    void Quit();

  signals:
    void Cleaned();

  private:
    const Commands &commands_;
    QVariantMap told_;
};

// The answer to a request, as a text; nothing where the request has no answer.
struct Answer {
    enum class Outcome {
        done,
        failed, // the text says why, in English
        ended,  // the program was about to end, and now has
    };
    Outcome outcome = Outcome::failed;
    std::optional<QString> text;
};

// Whether a program owns the name.
bool programRuns();

// Has the program that owns the name do it, and waits for the answer, or for its end.
Answer askRunningProgram(const Request &request);

} // namespace nerlo::shell
