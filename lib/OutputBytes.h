// Bytes in memory of malloc(), which a caller in C is given.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>

namespace nerlo::lib {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

// Throws std::bad_alloc where there is no memory, and then is as it was.
class OutputBytes {
  public:
    std::size_t size() const { return size_; }

    void reserve(std::size_t capacity);
    void append(std::string_view bytes);
    // In UTF-8; an unpaired surrogate becomes U+FFFD.
    void append(std::u16string_view text);

    // What has been put in, with a zero byte behind it; the caller's, for free(). Nothing is left
    // here.
    char *release();

  private:
    std::span<char> room(); // what is left, without the place of the zero byte
    void grow(std::size_t least);

    std::unique_ptr<char, Free> bytes_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0; // of bytes_, with the zero byte
};

} // namespace nerlo::lib
