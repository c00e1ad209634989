#include "platform/linux/AutostartEntry.h"

#include "storage/SafeFile.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace nerlo::platform {

namespace {

constexpr const char *fileName = "/org.nerlo.NerloPro.desktop";
constexpr std::size_t largest = 64 * 1024; // bytes

// An argument of an Exec line: in quotes, the special characters escaped, and the whole escaped
// once more as a string of a desktop entry.
std::string execArgument(const std::string &text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
        case '`':
        case '$':
            quoted += "\\\\";
            quoted += c;
            break;
        case '\\':
            quoted += "\\\\\\\\";
            break;
        case '%':
            quoted += "%%";
            break;
        case '\n':
            quoted += "\\n";
            break;
        default:
            quoted += c;
        }
    }
    return quoted + '"';
}

} // namespace

AutostartEntry::AutostartEntry(std::string folder, std::string program)
    : folder_(std::move(folder))
    , program_(std::move(program)) {}

std::string AutostartEntry::setEnabled(bool enable) {
    std::error_code error;
    const std::string path = folder_ + fileName;
    if (!enable) {
        std::filesystem::remove(path, error);
        return error ? path + ": " + error.message() : std::string();
    }
    std::filesystem::create_directories(folder_, error);
    if (error) {
        return folder_ + ": " + error.message();
    }
    return storage::replaceFile(path, "[Desktop Entry]\n"
                                      "Type=Application\n"
                                      "Name=Nerlo Pro\n"
                                      "Icon=org.nerlo.NerloPro\n"
                                      "Exec=" +
                                          execArgument(program_) +
                                          "\n"
                                          "Terminal=false\n"
                                          "X-GNOME-Autostart-enabled=true\n");
}

bool AutostartEntry::enabled() const {
    const storage::FileContent entry = storage::readFile(folder_ + fileName, largest);
    return entry.state == storage::FileContent::State::Read &&
           entry.bytes.find("\nHidden=true") == std::string::npos &&
           entry.bytes.find("\nX-GNOME-Autostart-enabled=false") == std::string::npos;
}

} // namespace nerlo::platform
