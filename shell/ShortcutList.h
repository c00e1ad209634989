// Every command with its shortcut: what both are called, whom the keys collide with, and what a
// first start would give.
//
// Nothing is kept here: the shortcuts are those of the settings store. Main thread only.
#pragma once

#include "shortcuts/nrShortcut.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::shell {

class Program;

struct ListedCommand {
    std::string hotKey; // settings key of the shortcut
    QString title;
    QString tip;
    QString page; // of the preferences, on which its options are
    bool operator==(const ListedCommand &) const = default;
};
// Whether it selects a profile; those come and go.
bool selectsProfile(const ListedCommand &command);
// What the shortcut of a profile does.
QString selectingTitle(const std::u16string &profile);

class ShortcutList {
  public:
    // `program` must outlive this.
    explicit ShortcutList(Program &program);

    // In the order of the pages, and on each as there; the profiles come last, each name once.
    const std::vector<ListedCommand> &commands() const { return commands_; }
    // Those of the profiles that there are now.
    void followProfiles();
    // "Super+V"; empty for none.
    QString keys(const ListedCommand &command) const;
    // "Super+V: KWin, Close Window": who has the keys, or why the desktop does not give them; empty
    // where they work, and where there are none.
    QString conflict(const std::string &hotKey) const;
    // Whether what is said of the command has all the words, which are in lower case.
    bool matches(const ListedCommand &command, const QStringList &words) const;
    bool isAsAtFirst(const ListedCommand &command) const;
    // As after a first start, one or all; one gesture each.
    void reset(const ListedCommand &command);
    void resetAll();

  private:
    std::optional<shortcuts::nrShortcut> shortcut(const std::string &hotKey) const;
    QString ownerOf(const shortcuts::nrShortcut &shortcut, const std::string &hotKey) const;

    Program &program_;
    std::vector<ListedCommand> commands_;
};

} // namespace nerlo::shell
