// Cleans what is on the clipboard: reads its plain text, rewrites it on a worker thread with the
// options of the moment, and puts the result back as plain text only.
//
// Left alone are links, files, secrets, content without plain text, and an empty clipboard. Most of
// that is told from the offered formats, before any text is read. A result never replaces a copy
// that is newer than the text it was made from, and what would stay exactly as it is is not
// written. Nothing here reports a failure, but for what the handlers below are told: what cannot be
// cleaned stays as it is.
//
// All functions are called on the main thread. The main queue and the worker queue must outlive the
// engine, and the worker queue must end before the main queue does.
#pragma once

#include "clipboard/CopyTable.h"
#include "engine/CleaningOptions.h"
#include "engine/CleaningReport.h"
#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/WorkerQueue.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::clipboard {

// Learns what becomes of the clipboard. Main thread.
class ClipboardListener {
  public:
    virtual ~ClipboardListener() = default;
    // The content with this count is ours, or has been dealt with: it is no copy to be cleaned.
    virtual void addOneCount(platform::ChangeCount written) = 0;
    // The change count may have moved. Not called while a write of ours is under way.
    virtual void clipboardChanged() {}
    // The program that was in front when the content of this count was copied; empty where that is
    // not known.
    virtual std::string copiedFrom(platform::ChangeCount) { return {}; }
};

struct ChangedStep {
    const engine::Operation *operation;
    std::size_t changes;
};

// The statistics popup.
class CountWindow {
  public:
    virtual ~CountWindow() = default;
    virtual void countToTextFields(std::u16string characters, std::u16string spaces,
                                   std::u16string words, std::u16string paragraphs) = 0;
    // The name of the profile, where the table and not the user has chosen it. Not called
    // otherwise.
    virtual void tellProfile(std::u16string) {}
    // What the clean that it is shown for could not do. Not called if that is nothing.
    virtual void tellReport(const engine::CleaningReport &) {}
    // The steps that changed something and how often, if the options ask for that. Not called if
    // there is none, or the text is longer than `tracedTextLimit`.
    virtual void tellSteps(const std::vector<ChangedStep> &) {}
    virtual void showWindow() = 0;
};

// The largest text that is cleaned, in bytes as the owner delivers it,
inline constexpr std::size_t cleanedTextLimit = std::size_t{256} << 20;
// the longest whose steps the popup tells, in UTF-16 code units: it should not come late,
inline constexpr std::size_t tracedTextLimit = 1'000'000;
// and the largest content, all formats together, that is kept for `restore` if nothing else is
// said,
inline constexpr std::size_t keptOriginalLimit = std::size_t{64} << 20;
// for so long.
inline constexpr std::chrono::minutes keptOriginalTime{10};

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
    void setListener(ClipboardListener *listener) { listener_ = listener; }
    // In bytes, for the originals from now on. With 0 none is kept, the present one included, and
    // no formats are asked for but those that a clean needs.
    void keepOriginalsUpTo(std::size_t limit);
    // Makes a popup for each showing; without it there is none.
    using CountWindowMaker = std::function<std::unique_ptr<CountWindow>()>;
    void setCountWindowMaker(CountWindowMaker maker) { makeCountWindow_ = std::move(maker); }

    // Runs after each clean whose result is on the clipboard.
    void setCleanedHandler(std::function<void()> cleaned) { cleaned_ = std::move(cleaned); }
    // Runs when a text is left alone because it is larger than `cleanedTextLimit`.
    void setTooLargeHandler(std::function<void()> tooLarge) { tooLarge_ = std::move(tooLarge); }
    // Runs when `restorable` or `restorableWords` may have changed.
    void setRestorableHandler(std::function<void()> changed) {
        restorableChanged_ = std::move(changed);
    }

    // Runs after each clean, with the patterns that could not be used; mostly there is none.
    using ReportHandler = std::function<void(const engine::CleaningReport &)>;
    void setReportHandler(ReportHandler handler) { reportHandler_ = std::move(handler); }

    // Replaces the snapshot. A clean under way keeps the one that it started with.
    // `linkRules` is what the file holds that the options name, if any.
    void setAllBools(const storage::PropertyDictionary &dictionary,
                     std::shared_ptr<const engine::LinkRules> linkRules = nullptr);
    std::shared_ptr<const engine::CleaningOptions> snapshot() const { return options_; }

    // Asked before each clean with all that is on: which content is cleaned with other options than
    // those of the snapshot. Without it, none is.
    void setCopyTableMaker(std::function<CopyTable()> maker) { makeTable_ = std::move(maker); }
    // Of the last such clean.
    const DecidedCopy &decided() const { return decided_; }

    // Every operation that is switched on, on the current content.
    void changePasteboard();
    // The same for a copy, which nobody has asked for: it is left alone where a row of `exceptions`
    // fits, or one of the table that says so, and so is plain text that equals our last result. Two
    // programs that clean each other's results come to rest by this.
    void changePasteboard(CopyTable exceptions);
    // The one operation with this index, switched on or not; an index outside the table leaves the
    // text as it is, which still is put back as plain text only. The index of the statistics shows
    // the popup and writes nothing.
    void changePasteboardWithKeys(std::int32_t index);

    // What to do to a text, whatever the snapshot says.
    struct Choice {
        std::shared_ptr<const engine::CleaningOptions> options; // not null
        std::optional<std::int32_t> operation; // with them; none: all that they switch on
        // A text and what came of it, if that is known: what a user has been shown is what he gets.
        std::shared_ptr<const std::pair<std::u16string, std::u16string>> known;
    };
    // As above. `ended` runs later, with whether the result is on the clipboard.
    void changePasteboard(Choice choice, std::function<void(bool done)> ended);

    // Whether the content of this count was our last write.
    bool wrote(platform::ChangeCount count) const { return ownCount_ == count; }

    // Whether a write of ours is under way, whose count could be taken for another program's.
    bool writing() const { return !writeBacks_.empty() || restoring_ || puts_ > 0; }

    // Shows the popup with the counts of `text`, in place of the one that is shown.
    void newCountWindow(std::u16string text);

    // The text that a clean would rewrite now; nothing where it would leave the content alone.
    void readClipboardText(std::function<void(std::optional<std::u16string>)> handler);

    // Replaces the content by a text of this program's own, which is no copy to be cleaned.
    void putText(std::u16string text, std::function<void(bool done)> ended);

    enum class Restored {
        done,
        incomplete,  // done, but some formats of the original had not been read in time, or at all
        nothingKept, // there was no clean, or it has kept nothing
        tooLarge,    // the original was too large to be kept
        tooOld,      // `keptOriginalTime` is over
        newerCopy,   // the clipboard does not hold our result any more
        failed,      // the desktop did not take it
    };
    // Swaps our last result for the original, with all formats that stood on the clipboard before
    // the last clean of content that was not ours; and back again, the next time. Both count as
    // ours. Only while the clipboard holds what we wrote last, and for `keptOriginalTime` after the
    // clean.
    void restore(std::function<void(Restored)> handler);
    // What that would come to now.
    Restored restorable() const;
    // The beginning of the text that it would put back, in one line, for a menu; empty if it would
    // put none back. UTF-16.
    std::u16string restorableWords() const;

  private:
    struct Reading;
    // One side of a swap.
    struct Kept {
        platform::PasteboardContent content;
        bool complete = true;
        std::u16string firstWords;
    };
    struct WriteBack {
        platform::ChangeCount source; // of the content that the text came from
        bool ofOurs;                  // that was our own, and keeps its original
        Kept cleaned;
        std::shared_ptr<Kept> original; // null if it is not kept
        Restored whyNotKept;
        std::size_t hash;                     // of the result
        std::function<void(bool done)> ended; // may be empty
    };
    struct Clean;

    // By the program itself or by the user, with all that the table of copies and the options say;
    // or by the user, for one thing whatever they say.
    enum class Asked { automatically, onDemand, forThis };
    void start(Choice choice, Asked asked, CopyTable exceptions, std::function<void(bool)> ended);
    void beginDecision(Reading &reading, CopyTable exceptions);
    void readContent(std::shared_ptr<Reading> reading);
    void readText(std::shared_ptr<Reading> reading);
    void textArrived(const std::shared_ptr<Reading> &reading, platform::PasteboardRead read);
    void keepOriginal(Reading &reading, const platform::PasteboardRead &read) const;
    void decodeOnWorker(std::shared_ptr<Reading> reading);
    // Hands the formats on, or nothing if the clipboard is empty, unreadable or holds a secret.
    void readHarmlessFormats(std::function<void(std::optional<platform::PasteboardFormats>)> next);
    // What the popup shows.
    struct Told {
        engine::TextStatistics counts{};
        engine::CleaningReport report{};
        std::u16string profile{};
        std::vector<ChangedStep> steps{};
    };
    void showCounts(const Told &told);
    void leftAsItIs(platform::ChangeCount source);
    void queueWriteBack(WriteBack writeBack);
    void startNextWrite();
    void written(WriteBack writeBack, platform::ChangeCount count);
    void restored(const platform::PasteboardWrite &result, Restored outcome,
                  const std::function<void(Restored)> &handler);
    void clipboardChanged();
    void dropOriginal(Restored why);
    void tellRestorable() const;
    const Kept *otherSide() const;

    // Carries a value from the worker thread to a function that runs here, if it still can.
    template <class Function>
    auto onMain(Function function) {
        return alive_.guardOn(mainQueue_, std::move(function));
    }

    platform::Pasteboard &pasteboard_;
    platform::MainQueue &mainQueue_;
    platform::WorkerQueue &workerQueue_;
    const std::string locale_;
    ClipboardListener *listener_ = nullptr;
    std::function<void()> cleaned_;
    std::function<void()> tooLarge_;
    std::function<void()> restorableChanged_;
    CountWindowMaker makeCountWindow_;
    ReportHandler reportHandler_;
    std::function<CopyTable()> makeTable_;
    DecidedCopy decided_;
    std::unique_ptr<CountWindow> countController_;
    std::size_t originalLimit_ = keptOriginalLimit;
    std::shared_ptr<const engine::CleaningOptions> options_ =
        std::make_shared<engine::CleaningOptions>();

    // In the order in which the cleans ended; the first is being written.
    std::deque<WriteBack> writeBacks_;
    bool restoring_ = false;
    int puts_ = 0; // under way
    // Our last write: its count, and the content that it replaced. A slower clean of that same
    // content may replace our write, but no other program's.
    std::optional<platform::ChangeCount> ownCount_;
    std::optional<platform::ChangeCount> ownSource_;
    std::optional<std::size_t> lastResult_; // a hash; it outlives the content
    // The sides of the swap, as long as the clipboard holds one of them.
    std::shared_ptr<const Kept> original_;
    std::shared_ptr<const Kept> result_;
    bool originalShown_ = false;
    Restored whyNot_ = Restored::nothingKept;
    platform::MainQueue::TaskId dropping_ = 0;

    platform::Alive alive_;
};

} // namespace nerlo::clipboard
