// Arguments as they were given. The parser has a syntax of its own: "[a,b]" is a list of two, "++"
// ends a command, and "--" behind a file hides the files that follow from the command. An argument
// that begins like one of these is handed to it with a mark in front.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace nerlo::cli {

// The arguments behind the program's name, with marks, in the reverse order that the parser takes.
std::vector<std::string> markedArguments(std::span<char *const> arguments);

// Takes the mark away from whatever the options of `app` and of its commands are given.
void unmarkValues(CLI::App &app);

// The text without any mark, for messages.
std::string withoutMarks(std::string text);

} // namespace nerlo::cli
