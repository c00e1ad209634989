// The menu of the status item and the menu bar of the preferences window, made of the same items.
//
// Main thread only.
#pragma once

#include "shortcuts/MenuItem.h"

#include <QKeySequence>
#include <QMenu>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

class QMenuBar;

namespace nerlo::shell {

class Program;

class StatusMenu final : public QObject {
    Q_OBJECT

  public:
    // `program` must outlive the menu; its commands are run by the items.
    explicit StatusMenu(Program &program);
    ~StatusMenu() override;

    QMenu &menu() { return *statusMenu_; }
    void fillMenuBar(QMenuBar &bar);

    void setAutomatic(bool on);
    void setExcelException(bool on);
    // The program of the last copy, empty where it is not known, and whether copies from there are
    // left alone.
    void setProgram(const QString &name, bool never);
    // The beginning of the text that a restore would bring back; nothing if there is none.
    void setRestorable(const std::optional<QString> &words);
    // `selected` is -1 for none.
    void setProfiles(const QStringList &names, int selected);
    // Shown beside them; one for each, empty for none.
    void setProfileShortcuts(const QList<QKeySequence> &keys);
    // Whether menu() is shown by a panel over the bus, which reads a title in its own way.
    void setShownOverBus(bool overBus);
    // Shown beside "Clear formating from clipboard".
    void setCleanShortcut(const QKeySequence &keys);

    // The items of the menu bar with their key equivalents, with which a shortcut may collide.
    static std::vector<shortcuts::MenuItem> mainMenu();

  private:
    QAction *add(const char *name, const QString &text, void (*run)(Program &));
    void fillStatusMenu();
    void makeOperations();
    void nameRestorable();
    void nameProgram();
    void makeEditActions();
    void edit(const char *slot);
    void fillProfiles(QMenu &menu, int selected);

    Program &program_;
    std::unique_ptr<QMenu> statusMenu_;
    std::unique_ptr<QMenu> operations_;
    std::unique_ptr<QMenu> profiles_;     // of the menu bar
    std::unique_ptr<QMenu> trayProfiles_; // of menu()
    QStringList profileNames_;
    bool overBus_ = false;
    QAction *clean_;
    QAction *choose_;
    QAction *automatic_;
    QAction *excelException_;
    QAction *never_;
    QString programName_;
    QAction *restore_;
    QString restorable_;
    QAction *preferences_;
    QAction *help_;
    QAction *tips_;
    QAction *whatsNew_;
    QAction *rate_;
    QAction *support_;
    QAction *email_;
    QAction *about_;
    QAction *hide_;
    QAction *quit_;
    std::vector<QAction *> edit_;
};

} // namespace nerlo::shell
