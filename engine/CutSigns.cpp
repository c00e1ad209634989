#include "engine/CutSigns.h"

#include "engine/ScreenRows.h"
#include "text/Ascii.h"

#include <algorithm>

namespace nerlo::engine {

void CutSigns::add(const StructuredLine &line) {
    if (taken_ == enough) {
        return;
    }
    if (line.kind != LineKind::prose || line.words == line.end || line.quoted > line.begin) {
        above_ = {};
        return;
    }
    if (above_.width > 0 && !line.item) {
        ++taken_;
        ++rows_[above_.width];
        joints_[above_.width] += above_.endsInLetter && text::isAsciiLetter(text_[line.words]);
    }
    above_ = rowOf(line);
}

// Of single blanks between words and none around them, as they are once the text is clean.
CutSigns::Row CutSigns::rowOf(const StructuredLine &line) const {
    std::size_t end = line.end;
    std::size_t width = 0;
    const auto isBlank = [&](std::size_t at) {
        return text_[at] == u' ' || text_[at] == u'\u00A0';
    };
    while (end > line.begin && isBlank(end - 1)) {
        --end;
    }
    if (line.ordinary) {
        width = end - line.begin;
    } else {
        for (std::size_t at = line.begin; at < end; ++at) {
            width += !isBlank(at) || (width > 0 && text_[at - 1] != text_[at]);
        }
    }
    return {std::min(width, widest), end > line.begin && text::isAsciiLetter(text_[end - 1])};
}

bool CutSigns::areCut() const {
    constexpr std::uint32_t fewest = 4;
    constexpr std::size_t close = 8; // columns that the next word of a line mostly takes
    std::uint32_t wider = 0;
    for (std::size_t width = widest; width >= leastWidth; --width) {
        if (joints_[width] >= fewest && joints_[width] >= 8 * wider) {
            std::uint32_t shorter = 0;
            for (std::size_t other = width - close; other < width; ++other) {
                shorter += rows_[other];
            }
            return joints_[width] >= shorter;
        }
        wider += rows_[width];
    }
    return false;
}

} // namespace nerlo::engine
