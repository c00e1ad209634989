// Steps over the JSON of one line and leaves it as it is: what is not asked for is checked and
// passed, without a copy. Bytes of UTF-8 in strings are not looked at; see checkUtf8().
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace nerlo::cli {

// A line that cannot be worked on. The message holds nothing of its texts.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Throws BadLine unless the bytes of `line` from `begin` to `end` are UTF-8.
void checkUtf8(std::string_view line, std::size_t begin, std::size_t end);

// Every function throws BadLine at the first byte that JSON does not allow (RFC 8259; no "NaN").
// Values may be nested to any depth. A byte order mark in front of the line is passed.
class JsonCursor {
  public:
    explicit JsonCursor(std::string_view line);

    // The first byte of what comes next, behind blanks; 0 at the end of the line.
    char peek();
    // Where that byte is.
    std::size_t place() const { return at_; }

    // The bytes of the value that comes next.
    std::string_view value();
    // Those of a string, with its quotes and escapes.
    std::string_view string();
    // Calls `take` for each member of the object that comes next, with the name as string() gives
    // it; `take` must step over the member's value. The same for the items of an array. Afterwards
    // the last byte that was passed is the closing bracket.
    template <class Take>
    void members(Take take) {
        if (enter('{', '}')) {
            do {
                take(memberName());
            } while (goesOn('}'));
        }
    }
    template <class Take>
    void items(Take take) {
        if (enter('[', ']')) {
            do {
                take();
            } while (goesOn(']'));
        }
    }
    // Nothing but blanks may be left.
    void finish();

  private:
    [[noreturn]] void fail() const;
    bool isDigit() const;
    void step(char expected);
    bool enter(char open, char close); // false for an empty one, which is then passed
    bool goesOn(char close);           // false when the bracket is closed
    std::string_view memberName();
    void escape();
    void digits();
    void number();
    void word();

    std::string_view line_;
    std::size_t at_ = 0;
};

} // namespace nerlo::cli
