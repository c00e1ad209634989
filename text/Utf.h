// UTF-8 to UTF-16 and back.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::text {

struct Utf16Result {
    std::u16string text;
    // Set when the input is not well-formed UTF-8 (overlong forms, surrogates and values above
    // U+10FFFF included): the offset in bytes of the first sequence that is not. `text` then holds
    // what came before it.
    std::optional<std::size_t> invalidAt;
};

Utf16Result utf8ToUtf16(std::string_view bytes);

// An unpaired surrogate becomes U+FFFD.
std::string utf16ToUtf8(std::u16string_view text);
void appendUtf8(std::string &to, std::u16string_view text);

// UTF-8 that arrives in pieces, cut anywhere. One thread at a time.
class Utf8Decoder {
  public:
    // Appends what the bytes so far say to `to`. Once a sequence is not well-formed, nothing more
    // is appended.
    void decode(std::string_view bytes, std::u16string &to);
    // To be called at the end of the input, where a sequence may be left incomplete.
    void finish();

    // As Utf16Result::invalidAt, over all the pieces.
    std::optional<std::size_t> invalidAt() const { return invalidAt_; }

  private:
    std::string pending_;      // the beginning of a sequence
    std::size_t consumed_ = 0; // bytes before it
    std::optional<std::size_t> invalidAt_;
};

// The same without decoding.
class Utf8Checker {
  public:
    // Takes bytes from the front of `bytes`, and gives those that with the ones before make whole
    // characters; good up to the next call. Repeat until there are none left.
    std::string_view next(std::string_view &bytes);
    void finish();
    std::optional<std::size_t> invalidAt() const { return invalidAt_; }

  private:
    std::string pending_;      // the beginning of a sequence
    std::string completed_;    // what became of it
    std::size_t consumed_ = 0; // bytes before it
    std::optional<std::size_t> invalidAt_;
};

// Takes from the front of `text` what surely fits into `room`, which must have room for four
// bytes, and returns the number of bytes written. Repeat until the text is empty. An unpaired
// surrogate becomes U+FFFD.
std::size_t encodeUtf8(std::u16string_view &text, std::span<char> room);

} // namespace nerlo::text
