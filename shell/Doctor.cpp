#include "shell/Doctor.h"

namespace nerlo::shell {

std::string doctorReport(const platform::Chosen<platform::Pasteboard> &clipboard,
                         const platform::Chosen<platform::ActiveApplication> &activeApplication,
                         const platform::Chosen<platform::HotKeyService> &hotKeys,
                         const std::vector<std::string> &hotKeyFindings,
                         const platform::Chosen<platform::PopupLayer> &popupLayer, bool sessionBus,
                         std::optional<bool> automatic) {
    std::string report;
    const auto line = [&](const std::string &topic, const std::string &finding) {
        report += topic + ": " + finding + "\n";
    };
    const auto declined = [&](const std::vector<std::string> &reasons) {
        for (const auto &reason : reasons) {
            line("  not", reason);
        }
    };
    line("Clipboard",
         clipboard.backend ? clipboard.backend->description() : "none, so nothing can be cleaned");
    declined(clipboard.declined);
    if (clipboard.backend) {
        for (const auto &limitation : clipboard.backend->limitations()) {
            line("  but", limitation);
        }
    }
    line("Application in front", activeApplication.backend->description());
    declined(activeApplication.declined);
    line("Hot keys", hotKeys.backend->description());
    declined(hotKeys.declined);
    for (const auto &finding : hotKeyFindings) {
        report += "  " + finding + "\n";
    }
    line("Statistics popup",
         popupLayer.backend ? popupLayer.backend->description() : "a window like any other");
    declined(popupLayer.declined);
    line("Session bus",
         sessionBus ? "yes" : "none, so the running program cannot be told anything");
    line("Automatic cleaning", !automatic   ? "the program is not running"
                               : *automatic ? "on"
                                            : "off");
    return report;
}

} // namespace nerlo::shell
