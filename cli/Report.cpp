#include "cli/Failure.h"

#include <unistd.h>

namespace nerlo::cli {

std::string withoutControls(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        // In UTF-8, U+0080 to U+009F are C2 80 to C2 9F.
        const bool second = byte >= 0x80 && byte < 0xA0 && i > 0 && text[i - 1] == '\xC2';
        if (second) {
            text.replace(--i, 2, 1, '?');
        } else if (byte < 0x20 || byte == 0x7F) {
            text[i] = '?';
        }
    }
    return text;
}

void report(const std::string &message, const std::string &hint) {
    std::string line = "nerlo: " + message;
    if (isatty(STDERR_FILENO) != 0) {
        line = withoutControls(std::move(line));
    }
    line += '\n';
    if (!hint.empty()) {
        line += hint + '\n';
    }
    // In one piece, so that the lines of several threads or programs do not mix. If this fails
    // there is nowhere to report it.
    [[maybe_unused]] const auto written = write(STDERR_FILENO, line.data(), line.size());
}

} // namespace nerlo::cli
