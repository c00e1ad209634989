// Cleaning that leaves structure alone: code, tables, the marks and indents of lists and of
// quotations, and addresses inside sentences come out as they went in.
#pragma once

#include "engine/Operations.h"

#include <span>
#include <string>

namespace nerlo::engine {

// The steps in their order, on the prose of the text alone. A paragraph, a list item and a
// quotation are each cleaned as a text of their own, and their lines stay apart; only a paragraph
// that was wrapped has its lines joined. Steps that take the whole text still see all of it.
//
// A ">" or a bullet goes only where it marks the beginning of a line, a ">" only from quoted
// paragraphs that are nothing but prose; their lines are joined as those of others. Spaces next to
// the line breaks of prose go, however many there are. The marks of Markdown go last, because those
// of headings, lists and code tell what is structure.
std::u16string runGuarded(std::u16string text, std::span<const Operation *const> steps,
                          const CleaningContext &context, std::size_t pieceSize);

// Which of the steps run on the prose alone; those before and behind them see the whole text.
std::span<const Operation *const> guardedSteps(std::span<const Operation *const> steps);

} // namespace nerlo::engine
