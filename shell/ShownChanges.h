// What of two texts is shown beside each other: all, or of long texts the parts that were changed.
//
// Places and sizes are UTF-16 code units. Any thread.
#pragma once

#include "text/Difference.h"

#include <QLocale>
#include <QString>
#include <cstddef>
#include <string_view>
#include <vector>

namespace nerlo::shell {

struct TextSpan {
    std::size_t start = 0;
    std::size_t length = 0;
    bool operator==(const TextSpan &) const = default;
};

struct ShownText {
    // A run of units that stand in the text as they do here.
    struct Run {
        std::size_t shown;
        std::size_t place; // in the text; `nowhere` for words in the place of a part
    };
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    QString text; // with one unit for each line break
    std::vector<TextSpan> marked;
    std::vector<TextSpan> leftOut; // words in the place of parts that are not shown
    std::vector<Run> runs;         // in order

    // Where the unit at this place of what is shown stands in the text.
    std::size_t placeOf(std::size_t shown) const;
};

struct ShownChanges {
    ShownText before;
    ShownText after;
    std::size_t changes = 0; // all of them, shown or not
};

// What stands in the place of parts, each with "%@" for a number.
struct LeftOutWords {
    QString lines;      // without changes
    QString characters; // in a long line, or in a long change
    QString changes;    // behind the last that is shown
    QLocale locale;
};

// The longest texts that are shown whole,
inline constexpr std::size_t shownWhole = 20'000;
// and what is shown of others; the last part may go a little further.
inline constexpr std::size_t shownOfLong = 10'000;
// A longer list of changes than this is of no use for a long text.
inline constexpr std::size_t mostShownChanges = 1'000;

// `difference` leads from one text to the other. What it does not list is not marked.
ShownChanges shownChanges(std::u16string_view before, std::u16string_view after,
                          const text::Difference &difference, const LeftOutWords &words);

} // namespace nerlo::shell
