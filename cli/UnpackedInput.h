// An input that may be compressed with gzip or zstd, as its first bytes tell.
#pragma once

#include "cli/Input.h"
#include "cli/Progress.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace nerlo::cli {

class UnpackedInput {
  public:
    // "-" is standard input. Throws Failure when the file cannot be opened.
    UnpackedInput(const std::string &file, Progress &progress);
    ~UnpackedInput();
    UnpackedInput(const UnpackedInput &) = delete;
    UnpackedInput &operator=(const UnpackedInput &) = delete;

    // The next bytes, unpacked, as soon as there are some: 0 at the end of the input. Several
    // packed parts in a row count as one. Throws Failure when the file cannot be read, is damaged
    // or cut off, or is called .gz or .zst and is not that. What is unpacked is never held as a
    // whole, however small its packed form.
    std::size_t read(char *data, std::size_t size);

    // Takes one format apart.
    class Unpacker;

  private:
    bool fill(); // false at the end of the file
    void recognise();
    std::size_t readPlain(char *data, std::size_t size);

    const std::string file_;
    const std::string name_;
    const InputFile input_;
    Progress &progress_;
    std::unique_ptr<char[]> room_;
    std::string_view packed_; // read and not yet used; lies in room_
    bool begun_ = false;
    std::unique_ptr<Unpacker> unpacker_; // null for plain bytes
};

} // namespace nerlo::cli
