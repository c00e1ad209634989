// Operations in the desktop's own search, by KDE's interface for such (org.kde.krunner1): "clean"
// finds them all, "clean sort" one of them, and choosing one does it to the clipboard.
//
// Main thread only.
#pragma once

#include "shell/Program.h"

#include <QDBusContext>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace nerlo::shell {

struct RunnerMatch {
    QString id; // what Run gets: the operation's name, or "clean" for all that is on
    QString text;
    QString icon;
    int kind = 0;         // how exact the desktop is to think it
    double relevance = 0; // from 0 to 1
    QVariantMap properties{};
};

struct RunnerAction { // something else to do with a match; there is none
    QString id;
    QString text;
    QString icon;
};

class SearchRunner final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.krunner1")

  public:
    // Serves from now on, at its path on the session bus. `program` must outlive it.
    explicit SearchRunner(Program &program);
    ~SearchRunner() override;

    // The methods of the interface.
  public slots:
    QList<nerlo::shell::RunnerAction> Actions() { return {}; }
    // For everything that is typed there, so nothing for what does not begin with a word for
    // cleaning.
    QList<nerlo::shell::RunnerMatch> Match(const QString &query);
    void Run(const QString &id, const QString &action);

  private:
    Program &program_;
};

} // namespace nerlo::shell
