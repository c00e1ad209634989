#include "tests/fakes/MemoryPasteboard.h"

#include "clipboard/PasteboardFormats.h"

#include <algorithm>

namespace nerlo::test {

namespace {

std::string joined(const std::vector<std::string> &names) {
    std::string line;
    for (const auto &name : names) {
        line += line.empty() ? name : "," + name;
    }
    return line;
}

std::vector<std::string> namesOf(const platform::PasteboardContent &content) {
    std::vector<std::string> names;
    for (const auto &data : content) {
        names.push_back(data.format);
    }
    return names;
}

} // namespace

void MemoryPasteboard::copy(platform::PasteboardContent content, const MemoryOwner &owner) {
    replace(std::move(content), owner);
}

void MemoryPasteboard::copyText(std::string utf8, const MemoryOwner &owner) {
    replace(clipboard::plainTextContent(std::move(utf8)), owner);
}

void MemoryPasteboard::empty() {
    replace({}, {});
}

std::string MemoryPasteboard::bytes(std::string_view format) const {
    const auto found = std::ranges::find(content_, format, &platform::PasteboardData::format);
    return found == content_.end() ? std::string() : *found->bytes;
}

std::vector<std::string> MemoryPasteboard::formatNames() const {
    return namesOf(content_);
}

void MemoryPasteboard::replace(platform::PasteboardContent content, const MemoryOwner &owner) {
    content_ = std::move(content);
    owner_ = owner;
    ++changeCount_;
    if (notifies_ && changed_) {
        mainQueue_.post(changed_);
    }
}

void MemoryPasteboard::ask(std::function<void(platform::PasteboardStatus)> answer) {
    const auto status = owner_.delay >= platform::pasteboardStallLimit
                            ? platform::PasteboardStatus::timedOut
                            : platform::PasteboardStatus::done;
    const auto delay = std::min<platform::MainQueue::Clock::duration>(
        owner_.delay, platform::pasteboardStallLimit);
    auto late = [alive = std::weak_ptr(alive_), answer = std::move(answer), status] {
        if (alive.lock()) {
            answer(status);
        }
    };
    if (delay > delay.zero()) {
        mainQueue_.postAfter(delay, std::move(late));
    } else {
        mainQueue_.post(std::move(late));
    }
}

void MemoryPasteboard::readFormats(FormatsHandler handler) {
    log.emplace_back("formats");
    ask([this, of = changeCount_, names = formatNames(),
         handler = std::move(handler)](platform::PasteboardStatus status) {
        if (status == platform::PasteboardStatus::done && of != changeCount_) {
            status = platform::PasteboardStatus::changed;
        }
        handler(
            {status, of, status == platform::PasteboardStatus::done ? names : decltype(names)()});
    });
}

void MemoryPasteboard::read(platform::ChangeCount of, platform::PasteboardRequest request,
                            ReadHandler handler) {
    ask([this, of, request = std::move(request),
         handler = std::move(handler)](platform::PasteboardStatus status) {
        if (status == platform::PasteboardStatus::done && of != changeCount_) {
            status = platform::PasteboardStatus::changed;
        }
        const auto reading = std::make_shared<platform::PasteboardReading>(request);
        if (status != platform::PasteboardStatus::done || deliver(*reading)) {
            handler(reading->result(status));
        } else {
            mainQueue_.postAfter(platform::pasteboardOthersLimit,
                                 [reading, handler] { handler(reading->late()); });
        }
    });
}

bool MemoryPasteboard::deliver(platform::PasteboardReading &reading) {
    std::vector<std::string> asked;
    while (const auto place = reading.next()) {
        const auto &format = asked.emplace_back(reading.format(*place));
        const auto found = std::ranges::find(content_, format, &platform::PasteboardData::format);
        if (found == content_.end()) {
            reading.failed(platform::PasteboardReading::Failure::refused);
        } else if (found->bytes->size() > *reading.room()) {
            reading.failed(platform::PasteboardReading::Failure::tooLarge);
        } else if (std::ranges::find(owner_.silent, format) == owner_.silent.end()) {
            *reading.room() -= found->bytes->size();
            reading.arrived(*place, *found);
        }
    }
    log.push_back("read " + joined(asked));
    return reading.finished();
}

void MemoryPasteboard::write(platform::PasteboardContent content,
                             std::optional<platform::ChangeCount> onlyOver, WriteHandler handler) {
    log.push_back("write " + joined(namesOf(content)));
    mainQueue_.post([this, alive = std::weak_ptr(alive_), content = std::move(content), onlyOver,
                     handler = std::move(handler)]() mutable {
        if (!alive.lock()) {
            return;
        }
        if (onlyOver && *onlyOver != changeCount_) {
            log.emplace_back("refused");
            handler({platform::PasteboardStatus::changed, 0});
        } else {
            log.emplace_back("written");
            replace(std::move(content), {});
            handler({platform::PasteboardStatus::done, changeCount_});
        }
    });
}

} // namespace nerlo::test
