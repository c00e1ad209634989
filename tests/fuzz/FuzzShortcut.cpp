// Any bytes as an archived shortcut: none, or one that archives and reads back as itself.
#include "shortcuts/nrShortcut.h"

#include <cstdint>
#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using nerlo::shortcuts::nrShortcut;
    const auto shortcut = nrShortcut::shortcutWithData(std::as_bytes(std::span(data, size)));
    if (shortcut && nrShortcut::shortcutWithData(shortcut->data()) != shortcut) {
        std::abort();
    }
    return 0;
}
