// Writing results. Texts are UTF-16 and written as UTF-8, an unpaired surrogate as U+FFFD.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace nerlo::cli {

// A text, or the same as UTF-8.
using CleanText = std::variant<std::u16string, std::string>;

// Thrown when the reader of standard output has closed it: nobody wants the rest, so the program
// ends without a message.
struct ClosedPipe {};

// All of it to standard output. Throws ClosedPipe or Failure.
void writeOutput(std::string_view bytes);
// The texts one after another, in blocks, so that no second copy of a text is needed. Where one
// does not end with a line break and another follows, one is put between them.
void writeOutput(std::span<const CleanText> texts);

// Standard output for texts that come in pieces, with the same line breaks between them.
class StreamedOutput {
  public:
    // To be called before each text.
    void nextText() { begun_ = false; }
    // Throws ClosedPipe or Failure.
    void write(std::string_view bytes);

  private:
    bool begun_ = false;    // the text at hand
    bool lineOpen_ = false; // what was written does not end with a line break
};
// Whether standard output is a file, on which nobody waits.
bool outputIsFile();

// Gives standard output back; some file systems tell only now that a write failed. Throws Failure.
void closeOutput();

// Whether the last unit is a line feed or a carriage return.
bool endsWithBreak(const CleanText &text);
// The last line break in the text, "\n", "\r\n" or "\r"; empty where there is none.
std::string_view lastBreak(const CleanText &text);

// Puts the parts, one behind the other, in the place of a regular file: written to a temporary file
// beside it, which then takes its name, so that the file holds the old text or the new one at any
// moment. Mode and, where allowed, owner are kept; a symbolic link is followed and stays. A file
// that holds the parts already is not touched. Throws Failure, and then the file is as it was.
void replaceFile(const std::string &file, std::span<const CleanText> parts);

} // namespace nerlo::cli
