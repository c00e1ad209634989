// Reading inputs, whole or in pieces. Bytes are UTF-8; texts are UTF-16.
#pragma once

#include "cli/Progress.h"
#include "text/Utf.h"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace nerlo::cli {

// What one input held.
class Bytes {
  public:
    std::string_view view() const { return {data_.get(), size_}; }

  private:
    friend Bytes readBytes(int descriptor, const std::string &name, Progress &progress);

    struct Free {
        void operator()(char *data) const { std::free(data); }
    };
    // Grown with realloc(), which moves large blocks by their page tables instead of copying them.
    std::unique_ptr<char, Free> data_;
    std::size_t size_ = 0;
};

// An open file; "-" is standard input.
class InputFile {
  public:
    // Throws Failure when the file cannot be opened.
    explicit InputFile(const std::string &file);
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    int descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

// What messages call the file: "standard input" for "-", else its name.
std::string nameOf(const std::string &file);

// "NAME: " and the system's words for `error`, an errno value.
std::string systemMessage(const std::string &name, int error);

// read(2) again and again until something arrives: 0 at the end of the input. Throws Failure,
// naming the input `name`.
std::size_t readSome(int descriptor, char *data, std::size_t size, const std::string &name);

// Everything up to the end of the input. Throws as readSome().
Bytes readBytes(int descriptor, const std::string &name, Progress &progress);

// Whether the name stands for a file that can be read twice, or for one that cannot be read at all;
// of a pipe and the like every byte comes once.
bool canBeChecked(const std::string &file);
// Whether it is the file that standard output goes to.
bool isOutput(const std::string &file);

// A text that arrives in blocks. A byte order mark in front is no part of it. Every function throws
// Failure when the file cannot be read or is not well-formed UTF-8.
class TextReader {
  public:
    // "-" is standard input.
    TextReader(const std::string &file, Progress &progress);

    // The size of the whole input in bytes, as far as it is known; the text has at most as many
    // units.
    std::size_t sizeHint() const;
    // The whole text.
    std::u16string readAll();
    // The next piece of it, as it comes, in place of what is in `text`; false at the end, where
    // there may still be one.
    bool readBlock(std::u16string &text);
    // The same in UTF-8 that nobody has looked at: a character may be cut, or bad. Good up to the
    // next call.
    bool readBytes(std::string_view &bytes);
    // For the reader of the bytes: throws the Failure that says where they are not UTF-8.
    [[noreturn]] void refuse(std::size_t invalidAt) const;
    // Reads a file that can be read twice to its end and goes back to the beginning.
    void check();
    // Bytes read so far.
    std::size_t bytes() const { return bytes_; }
    // About what has been read so far: whether a byte order mark was in front, and the line break
    // at the end ("\n", "\r\n", "\r"), empty where there is none.
    bool byteOrderMark() const { return byteOrderMark_; }
    std::string_view finalBreak() const;

  private:
    // Appends the next block to `text`; false at the end of the text.
    bool appendBlock(std::u16string &text);

    std::string name_;
    Progress &progress_;
    InputFile input_;
    text::Utf8Decoder decoder_;
    std::unique_ptr<char[]> block_;
    std::size_t bytes_ = 0;
    bool byteOrderMark_ = false;
    std::string ending_; // the last two bytes
};

// Memory for so many bytes; a large block is in large pages, whose first use is several times
// cheaper.
void reserve(std::string &text, std::size_t bytes);

} // namespace nerlo::cli
