#include "shell/Doctor.h"

#include "shell/TrayIcon.h"
#include "storage/SafeFile.h"

namespace nerlo::shell {

namespace {

class Report {
  public:
    void line(const std::string &topic, const std::string &finding) {
        text_ += topic + ": " + finding + "\n";
    }
    void plain(const std::string &finding) { text_ += "  " + finding + "\n"; }
    // Nothing for an empty text.
    void gap(const std::string &what) {
        if (!what.empty()) {
            ++gaps_;
            line("  but", what);
        }
    }
    // What serves the purpose, and why nothing better does.
    template <class Interface>
    void topic(const std::string &name, const platform::Chosen<Interface> &chosen,
               const std::string &otherwise) {
        line(name, chosen.backend ? chosen.backend->description() : otherwise);
        // On X11 it is no news that Wayland is not there.
        if (platform::underWayland() || !chosen.backend) {
            for (const auto &reason : chosen.declined) {
                line("  not", reason);
            }
        }
        gap(chosen.lacks);
    }
    std::string end() {
        line("Gaps", gaps_ == 0 ? "none" : std::to_string(gaps_) + ", the lines with \"but\"");
        return text_;
    }

  private:
    std::string text_;
    int gaps_ = 0;
};

void clipboard(Report &report, const Desktop &desktop) {
    const auto &clipboard = desktop.clipboard;
    report.topic("Clipboard", clipboard, "none");
    report.gap(clipboard.backend ? "" : "nothing can be cleaned");
    if (clipboard.backend) {
        for (const auto &limitation : clipboard.backend->limitations()) {
            report.gap(limitation);
        }
    }
}

void hotKeys(Report &report, const Desktop &desktop, const std::optional<RunningState> &running) {
    const auto &service = *desktop.hotKeys.backend;
    report.topic("Hot keys", desktop.hotKeys, {});
    report.gap(service.available() ? "" : "no shortcut works in every program");
    if (running) {
        for (const auto &finding : running->hotKeyFindings) {
            report.plain(finding);
        }
    }
}

void windows(Report &report, const Desktop &desktop, const std::optional<RunningState> &running) {
    const bool wayland = platform::underWayland();
    const bool tray = desktop.backends->hasXembedTray() || trayHostIsThere();
    report.line("Tray", tray ? "yes" : "none");
    report.gap(tray ? "" : "there is no icon to click, so the preferences open at each start");
    const auto &popup = desktop.popupLayer;
    report.topic("Statistics popup", popup, wayland ? "a window" : "a window placed exactly");
    report.gap(popup.backend || !wayland ? ""
               : running && !platform::pointerPositionKnown()
                   ? "the compositor says where it stands, and gives it the keyboard"
               : tellsPointer(desktop)
                   ? ""
                   : "where the pointer is, is known only over windows of programs on X11");
    if (running) {
        report.line("Chooser", running->chooserLeavesFocus ? "a window that leaves the focus"
                                                           : "a window that takes the focus");
        report.gap(running->chooserLeavesFocus || running->chooserAtPointer
                       ? ""
                       : "the compositor says where it stands");
    }
    const auto &paster = desktop.paster;
    report.topic("Pasting for you", paster, "none");
    report.gap(paster.backend ? paster.backend->limitation()
                              : "what the chooser makes is pasted by hand");
}

void folders(Report &report, const Desktop &desktop, const settings::SettingsPaths &paths) {
    auto folders = desktop.folders;
    folders.insert(folders.begin(),
                   {storage::folderOf(paths.store), storage::folderOf(paths.profiles)});
    report.line("Folders", std::to_string(folders.size()));
    for (const auto &folder : folders) {
        const auto why = storage::whyNotWritable(folder);
        report.gap(why);
        if (why.empty()) {
            report.plain(folder);
        }
    }
}

} // namespace

std::string doctorReport(const Desktop &desktop, const settings::SettingsPaths &paths,
                         bool sessionBus, const std::optional<RunningState> &running) {
    Report report;
    clipboard(report, desktop);
    report.topic("Application in front", desktop.activeApplication, {});
    report.gap(desktop.activeApplication.backend->limitation());
    hotKeys(report, desktop, running);
    windows(report, desktop, running);
    report.line("Session bus", sessionBus ? "yes" : "none");
    report.gap(sessionBus ? "" : "the running program cannot be told anything");
    folders(report, desktop, paths);
    report.line("Automatic cleaning", !running             ? "the program is not running"
                                      : running->automatic ? "on"
                                                           : "off");
    return report.end();
}

} // namespace nerlo::shell
