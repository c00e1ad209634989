#include "platform/Pasteboard.h"

#include <cstring>
#include <utility>

namespace nerlo::platform {

std::shared_ptr<const std::string> pasteboardBytes(std::string bytes) {
    struct Wiped {
        std::string bytes;
        explicit Wiped(std::string given)
            : bytes(std::move(given)) {}
        ~Wiped() { explicit_bzero(bytes.data(), bytes.size()); }
    };
    const auto wiped = std::make_shared<const Wiped>(std::move(bytes));
    return {wiped, &wiped->bytes};
}

} // namespace nerlo::platform
