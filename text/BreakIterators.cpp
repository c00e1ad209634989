#include "text/BreakIterators.h"

#include <memory>

namespace nerlo::text {

UBreakIterator *breakIterator(UBreakIteratorType kind, const std::string &locale) {
    struct Close {
        void operator()(UBreakIterator *iterator) const { ubrk_close(iterator); }
    };
    struct Kept {
        std::string locale;
        std::unique_ptr<UBreakIterator, Close> iterator;
    };
    static thread_local Kept sentences;
    static thread_local Kept words;
    Kept &kept = kind == UBRK_SENTENCE ? sentences : words;
    if (!kept.iterator || kept.locale != locale) {
        UErrorCode status = U_ZERO_ERROR;
        kept.iterator.reset(ubrk_open(kind, locale.c_str(), nullptr, 0, &status));
        kept.locale = locale;
        if (U_FAILURE(status)) {
            kept.iterator.reset();
        }
    }
    return kept.iterator.get();
}

} // namespace nerlo::text
