// What the application delegate can have shown, opened and hidden.
//
// Main thread only.
#pragma once

#include <string>

namespace nerlo::shell {

class ShellWindows {
  public:
    virtual ~ShellWindows() = default;

    // The status item; showing it again changes nothing.
    virtual void showStatusItem() = 0;
    virtual void dropStatusItem() = 0;
    // Whether it can be seen and clicked: a desktop without a tray shows none.
    virtual bool statusItemReachable() const = 0;

    // An entry for the program's windows in the taskbar, or none.
    virtual void setTaskbarEntry(bool shown) = 0;

    // Shows the preferences window above the others and gives it the focus.
    virtual void showPreferencesWindow() = 0;
    virtual bool hasVisibleWindow() const = 0;
    // Brings the windows that can be seen before those of other programs.
    virtual void bringToFront() = 0;
    // Keeps the preferences window above the windows of other programs.
    virtual void setFloating(bool floating) = 0;

    // At a first start, the first page asks which rules are to be used.
    virtual void showTips(bool firstStart) = 0;
    virtual void showWhatsNew() = 0;
    virtual void showAbout() = 0;
    // Keys of the standard string table.
    virtual void showAlert(const char *messageKey, const char *informativeKey) = 0;
    // UTF-8. False when the desktop has nothing for it.
    virtual bool openUrl(const std::string &url) = 0;

    // Ends the program, once what is under way here has returned.
    virtual void quit() = 0;

    // What is not as the user wants it, told for as long as it lasts.
    enum class Problem {
        tray,
        shortcuts,
        settings,
        damage,
        profiles,
        loginItem,
        leftOutRules,
        linkRules,
        largeText,
    };
    // Each of them replaces the one of its kind; an empty text ends it. One line or more, UTF-8.
    virtual void setProblem(Problem problem, const std::string &text) = 0;

    // A state that menus and check boxes show has changed.
    virtual void stateChanged() = 0;
};

} // namespace nerlo::shell
