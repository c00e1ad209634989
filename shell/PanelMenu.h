// The menu of the status item on the session bus, for GNOME's panel, which shows it by our
// extension.
//
// Main thread only.
#pragma once

#include <QDBusArgument>
#include <QDBusContext>
#include <QHash>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QString>

namespace nerlo::shell {

// One row. Those of a menu in the menu follow it, one deeper.
struct PanelRow {
    enum Flag : unsigned { enabled = 1, checkable = 2, checked = 4, separator = 8, submenu = 16 };
    int id = 0;
    unsigned depth = 0;
    unsigned flags = 0;
    QString title;
    QString keys; // of the hot key that does the same; empty for none
};

QDBusArgument &operator<<(QDBusArgument &argument, const PanelRow &row);
const QDBusArgument &operator>>(const QDBusArgument &argument, PanelRow &row);

class PanelMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.nerlo.NerloPro.Panel")

  public:
    // The owner of the name `panel` on the session bus alone may ask. `menu` must outlive this.
    PanelMenu(QMenu &menu, QString panel);
    ~PanelMenu() override;

    // The icon's name in English, and what it means.
    void setIcon(const QString &icon, const QString &title);

  public slots:
    Q_SCRIPTABLE QString Rows(QString &title, QList<nerlo::shell::PanelRow> &rows);
    // A row of any answer; one that is no more does nothing.
    Q_SCRIPTABLE void Run(int id);

  signals:
    Q_SCRIPTABLE void IconChanged(const QString &icon, const QString &title);

  private:
    bool admits();
    int idOf(QAction &action);
    void collect(const QMenu &menu, unsigned depth, QList<PanelRow> &rows);

    QMenu &menu_;
    const QString panel_;
    QString icon_;
    QString title_;
    // Each keeps its number: a row may be chosen while the next answer is on its way.
    QHash<int, QPointer<QAction>> actions_;
    int lastId_ = 0;
};

} // namespace nerlo::shell
