// Any bytes as lines of `nerlo batch`: no crash, and no line of the output more or less than there
// should be.
#include "cli/BatchAnswers.h"
#include "cli/FieldFilter.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace nerlo;
    static const cli::BatchAnswers answers({}, "en_US");
    static const cli::FieldFilter filter({.fields = {"text", "a[].b"},
                                          .options = {},
                                          .operation = nullptr,
                                          .locale = "en_US",
                                          .onError = cli::OnError::pass,
                                          .counts = "n"});
    const std::string_view lines(reinterpret_cast<const char *>(data), size);
    const auto breaks = [](std::string_view text) { return std::ranges::count(text, '\n'); };
    const std::string answered = answers.answer(lines).lines;
    if ((!answered.empty() && answered.back() != '\n') || breaks(answered) > breaks(lines) + 1 ||
        breaks(filter.filter(lines).lines) != breaks(lines)) {
        std::abort();
    }
    return 0;
}
