#include "lib/OutputBytes.h"

#include "text/Utf.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace nerlo::lib {

namespace {

constexpr std::size_t leastGrowth = 256;
constexpr std::size_t worthShrinking = 4096;

} // namespace

void OutputBytes::reserve(std::size_t capacity) {
    if (capacity >= capacity_) {
        char *const moved = static_cast<char *>(std::realloc(bytes_.get(), capacity + 1));
        if (!moved) {
            throw std::bad_alloc();
        }
        static_cast<void>(bytes_.release());
        bytes_.reset(moved);
        capacity_ = capacity + 1;
    }
}

void OutputBytes::grow(std::size_t least) {
    reserve(size_ + std::max({least, size_ / 2, leastGrowth}));
}

std::span<char> OutputBytes::room() {
    return {bytes_.get() + size_, capacity_ == 0 ? 0 : capacity_ - 1 - size_};
}

void OutputBytes::append(std::string_view bytes) {
    if (bytes.size() > room().size()) {
        grow(bytes.size());
    }
    if (!bytes.empty()) {
        std::memcpy(room().data(), bytes.data(), bytes.size());
        size_ += bytes.size();
    }
}

void OutputBytes::append(std::u16string_view text) {
    while (!text.empty()) {
        const std::size_t written = text::encodeUtf8(text, room());
        size_ += written;
        if (written == 0) {
            grow(text.size());
        }
    }
}

char *OutputBytes::release() {
    reserve(size_);
    char *const bytes = bytes_.release();
    bytes[size_] = '\0';
    if (capacity_ - size_ > worthShrinking) {
        // What a smaller block cannot be had for may stay as it is.
        char *const smaller = static_cast<char *>(std::realloc(bytes, size_ + 1));
        size_ = capacity_ = 0;
        return smaller ? smaller : bytes;
    }
    size_ = capacity_ = 0;
    return bytes;
}

} // namespace nerlo::lib
