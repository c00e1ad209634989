#include "cli/UnpackedInput.h"

#include "cli/Failure.h"

#include <algorithm>
#include <new>
#include <optional>

#include <zlib.h>
#include <zstd.h>

namespace nerlo::cli {

namespace {

constexpr std::size_t roomSize = 64 * 1024;

} // namespace

class UnpackedInput::Unpacker {
  public:
    Unpacker() = default;
    virtual ~Unpacker() = default;
    Unpacker(const Unpacker &) = delete;
    Unpacker &operator=(const Unpacker &) = delete;

    // Takes bytes from the front of `packed`, which may be empty, and returns how many it made of
    // what it has taken; nothing when the bytes are damaged.
    virtual std::optional<std::size_t> unpack(std::string_view &packed, char *data,
                                              std::size_t size) = 0;
    // Nothing is left open, so that the input may end here.
    virtual bool mayEnd() const = 0;
};

namespace {

class Gzip : public UnpackedInput::Unpacker {
  public:
    Gzip() {
        constexpr int gzipAlone = 16;
        if (inflateInit2(&stream_, MAX_WBITS + gzipAlone) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~Gzip() override { inflateEnd(&stream_); }
    Gzip(const Gzip &) = delete;
    Gzip &operator=(const Gzip &) = delete;

    std::optional<std::size_t> unpack(std::string_view &packed, char *data,
                                      std::size_t size) override {
        if (ended_ && !packed.empty()) {
            inflateReset(&stream_);
            ended_ = false;
        }
        // The library does not write to its input.
        stream_.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
        stream_.avail_in = static_cast<uInt>(packed.size());
        stream_.next_out = reinterpret_cast<Bytef *>(data);
        stream_.avail_out = static_cast<uInt>(std::min<std::size_t>(size, roomSize));
        const std::size_t room = stream_.avail_out;
        const int result = ended_ ? Z_BUF_ERROR : inflate(&stream_, Z_NO_FLUSH);
        packed.remove_prefix(packed.size() - stream_.avail_in);
        ended_ = ended_ || result == Z_STREAM_END;
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
            return std::nullopt;
        }
        return room - stream_.avail_out;
    }
    bool mayEnd() const override { return ended_; }

  private:
    z_stream stream_{};
    bool ended_ = false;
};

class Zstd : public UnpackedInput::Unpacker {
  public:
    std::optional<std::size_t> unpack(std::string_view &packed, char *data,
                                      std::size_t size) override {
        ZSTD_inBuffer from{packed.data(), packed.size(), 0};
        ZSTD_outBuffer to{data, size, 0};
        // A window of more than 128 MiB is an error to it.
        const std::size_t result = ZSTD_decompressStream(context_.get(), &to, &from);
        if (ZSTD_isError(result) != 0) {
            return std::nullopt;
        }
        if (from.pos != 0 || to.pos != 0) { // at the end it asks for the next frame's head
            ended_ = result == 0;
        }
        packed.remove_prefix(from.pos);
        return to.pos;
    }
    bool mayEnd() const override { return ended_; }

  private:
    struct Free {
        void operator()(ZSTD_DCtx *context) const { ZSTD_freeDCtx(context); }
    };
    std::unique_ptr<ZSTD_DCtx, Free> context_{ZSTD_createDCtx()};
    bool ended_ = false;
};

template <class Kind>
std::unique_ptr<UnpackedInput::Unpacker> make() {
    return std::make_unique<Kind>();
}

struct Format {
    std::string_view magic;
    std::string_view suffix;
    const char *title;
    std::unique_ptr<UnpackedInput::Unpacker> (*make)();
};

constexpr Format formats[] = {{"\x1F\x8B", ".gz", "gzip", make<Gzip>},
                              {"\x28\xB5\x2F\xFD", ".zst", "zstd", make<Zstd>}};

} // namespace

UnpackedInput::UnpackedInput(const std::string &file, Progress &progress)
    : file_(file)
    , name_(nameOf(file))
    , input_(file)
    , progress_(progress)
    , room_(std::make_unique_for_overwrite<char[]>(roomSize)) {}

UnpackedInput::~UnpackedInput() = default;

bool UnpackedInput::fill() {
    std::copy(packed_.begin(), packed_.end(), room_.get());
    const std::size_t count = readSome(input_.descriptor(), room_.get() + packed_.size(),
                                       roomSize - packed_.size(), name_);
    packed_ = {room_.get(), packed_.size() + count};
    progress_.addRead(count);
    return count != 0;
}

// Reads until the first bytes are known to be one of the formats, or none.
void UnpackedInput::recognise() {
    const auto mayBecome = [this](const Format &format) {
        return packed_.size() < format.magic.size() && format.magic.starts_with(packed_);
    };
    while (std::ranges::any_of(formats, mayBecome) && fill()) {
    }
    for (const Format &format : formats) {
        if (packed_.starts_with(format.magic)) {
            unpacker_ = format.make();
        } else if (file_.ends_with(format.suffix)) {
            throw Failure(ExitStatus::ioFailed, name_ + ": not in the format of " + format.title);
        }
    }
}

std::size_t UnpackedInput::readPlain(char *data, std::size_t size) {
    if (packed_.empty()) {
        const std::size_t count = readSome(input_.descriptor(), data, size, name_);
        progress_.addRead(count);
        return count;
    }
    const std::size_t count = packed_.copy(data, size);
    packed_.remove_prefix(count);
    return count;
}

std::size_t UnpackedInput::read(char *data, std::size_t size) {
    if (!begun_) {
        begun_ = true;
        recognise();
    }
    if (!unpacker_) {
        return readPlain(data, size);
    }
    for (;;) {
        const auto count = unpacker_->unpack(packed_, data, size);
        if (!count) {
            throw Failure(ExitStatus::ioFailed, name_ + ": its compressed data is damaged");
        }
        if (*count != 0) {
            return *count;
        }
        if (packed_.empty() && !fill()) {
            if (!unpacker_->mayEnd()) {
                throw Failure(ExitStatus::ioFailed, name_ + ": its compressed data is cut off");
            }
            return 0;
        }
    }
}

} // namespace nerlo::cli
