// ICU's break iterators, kept from one text to the next.
#pragma once

#include <unicode/ubrk.h>

#include <string>

namespace nerlo::text {

// The calling thread's iterator of that kind, to be given a text; it is the caller's until the next
// call. Opening one costs more than segmenting a short text. Null if ICU cannot make one.
UBreakIterator *breakIterator(UBreakIteratorType kind, const std::string &locale);

} // namespace nerlo::text
