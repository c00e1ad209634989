#include "text/CountedText.h"

#include <unicode/utf16.h>

#include <algorithm>

namespace nerlo::text {

namespace {

const CountedText::Source &sourceOf(const UText *opened) {
    return *static_cast<const CountedText::Source *>(opened->context);
}

std::int64_t size64(std::u16string_view text) {
    return static_cast<std::int64_t>(text.size());
}

// A piece must not begin or end within a pair of surrogates.
std::size_t behindPair(std::u16string_view text, std::size_t at) {
    const bool splits =
        at > 0 && at < text.size() && U16_IS_LEAD(text[at - 1]) && U16_IS_TRAIL(text[at]);
    return splits ? at + 1 : at;
}

void showPiece(UText *opened, std::u16string_view text, std::size_t at) {
    constexpr std::size_t size = CountedText::pieceSize;
    std::size_t from = at / size * size;
    if (behindPair(text, from) > at) {
        from -= size;
    }
    const std::size_t begin = behindPair(text, from);
    const std::size_t end = behindPair(text, std::min(from + size, text.size()));
    opened->chunkContents = text.data() + begin;
    opened->chunkLength = static_cast<std::int32_t>(end - begin);
    opened->chunkNativeStart = static_cast<std::int64_t>(begin);
    opened->chunkNativeLimit = static_cast<std::int64_t>(end);
    opened->nativeIndexingLimit = opened->chunkLength;
}

// From `begin` to `end` as one character.
void showBlank(UText *opened, std::int64_t begin, std::int64_t end) {
    opened->chunkContents = u" ";
    opened->chunkLength = 1;
    opened->chunkNativeStart = begin;
    opened->chunkNativeLimit = end;
    opened->nativeIndexingLimit = 0;
}

UBool access(UText *opened, std::int64_t index, UBool forward) {
    const CountedText::Source &source = sourceOf(opened);
    const std::int64_t length = size64(source.text);
    index = std::clamp<std::int64_t>(index, 0, length);
    const bool isThere = forward ? index < length : index > 0;
    if (source.budget->isSpent()) {
        // At an end, what lies on its other side is shown.
        const bool showAhead = forward ? isThere : !isThere;
        showBlank(opened, showAhead ? index : 0, showAhead ? length : index);
        opened->chunkOffset = showAhead ? 0 : 1;
        return isThere;
    }
    source.budget->done += CountedText::stepsForPiece;
    const std::int64_t shown = std::clamp<std::int64_t>(forward ? index : index - 1, 0, length - 1);
    showPiece(opened, source.text, static_cast<std::size_t>(shown));
    opened->chunkOffset = static_cast<std::int32_t>(index - opened->chunkNativeStart);
    return isThere;
}

std::int64_t nativeLength(UText *opened) {
    return size64(sourceOf(opened).text);
}

std::int64_t toNative(const UText *opened) {
    return opened->chunkOffset == 0 ? opened->chunkNativeStart : opened->chunkNativeLimit;
}

std::int32_t toOffset(const UText *opened, std::int64_t index) {
    return index < opened->chunkNativeLimit ? 0 : 1;
}

std::int32_t extract(UText *opened, std::int64_t start, std::int64_t limit, UChar *to,
                     std::int32_t capacity, UErrorCode *status) {
    if (U_FAILURE(*status)) {
        return 0;
    }
    const std::u16string_view text = sourceOf(opened).text;
    const auto begin = static_cast<std::size_t>(std::clamp<std::int64_t>(start, 0, size64(text)));
    const auto end = static_cast<std::size_t>(
        std::clamp<std::int64_t>(limit, static_cast<std::int64_t>(begin), size64(text)));
    const std::u16string_view part = text.substr(begin, end - begin);
    part.copy(to, std::min(part.size(), static_cast<std::size_t>(std::max(capacity, 0))));
    if (part.size() > static_cast<std::size_t>(std::max(capacity, 0))) {
        *status = U_BUFFER_OVERFLOW_ERROR;
    }
    return static_cast<std::int32_t>(part.size());
}

UText *clone(UText *to, const UText *from, UBool deep, UErrorCode *status);

constexpr UTextFuncs functions = {.tableSize = sizeof(UTextFuncs),
                                  .reserved1 = 0,
                                  .reserved2 = 0,
                                  .reserved3 = 0,
                                  .clone = clone,
                                  .nativeLength = nativeLength,
                                  .access = access,
                                  .extract = extract,
                                  .replace = nullptr,
                                  .copy = nullptr,
                                  .mapOffsetToNative = toNative,
                                  .mapNativeIndexToUTF16 = toOffset,
                                  .close = nullptr,
                                  .spare1 = nullptr,
                                  .spare2 = nullptr,
                                  .spare3 = nullptr};

UText *setup(UText *to, const void *source, UErrorCode *status) {
    to = utext_setup(to, 0, status);
    if (U_SUCCESS(*status)) {
        to->pFuncs = &functions;
        to->context = source;
    }
    return to;
}

// The clones count to the same budget.
UText *clone(UText *to, const UText *from, UBool deep, UErrorCode *status) {
    if (deep) {
        *status = U_UNSUPPORTED_ERROR;
        return nullptr;
    }
    return setup(to, from->context, status);
}

} // namespace

CountedText::~CountedText() {
    utext_close(opened_);
}

UText *CountedText::open(std::u16string_view text, StepBudget &budget) {
    source_ = {text, &budget};
    UErrorCode status = U_ZERO_ERROR;
    UText *const opened = setup(opened_, &source_, &status);
    if (U_FAILURE(status)) {
        return nullptr;
    }
    return opened_ = opened;
}

} // namespace nerlo::text
