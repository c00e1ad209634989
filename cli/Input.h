// Reading whole inputs. Bytes are UTF-8; texts are UTF-16.
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

// A text that arrives in blocks. Every function throws Failure when the file cannot be read or is
// not well-formed UTF-8.
class TextReader {
  public:
    // "-" is standard input.
    TextReader(const std::string &file, Progress &progress);

    // What the whole has, as far as that is known, in bytes and so at most in units.
    std::size_t sizeHint() const;
    // Appends the next block to `text`; false at the end of the text.
    bool readBlock(std::u16string &text);
    // Bytes read so far.
    std::size_t bytes() const { return bytes_; }

  private:
    std::string name_;
    Progress &progress_;
    InputFile input_;
    text::Utf8Decoder decoder_;
    std::unique_ptr<char[]> block_;
    std::size_t bytes_ = 0;
};

// Room for so many bytes or units, in large pages if it is much: that makes the first use several
// times cheaper.
void reserve(std::u16string &text, std::size_t units);
void reserve(std::string &text, std::size_t bytes);

// The text of a file or, for "-", of standard input. Throws Failure when it cannot be read or is
// not well-formed UTF-8. The size in bytes goes to `*bytes`.
std::u16string readText(const std::string &file, Progress &progress, std::size_t *bytes);

} // namespace nerlo::cli
