// Putting a cleaned text back into its file.
#pragma once

#include "cli/Input.h"
#include "cli/Output.h"

#include <string>

namespace nerlo::cli {

// A file that had a line break at its end keeps one, of the kind that the clean text has: what is
// to be put behind that text. `reader` has read the file.
std::string endingFor(const CleanText &text, const TextReader &reader);

// Replaces the file's text; a byte order mark stays, and the ending. Throws Failure, and then the
// file is as it was.
void rewrite(const std::string &file, const TextReader &reader, CleanText text);

} // namespace nerlo::cli
