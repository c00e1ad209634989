#include "cli/Input.h"

#include "cli/Failure.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::cli {

namespace {

constexpr std::size_t unknownSize = 64 * 1024; // first guess for a pipe
constexpr std::size_t readAtMost = 1 << 20;    // a piece, so that the progress moves
constexpr std::size_t blockSize = 128 * 1024;  // bytes decoded while they are in the cache

// The size that a regular file says it has, which is only a hint.
std::size_t sizeHint(int descriptor) {
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        return static_cast<std::size_t>(status.st_size);
    }
    return unknownSize;
}

template <class String>
void reserveIn(String &text, std::size_t size) {
    constexpr std::size_t slack = 64; // an operation may need a few more than its result
    constexpr std::size_t large = 4 << 20;
    try {
        text.reserve(size + slack);
    } catch (const std::exception &) {
        return; // the size that a file reports may be nonsense; reading will tell
    }
    const std::size_t bytes = text.capacity() * sizeof(typename String::value_type);
    if (bytes >= large) {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const auto address = reinterpret_cast<std::uintptr_t>(text.data());
        const std::uintptr_t begin = (address + page - 1) / page * page;
        // This is only a hint to the system, so failure does not matter.
        madvise(reinterpret_cast<void *>(begin), address + bytes - begin, MADV_HUGEPAGE);
    }
}

} // namespace

std::string nameOf(const std::string &file) {
    return file == "-" ? "standard input" : file;
}

std::string systemMessage(const std::string &name, int error) {
    return name + ": " + std::strerror(error);
}

InputFile::InputFile(const std::string &file)
    : descriptor_(STDIN_FILENO) {
    if (file == "-") {
        return;
    }
    do {
        descriptor_ = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    } while (descriptor_ < 0 && errno == EINTR);
    if (descriptor_ < 0) {
        throw Failure(ExitStatus::ioFailed, systemMessage(file, errno));
    }
}

InputFile::~InputFile() {
    if (descriptor_ != STDIN_FILENO) {
        close(descriptor_);
    }
}

std::size_t readSome(int descriptor, char *data, std::size_t size, const std::string &name) {
    for (;;) {
        const ssize_t count = read(descriptor, data, size);
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno == EAGAIN) { // another program has made the pipe or terminal not wait
            pollfd ready{.fd = descriptor, .events = POLLIN, .revents = 0};
            poll(&ready, 1, -1);
        } else if (errno != EINTR) {
            throw Failure(ExitStatus::ioFailed, systemMessage(name, errno));
        }
    }
}

Bytes readBytes(int descriptor, const std::string &name, Progress &progress) {
    Bytes bytes;
    std::size_t capacity = 0;
    // One byte more than expected, so that the end is seen without growing.
    std::size_t wanted = sizeHint(descriptor) + 1;
    for (;;) {
        if (bytes.size_ == capacity) {
            capacity = std::max(wanted, capacity * 2);
            char *grown = static_cast<char *>(std::realloc(bytes.data_.get(), capacity));
            if (!grown) {
                throw std::bad_alloc();
            }
            static_cast<void>(bytes.data_.release()); // realloc() has taken it over
            bytes.data_.reset(grown);
        }
        const std::size_t count = readSome(descriptor, bytes.data_.get() + bytes.size_,
                                           std::min(capacity - bytes.size_, readAtMost), name);
        if (count == 0) {
            return bytes;
        }
        bytes.size_ += count;
        progress.addRead(count);
    }
}

namespace {

bool statusOf(const std::string &file, struct stat &status) {
    return (file == "-" ? fstat(STDIN_FILENO, &status) : stat(file.c_str(), &status)) == 0;
}

} // namespace

bool canBeChecked(const std::string &file) {
    struct stat status {};
    return !statusOf(file, status) || S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
}

bool isOutput(const std::string &file) {
    struct stat status {};
    struct stat output {};
    return statusOf(file, status) && fstat(STDOUT_FILENO, &output) == 0 &&
           S_ISREG(status.st_mode) && status.st_dev == output.st_dev &&
           status.st_ino == output.st_ino;
}

TextReader::TextReader(const std::string &file, Progress &progress)
    : name_(nameOf(file))
    , progress_(progress)
    , input_(file)
    , block_(std::make_unique_for_overwrite<char[]>(blockSize)) {}

std::size_t TextReader::sizeHint() const {
    return cli::sizeHint(input_.descriptor());
}

bool TextReader::readBytes(std::string_view &bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::size_t count = 0;
    bool ended = false;
    do {
        const std::size_t more =
            readSome(input_.descriptor(), block_.get() + count, blockSize - count, name_);
        count += more;
        ended = more == 0;
    } while (!ended && bytes_ == 0 && count < mark.size() &&
             mark.starts_with(std::string_view(block_.get(), count)));
    bytes = {block_.get(), count};
    if (bytes_ == 0 && bytes.starts_with(mark)) {
        byteOrderMark_ = true;
        bytes.remove_prefix(mark.size());
    }
    bytes_ += count;
    progress_.addRead(count);
    ending_.append(bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 2)));
    ending_.erase(0, ending_.size() - std::min<std::size_t>(ending_.size(), 2));
    return !ended;
}

void TextReader::refuse(std::size_t invalidAt) const {
    throw Failure(ExitStatus::ioFailed, name_ + ": invalid UTF-8 at byte " +
                                            std::to_string(invalidAt + (byteOrderMark_ ? 3 : 0)));
}

bool TextReader::appendBlock(std::u16string &text) {
    std::string_view bytes;
    const bool more = readBytes(bytes);
    try {
        decoder_.decode(bytes, text);
    } catch (const std::bad_alloc &) {
        throw Failure(ExitStatus::ioFailed, systemMessage(name_, ENOMEM));
    }
    if (!more) {
        decoder_.finish();
    }
    if (decoder_.invalidAt()) {
        refuse(*decoder_.invalidAt());
    }
    return more;
}

bool TextReader::readBlock(std::u16string &text) {
    text.clear();
    return appendBlock(text);
}

void TextReader::check() {
    const off_t begin = lseek(input_.descriptor(), 0, SEEK_CUR);
    text::Utf8Checker checker;
    for (bool more = true; more;) {
        std::string_view bytes;
        more = readBytes(bytes);
        while (!bytes.empty()) {
            checker.next(bytes);
        }
        if (!more) {
            checker.finish();
        }
        if (checker.invalidAt()) {
            refuse(*checker.invalidAt());
        }
    }
    if (begin >= 0 && lseek(input_.descriptor(), begin, SEEK_SET) < 0) {
        throw Failure(ExitStatus::ioFailed, systemMessage(name_, errno));
    }
}

std::string_view TextReader::finalBreak() const {
    const std::string_view ending = ending_;
    if (ending == "\r\n") {
        return ending;
    }
    const bool isBreak = ending.ends_with('\n') || ending.ends_with('\r');
    return ending.substr(ending.size() - (isBreak ? 1 : 0));
}

std::u16string TextReader::readAll() {
    std::u16string text;
    reserveIn(text, sizeHint());
    while (appendBlock(text)) {
    }
    return text;
}

void reserve(std::string &text, std::size_t bytes) {
    reserveIn(text, bytes);
}

} // namespace nerlo::cli
