// Any bytes as a line of `nerlo batch`: no crash, and always one line as the answer.
#include "cli/BatchAnswers.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const nerlo::cli::BatchAnswers answers({}, "en_US");
    const std::string line = answers.answer({reinterpret_cast<const char *>(data), size}).line;
    if (!line.ends_with('\n') || line.find('\n') + 1 != line.size()) {
        std::abort();
    }
    return 0;
}
