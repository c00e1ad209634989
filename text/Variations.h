// Which characters have variants that a selector behind them chooses.
//
// Any thread.
#pragma once

namespace nerlo::text {

// U+FE00 to U+FE0F and U+E0100 to U+E01EF. Mongolian has selectors of its own, which are not meant.
bool isVariationSelector(char32_t character);

// Whether the standard knows the sequence. Selectors from U+E0100 on stand in a register of its own
// that nobody carries along: with any unified ideograph they are taken to be in it.
bool isVariationSequence(char32_t base, char32_t selector);

} // namespace nerlo::text
