// Calls a clipboard as the program does, and waits for its answers.
#pragma once

#include "platform/Pasteboard.h"
#include "tests/Until.h"
#include "tests/fakes/MemoryMainQueue.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::test {

using Strings = std::vector<std::string>;

inline platform::PasteboardContent content(const Strings &formats, const std::string &bytes) {
    const auto shared = std::make_shared<const std::string>(bytes);
    platform::PasteboardContent made;
    for (const auto &format : formats) {
        made.push_back({format, {}, shared});
    }
    return made;
}

struct PasteboardUser {
    test::MemoryMainQueue &queue;
    std::unique_ptr<platform::Pasteboard> pasteboard;

    bool until(const std::function<bool()> &done) const { return test::until(queue, done); }
    bool untilCount(platform::ChangeCount count) const {
        return until([&] { return pasteboard->changeCount() == count; });
    }
    platform::PasteboardFormats formats() const {
        return answer<platform::PasteboardFormats>(
            [&](auto handler) { pasteboard->readFormats(handler); });
    }
    platform::PasteboardRead read(const platform::PasteboardRequest &request) const {
        const auto count = formats().changeCount;
        return answer<platform::PasteboardRead>(
            [&](auto handler) { pasteboard->read(count, request, handler); });
    }
    platform::PasteboardRead read(const Strings &wanted, std::size_t limit = 200 << 20) const {
        return read({{}, 0, wanted, limit});
    }
    std::string text(const std::string &format = "text/plain;charset=utf-8") const {
        const auto result = read({format});
        return result.content.size() == 1 ? *result.content[0].bytes : "(nothing)";
    }
    platform::PasteboardWrite write(const platform::PasteboardContent &what,
                                    std::optional<platform::ChangeCount> onlyOver = {}) const {
        return answer<platform::PasteboardWrite>(
            [&](auto handler) { pasteboard->write(what, onlyOver, handler); });
    }

  private:
    // Makes the call, and waits for what its handler is given.
    template <class Result>
    Result answer(const std::function<void(std::function<void(Result)>)> &call) const {
        std::optional<Result> result;
        call([&](Result got) { result = std::move(got); });
        EXPECT_TRUE(until([&] { return result.has_value(); }));
        return result.value_or(Result());
    }
};

} // namespace nerlo::test
