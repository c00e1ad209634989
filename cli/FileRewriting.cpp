#include "cli/FileRewriting.h"

#include <utility>

namespace nerlo::cli {

std::string endingFor(const CleanText &text, const TextReader &reader) {
    if (reader.finalBreak().empty() || endsWithBreak(text)) {
        return {};
    }
    const std::string_view last = lastBreak(text);
    return std::string(last.empty() ? reader.finalBreak() : last);
}

void rewrite(const std::string &file, const TextReader &reader, CleanText text) {
    std::string ending = endingFor(text, reader);
    const CleanText parts[] = {std::string(reader.byteOrderMark() ? "\xEF\xBB\xBF" : ""),
                               std::move(text), std::move(ending)};
    replaceFile(file, parts);
}

} // namespace nerlo::cli
