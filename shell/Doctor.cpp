#include "shell/Doctor.h"

namespace nerlo::shell {

std::string doctorReport(const Desktop &desktop, bool sessionBus,
                         const std::optional<RunningState> &running) {
    std::string report;
    const auto line = [&](const std::string &topic, const std::string &finding) {
        report += topic + ": " + finding + "\n";
    };
    const auto declined = [&](const std::vector<std::string> &reasons) {
        for (const auto &reason : reasons) {
            line("  not", reason);
        }
    };
    const auto &clipboard = desktop.clipboard.backend;
    line("Clipboard", clipboard ? clipboard->description() : "none, so nothing can be cleaned");
    declined(desktop.clipboard.declined);
    if (clipboard) {
        for (const auto &limitation : clipboard->limitations()) {
            line("  but", limitation);
        }
    }
    line("Application in front", desktop.activeApplication.backend->description());
    declined(desktop.activeApplication.declined);
    line("Hot keys", desktop.hotKeys.backend->description());
    declined(desktop.hotKeys.declined);
    if (running) {
        for (const auto &finding : running->hotKeyFindings) {
            report += "  " + finding + "\n";
        }
    }
    const auto &popup = desktop.popupLayer.backend;
    line("Statistics popup", popup ? popup->description() : "a window like any other");
    declined(desktop.popupLayer.declined);
    const auto &paster = desktop.paster.backend;
    line("Pasting for you", paster ? paster->description() : "not here");
    declined(desktop.paster.declined);
    line("Session bus",
         sessionBus ? "yes" : "none, so the running program cannot be told anything");
    line("Automatic cleaning", !running             ? "the program is not running"
                               : running->automatic ? "on"
                                                    : "off");
    return report;
}

} // namespace nerlo::shell
