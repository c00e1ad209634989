// Any bytes as a property list: no crash; and what was read survives being written in both forms.
#include "storage/PropertyList.h"

#include <cstdlib>

using namespace nerlo::platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const auto parsed = parsePropertyList(bytes);
    if (parsed.value.has_value() != parsed.error.empty()) {
        std::abort();
    }
    if (parsed.value) {
        const auto again = parsePropertyList(writeXml(*parsed.value));
        // Bytes are compared and not values, because a real number that is NaN differs from itself.
        if (!again.value || writeXml(*again.value) != writeXml(*parsed.value)) {
            std::abort();
        }
        if (!parsePropertyList(writeBinary(*parsed.value)).value) {
            std::abort();
        }
    }
    return 0;
}
