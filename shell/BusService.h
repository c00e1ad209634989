// The program on the session bus: org.nerlo.NerloPro.xml says what it offers.
//
// The name on the bus is also what makes the program a single one.
#pragma once

#include "shell/Program.h"

#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QVariant>

namespace nerlo::shell {

inline constexpr auto busObjectPath = "/org/nerlo/NerloPro";

class BusService final : public QObject, public ProgramListener, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(bool AutomaticMode READ automaticMode)
    Q_PROPERTY(QString SelectedProfile READ selectedProfile)
    Q_PROPERTY(QString Backend READ backend)

  public:
    BusService();

    enum class Name {
        ours,  // no other program of this kind runs in the session
        taken, // one does
        noBus, // there is no session bus
    };
    // No call is answered before the event loop runs, and serve() must come before that.
    Name takeName();
    // The program must live until end().
    void serve(Program &program);
    // From here on calls are refused. The name stays for as long as the program holds anything that
    // the next one needs.
    void end();

    void cleaned() override { emit Cleaned(); }
    // Tells the bus the properties that differ from those of the last call; the first one tells
    // none.
    void stateChanged() override;

    bool automaticMode() const { return program_->automatic(); }
    QString selectedProfile() const { return QString::fromStdString(program_->profileName()); }
    QString backend() const { return QString::fromStdString(program_->backend()); }

    // The methods of the interface.
  public slots:
    void Clean();
    void Operation(int index);
    void Choose();
    QString Restore();
    bool Automatic(const QString &mode);
    void Activate();
    void Preferences();
    void Profile(const QString &name);
    QString Why();
    QString Doctor();
    void Quit();

  signals:
    void Cleaned();

  private:
    Program *program_ = nullptr;
    bool named_ = false; // the name is ours
    QVariantMap told_;
};

} // namespace nerlo::shell
