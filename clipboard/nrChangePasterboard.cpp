#include "clipboard/nrChangePasterboard.h"

#include "clipboard/PasteboardFormats.h"
#include "engine/Operations.h"
#include "text/Utf.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <vector>

namespace nerlo::clipboard {

using platform::PasteboardFormats;
using platform::PasteboardRead;
using platform::PasteboardStatus;
using platform::PasteboardWrite;

namespace {

nrChangePasterboard *shared = nullptr;

// What says whether content is a secret takes a few letters.
constexpr std::size_t secrecyLimit = 256;

} // namespace

// One clean on its way from the clipboard to the worker thread.
struct nrChangePasterboard::Clean {
    std::shared_ptr<const engine::CleaningOptions> options;
    std::optional<std::int32_t> operation; // none: the whole pipeline
    PasteboardFormats offered{};
    platform::PasteboardData text{};
    std::shared_ptr<const platform::PasteboardContent> original{};
    engine::CleaningReport report{};

    bool writes() const { return operation != engine::statisticsOperation; }
};

nrChangePasterboard::nrChangePasterboard(platform::Pasteboard &pasteboard_,
                                         platform::MainQueue &mainQueue_,
                                         platform::WorkerQueue &workerQueue_, std::string locale_)
    : pasteboard(pasteboard_)
    , mainQueue(mainQueue_)
    , workerQueue(workerQueue_)
    , locale(std::move(locale_)) {
    shared = this;
}

nrChangePasterboard::~nrChangePasterboard() {
    if (shared == this) {
        shared = nullptr;
    }
}

nrChangePasterboard &nrChangePasterboard::sharedInstance() {
    assert(shared);
    return *shared;
}

void nrChangePasterboard::setAllBools(const storage::PropertyDictionary &dictionary) {
    auto filled = std::make_shared<engine::CleaningOptions>();
    filled->setAllBools(dictionary);
    options = std::move(filled);
}

void nrChangePasterboard::changePasteboard() {
    start(std::nullopt);
}

void nrChangePasterboard::changePasteboardWithKeys(std::int32_t index) {
    start(index);
}

void nrChangePasterboard::start(std::optional<std::int32_t> operation) {
    auto clean = std::make_shared<Clean>(Clean{options, operation});
    readHarmlessFormats([this, clean](std::optional<PasteboardFormats> offered) {
        if (!offered || clipboard::offersUrl(offered->formats)) {
            return;
        }
        clean->offered = std::move(*offered);
        if (const auto *format = clipboard::bestTextFormat(clean->offered.formats)) {
            readText(clean, *format);
        }
    });
}

void nrChangePasterboard::readHarmlessFormats(
    std::function<void(std::optional<PasteboardFormats>)> next) {
    pasteboard.readFormats(whileAlive([this, next = std::move(next)](PasteboardFormats offered) {
        if (offered.status != PasteboardStatus::done || offered.formats.empty() ||
            clipboard::marksSecret(offered.formats)) {
            next(std::nullopt);
            return;
        }
        const auto *format = clipboard::secrecyFormat(offered.formats);
        if (!format) {
            next(std::move(offered));
            return;
        }
        const auto count = offered.changeCount;
        std::vector<std::string> wanted{*format};
        pasteboard.read(count, std::move(wanted), secrecyLimit,
                        whileAlive([next, offered = std::move(offered)](PasteboardRead state) {
                            // What cannot be read may be a secret.
                            const bool harmless = !state.content.empty() &&
                                                  !clipboard::saysSecret(*state.content[0].bytes);
                            next(harmless ? std::optional(offered) : std::nullopt);
                        }));
    }));
}

void nrChangePasterboard::readText(std::shared_ptr<Clean> clean, const std::string &format) {
    pasteboard.read(clean->offered.changeCount, {format}, cleanedTextLimit,
                    whileAlive([this, clean](PasteboardRead read) {
                        if (read.content.empty() || read.content[0].bytes->empty()) {
                            return;
                        }
                        clean->text = std::move(read.content[0]);
                        const bool kept = clean->writes() &&
                                          clean->offered.changeCount != ownCount &&
                                          clean->text.bytes->size() <= originalLimit;
                        if (kept) {
                            readOriginal(clean);
                        } else {
                            runOnWorker(clean);
                        }
                    }));
}

// The other formats go when the text is written back, so they are read before. What the owner does
// not deliver in time is lost to `restore`, but does not keep the text from being cleaned.
void nrChangePasterboard::readOriginal(std::shared_ptr<Clean> clean) {
    auto others = clean->offered.formats;
    std::erase(others, clean->text.format);
    const auto left = originalLimit - clean->text.bytes->size();
    pasteboard.read(clean->offered.changeCount, std::move(others), left,
                    whileAlive([this, clean](PasteboardRead read) {
                        if (read.status == PasteboardStatus::changed ||
                            read.status == PasteboardStatus::unavailable) {
                            return;
                        }
                        auto original = std::move(read.content);
                        original.push_back(clean->text);
                        const auto &order = clean->offered.formats;
                        std::ranges::sort(original, {}, [&](const auto &data) {
                            return std::ranges::find(order, data.format) - order.begin();
                        });
                        clean->original = std::make_shared<const platform::PasteboardContent>(
                            std::move(original));
                        runOnWorker(clean);
                    }));
}

void nrChangePasterboard::runOnWorker(std::shared_ptr<Clean> clean) {
    const auto show = whileAlive(
        [this, clean](const engine::TextStatistics &counts) { showCounts(counts, clean->report); });
    const auto tell = whileAlive([this](const engine::CleaningReport &report) {
        if (reportHandler_) {
            reportHandler_(report);
        }
    });
    const auto write = whileAlive([this](WriteBack result) { queueWriteBack(std::move(result)); });
    workerQueue.post([clean, show, tell, write, &queue = mainQueue, context_locale = locale] {
        const auto post = [&queue](auto handler, auto value) {
            queue.post(
                [handler, value = std::move(value)]() mutable { handler(std::move(value)); });
        };
        try {
            auto text = clipboard::decodeText(clean->text);
            if (!text) {
                return;
            }
            clean->text.bytes = nullptr;
            const engine::CleaningContext context{
                .options = *clean->options, .locale = context_locale, .report = &clean->report};
            if (!clean->operation) {
                text = engine::runPipeline(std::move(*text), context);
            } else if (clean->writes()) {
                text = engine::runOperation(*clean->operation, std::move(*text), context);
            }
            if (clean->writes()) {
                post(tell, clean->report);
            }
            if (!clean->writes() || (!clean->operation && clean->options->udStatistics)) {
                post(show, engine::countAll(*text, context.locale));
            }
            if (clean->writes()) {
                auto content = clipboard::plainTextContent(text::utf16ToUtf8(*text));
                post(write, WriteBack{clean->offered.changeCount, std::move(content),
                                      std::move(clean->original)});
            }
        } catch (const std::exception &) {
            // Out of memory, in practice. The clipboard stays as it is.
        }
    });
}

void nrChangePasterboard::newCountWindow(std::u16string text) {
    const auto show =
        whileAlive([this](const engine::TextStatistics &counts) { showCounts(counts, {}); });
    workerQueue.post([show, text = std::move(text), &queue = mainQueue, counted_locale = locale] {
        queue.post([show, counts = engine::countAll(text, counted_locale)] { show(counts); });
    });
}

void nrChangePasterboard::showCounts(const engine::TextStatistics &counts,
                                     const engine::CleaningReport &report) {
    countController = nullptr;
    if (!makeCountWindow) {
        return;
    }
    countController = makeCountWindow();
    countController->countToTextFields(engine::integerToString(counts.characters, locale),
                                       engine::integerToString(counts.spaces, locale),
                                       engine::integerToString(counts.words, locale),
                                       engine::integerToString(counts.paragraphs, locale));
    if (!report.empty()) {
        countController->tellReport(report);
    }
    countController->showWindow();
}

void nrChangePasterboard::readClipboardText(
    std::function<void(std::optional<std::u16string>)> handler) {
    readHarmlessFormats([this, handler = std::move(handler)](
                            const std::optional<PasteboardFormats> &offered) {
        const auto *format = offered && !clipboard::offersUrl(offered->formats)
                                 ? clipboard::bestTextFormat(offered->formats)
                                 : nullptr;
        if (!format) {
            handler(std::nullopt);
            return;
        }
        pasteboard.read(offered->changeCount, {*format}, cleanedTextLimit,
                        whileAlive([handler](const PasteboardRead &read) {
                            handler(read.content.empty() ? std::nullopt
                                                         : clipboard::decodeText(read.content[0]));
                        }));
    });
}

void nrChangePasterboard::queueWriteBack(WriteBack writeBack) {
    writeBacks.push_back(std::move(writeBack));
    if (writeBacks.size() == 1) {
        startNextWrite();
    }
}

void nrChangePasterboard::startNextWrite() {
    const auto &next = writeBacks.front();
    const auto replaced = ownSource == next.source ? ownCount : next.source;
    pasteboard.write(next.content, replaced, whileAlive([this](PasteboardWrite result) {
                         auto written = std::move(writeBacks.front());
                         writeBacks.pop_front();
                         if (result.status == PasteboardStatus::done) {
                             if (written.source != ownCount) {
                                 lastOriginal = std::move(written.original);
                             }
                             ownSource = written.source;
                             ownCount = result.changeCount;
                             if (writeListener) {
                                 writeListener->addOneCount(result.changeCount);
                             }
                             if (cleanedHandler) {
                                 cleanedHandler();
                             }
                         }
                         if (!writeBacks.empty()) {
                             startNextWrite();
                         }
                     }));
}

void nrChangePasterboard::restore(std::function<void(Restored)> handler) {
    if (!lastOriginal) {
        handler(Restored::nothingKept);
        return;
    }
    readHarmlessFormats([this, handler = std::move(handler),
                         original = lastOriginal](std::optional<PasteboardFormats> offered) {
        if (!offered) {
            handler(Restored::refused);
            return;
        }
        pasteboard.write(*original, offered->changeCount,
                         whileAlive([this, handler](PasteboardWrite result) {
                             if (result.status != PasteboardStatus::done) {
                                 handler(Restored::refused);
                                 return;
                             }
                             ownSource = std::nullopt;
                             ownCount = result.changeCount;
                             if (writeListener) {
                                 writeListener->addOneCount(result.changeCount);
                             }
                             handler(Restored::done);
                         }));
    });
}

} // namespace nerlo::clipboard
