// The language of a text.
#pragma once

#include <string_view>

namespace nerlo::engine {

// The language ("de") whose commonest words stand in a text, of those that this knows, or `likely`
// unless another one shows clearly. UTF-16; only the beginning of a long text is looked at. Any
// thread.
std::string_view languageOf(std::u16string_view text, std::string_view likely);

// Whether it is one of the commonest words of any of these languages; in lower case.
bool isCommonWord(std::u16string_view word);

} // namespace nerlo::engine
