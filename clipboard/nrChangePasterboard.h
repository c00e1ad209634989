// Cleans what is on the clipboard: reads its plain text, rewrites it on a worker thread with the
// options of the moment, and puts the result back as plain text only.
//
// Left alone are links, files, secrets, content without plain text, and an empty clipboard; that is
// told from the offered formats, before any text is read. A result never replaces a copy that is
// newer than the text it was made from. Nothing here reports a failure: what cannot be cleaned
// stays as it is.
//
// All functions are called on the main thread. The main queue and the worker queue must outlive the
// engine, and the worker queue must end before the main queue does.
#pragma once

#include "engine/CleaningOptions.h"
#include "engine/CleaningReport.h"
#include "engine/Statistics.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/WorkerQueue.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace nerlo::clipboard {

// Learns that a write of ours reached the clipboard, so that it is not taken for a copy.
class WriteListener {
  public:
    virtual ~WriteListener() = default;
    // `written` is the count that the write gave the clipboard. Main thread.
    virtual void addOneCount(platform::ChangeCount written) = 0;
};

// The statistics popup.
class CountWindow {
  public:
    virtual ~CountWindow() = default;
    virtual void countToTextFields(std::u16string characters, std::u16string spaces,
                                   std::u16string words, std::u16string paragraphs) = 0;
    // What the clean that it is shown for could not do. Not called if that is nothing.
    virtual void tellReport(const engine::CleaningReport &) {}
    virtual void showWindow() = 0;
};

// The largest text that is cleaned, in bytes as the owner delivers it,
inline constexpr std::size_t cleanedTextLimit = std::size_t{256} << 20;
// and the largest content, all formats together, that is kept for `restore` if nothing else is
// said.
inline constexpr std::size_t keptOriginalLimit = std::size_t{64} << 20;

class nrChangePasterboard {
  public:
    // `locale` is an ICU locale id ("de_DE").
    nrChangePasterboard(platform::Pasteboard &pasteboard, platform::MainQueue &mainQueue,
                        platform::WorkerQueue &workerQueue, std::string locale);
    ~nrChangePasterboard();
    nrChangePasterboard(const nrChangePasterboard &) = delete;
    nrChangePasterboard &operator=(const nrChangePasterboard &) = delete;

    // The engine that was last made and still lives; there must be one.
    static nrChangePasterboard &sharedInstance();

    // Not owned; null for none.
    void setWriteListener(WriteListener *listener) { writeListener = listener; }
    // In bytes, for the originals from now on. With 0 none is kept.
    void keepOriginalsUpTo(std::size_t limit) { originalLimit = limit; }
    // Makes a popup for each showing; without it there is none.
    using CountWindowMaker = std::function<std::unique_ptr<CountWindow>()>;
    void setCountWindowMaker(CountWindowMaker maker) { makeCountWindow = std::move(maker); }

    // Runs after each clean whose result reached the clipboard.
    void setCleanedHandler(std::function<void()> cleaned) { cleanedHandler = std::move(cleaned); }

    // Runs after each clean, with the patterns that could not be used; mostly there is none.
    using ReportHandler = std::function<void(const engine::CleaningReport &)>;
    void setReportHandler(ReportHandler handler) { reportHandler_ = std::move(handler); }

    // Replaces the snapshot. A clean under way keeps the one that it started with.
    void setAllBools(const storage::PropertyDictionary &dictionary);
    std::shared_ptr<const engine::CleaningOptions> snapshot() const { return options; }

    // Every operation that is switched on, on the current content.
    void changePasteboard();
    // The one operation with this index, switched on or not; an index outside the table leaves the
    // text as it is, which still is put back as plain text only. The index of the statistics shows
    // the popup and writes nothing.
    void changePasteboardWithKeys(std::int32_t index);

    // Shows the popup with the counts of `text`, in place of the one that is shown.
    void newCountWindow(std::u16string text);

    // The text that a clean would rewrite now; nothing where it would leave the content alone.
    void readClipboardText(std::function<void(std::optional<std::u16string>)> handler);

    enum class Restored {
        done,
        nothingKept, // there was no clean, or the original was too large
        refused,     // the clipboard is empty by now, or holds a secret
    };
    // Puts the last original back: all formats that stood on the clipboard before the last clean of
    // content that was not ours. The restored content counts as ours.
    void restore(std::function<void(Restored)> handler);

  private:
    struct Clean;
    struct WriteBack {
        platform::ChangeCount source; // of the content that the text came from
        platform::PasteboardContent content;
        std::shared_ptr<const platform::PasteboardContent> original; // null if it is not to be kept
    };

    void start(std::optional<std::int32_t> operation);
    // Hands the formats on, or nothing if the clipboard is empty, unreadable or holds a secret.
    void readHarmlessFormats(std::function<void(std::optional<platform::PasteboardFormats>)> next);
    void readText(std::shared_ptr<Clean> clean, const std::string &format);
    void readOriginal(std::shared_ptr<Clean> clean);
    void runOnWorker(std::shared_ptr<Clean> clean);
    void showCounts(const engine::TextStatistics &counts, const engine::CleaningReport &report);
    void queueWriteBack(WriteBack writeBack);
    void startNextWrite();

    // A handler that does nothing once the engine is gone.
    template <class Function>
    auto whileAlive(Function function) {
        return [function = std::move(function),
                alive = std::weak_ptr<const bool>(alive_)]<class... Arguments>(
                   Arguments &&...arguments) {
            if (!alive.expired()) {
                function(std::forward<Arguments>(arguments)...);
            }
        };
    }

    platform::Pasteboard &pasteboard;
    platform::MainQueue &mainQueue;
    platform::WorkerQueue &workerQueue;
    const std::string locale;
    WriteListener *writeListener = nullptr;
    std::function<void()> cleanedHandler;
    CountWindowMaker makeCountWindow;
    ReportHandler reportHandler_;
    std::unique_ptr<CountWindow> countController;
    std::size_t originalLimit = keptOriginalLimit;
    std::shared_ptr<const engine::CleaningOptions> options =
        std::make_shared<engine::CleaningOptions>();

    std::deque<WriteBack>
        writeBacks; // in the order in which the cleans ended; the first is written
    // Our last write: its count, and the content that it replaced. A slower clean of that same
    // content may replace our write, but no other program's.
    std::optional<platform::ChangeCount> ownCount;
    std::optional<platform::ChangeCount> ownSource;
    std::shared_ptr<const platform::PasteboardContent> lastOriginal;

    std::shared_ptr<const bool> alive_ = std::make_shared<bool>(true);
};

} // namespace nerlo::clipboard
