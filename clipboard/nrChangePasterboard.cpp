#include "clipboard/nrChangePasterboard.h"

#include "clipboard/PasteboardFormats.h"
#include "engine/Trace.h"
#include "text/Characters.h"
#include "text/Utf.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <iterator>
#include <vector>

namespace nerlo::clipboard {

using platform::PasteboardFormats;
using platform::PasteboardRead;
using platform::PasteboardRequest;
using platform::PasteboardStatus;
using platform::PasteboardWrite;

namespace {

nrChangePasterboard *shared = nullptr;

// What tells the page of a copy is small but for formats that hold all of it.
constexpr std::size_t pageLimit = std::size_t{1} << 20;

// Empty for none.
std::string pageOf(const platform::PasteboardContent &content) {
    std::vector<std::string> formats;
    std::ranges::transform(content, std::back_inserter(formats), &platform::PasteboardData::format);
    std::string host;
    for (const auto &format : pageFormats(formats)) {
        const auto data = std::ranges::find(content, format, &platform::PasteboardData::format);
        host = host.empty() ? pageHost(*data) : host;
    }
    return host;
}

// What says whether content is a secret takes a few letters.
constexpr std::size_t secrecyLimit = 256;

// In a menu; a longer text is cut.
constexpr std::size_t wordsLimit = 24;

// The beginning of a text in one line.
std::u16string firstWords(std::u16string_view text) {
    std::u16string words;
    for (std::size_t at = 0; at < text.size();) {
        const auto character = text::characterAt(text, at);
        const auto size = text::sizeOf(character);
        if (text::isWhiteSpace(character) || character < u' ') {
            if (!words.empty() && words.back() != u' ') {
                words += u' ';
            }
        } else if (words.size() + size > wordsLimit) {
            return words + u'…';
        } else {
            words += text.substr(at, size);
        }
        at += size;
    }
    return words.substr(0, words.find_last_not_of(u' ') + 1);
}

std::size_t hashOf(std::u16string_view text) {
    return std::hash<std::u16string_view>()(text);
}

} // namespace

// One text on its way from the clipboard to the worker thread.
struct nrChangePasterboard::Reading {
    bool keepsOriginal = false;
    // For cleans that the table decides; null for all others. Any thread.
    std::function<void(DecidedCopy)> tellDecision{};
    CopyTable table{};
    DecidedCopy decision{};
    // The worker thread, with the text.
    std::function<void(Reading &, std::u16string)> work{};
    // The main thread, if there is no text to work on.
    std::function<void()> nothing = [] {};

    PasteboardFormats offered{};
    bool ofOurs = false;              // the content is
    std::vector<std::string> texts{}; // formats in which the text may still be found, best first
    platform::PasteboardData text{};
    std::shared_ptr<Kept> original{};
    Restored whyNotKept = Restored::nothingKept;

    CopyDecision lookUp() { return decide(table, decision.copy, decision.onDemand); }
    // Whether the table says so by what is known now.
    bool isLeftAlone();
    bool wantsPage() const;
    // Whether something is to be made of the text; if not, the outcome is told. Worker thread.
    bool takes(std::u16string_view content);
    // Main thread.
    void end(DecidedCopy::Outcome outcome);
    void tell(DecidedCopy::Outcome outcome);
};

bool nrChangePasterboard::Reading::isLeftAlone() {
    const auto place = lookUp().place;
    if (place && !table[*place].options) {
        decision.row = table[*place];
        return true;
    }
    return false;
}

bool nrChangePasterboard::Reading::wantsPage() const {
    return std::ranges::any_of(
        table, [](const CopyRow &row) { return row.rule.on && !row.rule.host.empty(); });
}

bool nrChangePasterboard::Reading::takes(std::u16string_view content) {
    const bool link = isUrl(content);
    if (!tellDecision) {
        return !link;
    }
    Copy &copy = decision.copy;
    copy.host = copy.host.value_or(std::string());
    auto found = lookUp();
    if (found.open) {
        copy.looks = looksOf(content, !pageFormats(copy.formats).empty());
        found = lookUp();
    }
    if (found.place) {
        decision.row = table[*found.place];
    }
    // A link stays, unless a row says what becomes of links.
    const bool spared = link && !(decision.row && decision.row->rule.looks == Looks::link);
    tell(decision.row && !decision.row->options ? DecidedCopy::Outcome::leftAlone
         : spared                               ? DecidedCopy::Outcome::link
                                                : DecidedCopy::Outcome::cleaned);
    return decision.outcome == DecidedCopy::Outcome::cleaned;
}

void nrChangePasterboard::Reading::end(DecidedCopy::Outcome outcome) {
    tell(outcome);
    nothing();
}

void nrChangePasterboard::Reading::tell(DecidedCopy::Outcome outcome) {
    if (tellDecision) {
        decision.outcome = outcome;
        tellDecision(decision);
    }
}

struct nrChangePasterboard::Clean {
    Choice choice;
    std::string locale;
    std::optional<std::size_t> spared; // hash of a plain text that is not cleaned
    std::function<void(Told)> show;
    std::function<void(engine::CleaningReport)> tell;
    std::function<void(platform::ChangeCount)> leave;
    std::function<void(WriteBack)> writeBack;
    std::function<void(bool)> ended;  // on the main thread
    std::function<void(bool)> finish; // the same, from any

    bool writes() const { return choice.operation != engine::statisticsOperation; }
    bool counts(const engine::CleaningOptions &used) const {
        return !writes() || (!choice.operation && used.udStatistics);
    }
    bool tellsSteps(std::u16string_view text, const engine::CleaningOptions &used) const {
        return used.udStatisticsRules && writes() && counts(used) && text.size() <= tracedTextLimit;
    }
    std::u16string cleaned(std::u16string text, const engine::CleaningOptions &used,
                           engine::CleaningReport &report) const;
    std::vector<ChangedStep> steps(std::u16string source,
                                   const engine::CleaningOptions &used) const;
    void write(Reading &reading, const std::u16string &text) const;
    void run(Reading &reading, std::u16string text) const;
};

nrChangePasterboard::nrChangePasterboard(platform::Pasteboard &pasteboard,
                                         platform::MainQueue &mainQueue,
                                         platform::WorkerQueue &workerQueue, std::string locale)
    : pasteboard_(pasteboard)
    , mainQueue_(mainQueue)
    , workerQueue_(workerQueue)
    , locale_(std::move(locale)) {
    shared = this;
    pasteboard_.setChangeHandler(alive_.guard([this] { clipboardChanged(); }));
}

nrChangePasterboard::~nrChangePasterboard() {
    pasteboard_.setChangeHandler(nullptr);
    if (shared == this) {
        shared = nullptr;
    }
}

nrChangePasterboard &nrChangePasterboard::sharedInstance() {
    assert(shared);
    return *shared;
}

void nrChangePasterboard::keepOriginalsUpTo(std::size_t limit) {
    originalLimit_ = limit;
    if (limit == 0) {
        dropOriginal(Restored::nothingKept);
    }
}

void nrChangePasterboard::setAllBools(const storage::PropertyDictionary &dictionary,
                                      std::shared_ptr<const engine::LinkRules> linkRules) {
    auto filled = std::make_shared<engine::CleaningOptions>();
    filled->setAllBools(dictionary);
    filled->linkRules = std::move(linkRules);
    options_ = std::move(filled);
}

void nrChangePasterboard::changePasteboard() {
    start({options_, {}, {}}, Asked::onDemand, {}, {});
}

void nrChangePasterboard::changePasteboard(CopyTable exceptions) {
    start({options_, {}, {}}, Asked::automatically, std::move(exceptions), {});
}

void nrChangePasterboard::changePasteboardWithKeys(std::int32_t index) {
    start({options_, index, {}}, Asked::forThis, {}, {});
}

void nrChangePasterboard::changePasteboard(Choice choice, std::function<void(bool)> ended) {
    start(std::move(choice), Asked::forThis, {}, std::move(ended));
}

void nrChangePasterboard::start(Choice choice, Asked asked, CopyTable exceptions,
                                std::function<void(bool)> ended) {
    if (!ended) {
        ended = [](bool) {};
    }
    const bool automatic = asked == Asked::automatically;
    const Clean clean{std::move(choice),
                      locale_,
                      automatic ? lastResult_ : std::nullopt,
                      onMain([this](const Told &told) { showCounts(told); }),
                      onMain([this](const engine::CleaningReport &report) {
                          if (reportHandler_) {
                              reportHandler_(report);
                          }
                      }),
                      onMain([this](platform::ChangeCount source) { leftAsItIs(source); }),
                      onMain([this](WriteBack result) { queueWriteBack(std::move(result)); }),
                      ended,
                      onMain(ended)};
    auto reading = std::make_shared<Reading>();
    reading->keepsOriginal = clean.writes();
    reading->nothing = [ended] { ended(false); };
    if (asked != Asked::forThis) {
        reading->decision.onDemand = !automatic;
        beginDecision(*reading, std::move(exceptions));
    }
    reading->work = [clean](Reading &source, std::u16string text) {
        clean.run(source, std::move(text));
    };
    readContent(std::move(reading));
}

void nrChangePasterboard::beginDecision(Reading &reading, CopyTable exceptions) {
    reading.table = std::move(exceptions);
    if (makeTable_) {
        std::ranges::move(makeTable_(), std::back_inserter(reading.table));
    }
    if (listener_) {
        reading.decision.copy.program = listener_->copiedFrom(pasteboard_.changeCount());
    }
    reading.tellDecision = onMain([this](DecidedCopy decided) { decided_ = std::move(decided); });
}

std::u16string nrChangePasterboard::Clean::cleaned(std::u16string text,
                                                   const engine::CleaningOptions &used,
                                                   engine::CleaningReport &report) const {
    if (choice.known && choice.known->first == text) {
        return choice.known->second;
    }
    const engine::CleaningContext context{.options = used, .locale = locale, .report = &report};
    return choice.operation ? engine::runOperation(*choice.operation, std::move(text), context)
                            : engine::runPipeline(std::move(text), context);
}

void nrChangePasterboard::Clean::run(Reading &reading, std::u16string text) const {
    const bool plain = reading.offered.complete && onlyPlainText(reading.offered.formats);
    if (plain && spared == hashOf(text)) {
        finish(false);
        return;
    }
    if (!plain) {
        reading.text.bytes = nullptr; // the memory is wanted
    }
    const CopyRow *row = reading.decision.row ? &*reading.decision.row : nullptr;
    const auto &used = row ? *row->options : *choice.options;
    engine::CleaningReport report;
    if (reading.original) {
        reading.original->firstWords = firstWords(text);
    }
    const auto source = tellsSteps(text, used) ? std::optional(text) : std::nullopt;
    if (writes()) {
        text = cleaned(std::move(text), used, report);
        tell(report);
        write(reading, text);
    }
    // Only now, because the clipboard should not wait for what is told.
    try {
        if (counts(used)) {
            show({engine::countAll(text, locale), report, row ? row->title : std::u16string(),
                  source ? steps(*source, used) : std::vector<ChangedStep>()});
        }
    } catch (const std::exception &) {
        // Only for want of memory; the text is on its way all the same.
    }
    if (!writes()) {
        finish(false);
    }
}

void nrChangePasterboard::Clean::write(Reading &reading, const std::u16string &text) const {
    const auto source = reading.offered.changeCount;
    const bool plain = reading.offered.complete && onlyPlainText(reading.offered.formats);
    // Nobody could tell the difference, but for the clipboard's owner, who keeps it.
    if (plain && decodeText(reading.text) == text) {
        leave(source);
        finish(true);
        return;
    }
    reading.text.bytes = nullptr;
    writeBack({source, reading.ofOurs,
               Kept{plainTextContent(text::utf16ToUtf8(text)), true, firstWords(text)},
               std::move(reading.original), reading.whyNotKept, hashOf(text), ended});
}

std::vector<ChangedStep>
nrChangePasterboard::Clean::steps(std::u16string source,
                                  const engine::CleaningOptions &used) const {
    std::vector<ChangedStep> changed;
    const engine::Trace trace =
        engine::tracePipeline(std::move(source), {.options = used, .locale = locale}, 0);
    for (const engine::TraceStep &step : trace.steps) {
        if (step.changes > 0) {
            changed.push_back({step.operation, step.changes});
        }
    }
    return changed;
}

void nrChangePasterboard::readContent(std::shared_ptr<Reading> reading) {
    readHarmlessFormats([this, reading](std::optional<PasteboardFormats> offered) {
        if (!offered || offersUrl(offered->formats)) {
            reading->end(DecidedCopy::Outcome::noText);
            return;
        }
        reading->decision.copy.formats = offered->formats;
        if (reading->isLeftAlone()) {
            // They may be the formats of a copy that came after the one that was announced.
            if (listener_) {
                listener_->addOneCount(offered->changeCount);
            }
            reading->end(DecidedCopy::Outcome::leftAlone);
            return;
        }
        reading->texts = textFormats(offered->formats);
        reading->ofOurs = offered->changeCount == ownCount_;
        reading->offered = std::move(*offered);
        readText(reading);
    });
}

void nrChangePasterboard::readHarmlessFormats(
    std::function<void(std::optional<PasteboardFormats>)> next) {
    pasteboard_.readFormats(alive_.guard([this, next = std::move(next)](PasteboardFormats offered) {
        if (offered.status != PasteboardStatus::done || offered.formats.empty() ||
            marksSecret(offered.formats)) {
            next(std::nullopt);
            return;
        }
        const auto *format = secrecyFormat(offered.formats);
        if (!format) {
            next(std::move(offered));
            return;
        }
        const PasteboardRequest request{{*format}, secrecyLimit, {}, secrecyLimit};
        const auto count = offered.changeCount;
        pasteboard_.read(count, request,
                         alive_.guard([next, offered = std::move(offered)](PasteboardRead state) {
                             // What cannot be read may be a secret.
                             const bool harmless =
                                 !state.content.empty() && !saysSecret(*state.content[0].bytes);
                             next(harmless ? std::optional(offered) : std::nullopt);
                         }));
    }));
}

// With one question, for the text and for what `restore` needs: the other formats go when the text
// is written back.
void nrChangePasterboard::readText(std::shared_ptr<Reading> reading) {
    if (reading->texts.empty()) {
        reading->end(DecidedCopy::Outcome::noText);
        return;
    }
    PasteboardRequest request{reading->texts, cleanedTextLimit, {}, originalLimit_};
    if (reading->keepsOriginal && !reading->ofOurs && originalLimit_ > 0) {
        request.others = readingOrder(reading->offered.formats);
    } else if (reading->wantsPage()) {
        request.others = pageFormats(reading->offered.formats);
        request.limit = cleanedTextLimit + pageLimit;
    }
    pasteboard_.read(reading->offered.changeCount, std::move(request),
                     alive_.guard([this, reading](PasteboardRead read) {
                         textArrived(reading, std::move(read));
                     }));
}

void nrChangePasterboard::textArrived(const std::shared_ptr<Reading> &reading,
                                      PasteboardRead read) {
    if (read.content.empty()) {
        if (read.tooLarge && tooLarge_) {
            tooLarge_();
        }
        reading->end(DecidedCopy::Outcome::noText);
        return;
    }
    reading->text = read.content[0];
    if (reading->wantsPage()) {
        reading->decision.copy.host = pageOf(read.content);
    }
    if (reading->keepsOriginal && !reading->ofOurs && originalLimit_ > 0) {
        keepOriginal(*reading, read);
    }
    decodeOnWorker(reading);
}

// What the owner has not delivered is lost to `restore`, but does not keep the text from being
// cleaned.
void nrChangePasterboard::keepOriginal(Reading &reading, const PasteboardRead &read) const {
    if (reading.text.bytes->size() > originalLimit_) {
        reading.whyNotKept = Restored::tooLarge;
        return;
    }
    const auto &order = reading.offered.formats;
    reading.original = std::make_shared<Kept>();
    reading.original->content = read.content;
    std::ranges::sort(reading.original->content, {}, [&](const auto &data) {
        return std::ranges::find(order, data.format) - order.begin();
    });
    reading.original->complete = reading.offered.complete && read.content.size() == order.size();
}

void nrChangePasterboard::decodeOnWorker(std::shared_ptr<Reading> reading) {
    workerQueue_.post([reading, nothing = onMain([reading] { reading->nothing(); }),
                       next = onMain([this, reading] {
                           // Those before it were refused.
                           auto &texts = reading->texts;
                           const auto broken = std::ranges::find(texts, reading->text.format);
                           texts.erase(texts.begin(), std::next(broken, broken != texts.end()));
                           readText(reading);
                       })] {
        try {
            auto text = decodeText(reading->text);
            if (!text) {
                next();
            } else if (reading->takes(*text)) {
                reading->work(*reading, std::move(*text));
            } else {
                nothing();
            }
        } catch (const std::exception &) {
            nothing(); // out of memory, in practice; the clipboard stays as it is
        }
    });
}

void nrChangePasterboard::newCountWindow(std::u16string text) {
    workerQueue_.post([text = std::move(text), locale = locale_,
                       show = onMain([this](const Told &told) { showCounts(told); })] {
        show(Told{.counts = engine::countAll(text, locale)});
    });
}

void nrChangePasterboard::showCounts(const Told &told) {
    countController_ = nullptr;
    if (!makeCountWindow_) {
        return;
    }
    countController_ = makeCountWindow_();
    countController_->countToTextFields(engine::integerToString(told.counts.characters, locale_),
                                        engine::integerToString(told.counts.spaces, locale_),
                                        engine::integerToString(told.counts.words, locale_),
                                        engine::integerToString(told.counts.paragraphs, locale_));
    if (!told.profile.empty()) {
        countController_->tellProfile(told.profile);
    }
    if (!told.steps.empty()) {
        countController_->tellSteps(told.steps);
    }
    if (!told.report.empty()) {
        countController_->tellReport(told.report);
    }
    countController_->showWindow();
}

void nrChangePasterboard::readClipboardText(
    std::function<void(std::optional<std::u16string>)> handler) {
    auto reading = std::make_shared<Reading>();
    reading->nothing = [handler] { handler(std::nullopt); };
    reading->work = [show = onMain(std::move(handler))](Reading &, std::u16string text) {
        show(std::optional(std::move(text)));
    };
    readContent(std::move(reading));
}

void nrChangePasterboard::putText(std::u16string text, std::function<void(bool)> ended) {
    ++puts_;
    pasteboard_.write(plainTextContent(text::utf16ToUtf8(text)), std::nullopt,
                      alive_.guard([this, ended = std::move(ended)](const PasteboardWrite &result) {
                          --puts_;
                          const bool done = result.status == PasteboardStatus::done;
                          if (done && listener_) {
                              listener_->addOneCount(result.changeCount);
                          }
                          ended(done);
                          clipboardChanged();
                      }));
}

// A clean that has nothing to write is over all the same.
void nrChangePasterboard::leftAsItIs(platform::ChangeCount source) {
    if (listener_ && pasteboard_.changeCount() == source) {
        listener_->addOneCount(source);
    }
    if (cleaned_) {
        cleaned_();
    }
}

void nrChangePasterboard::queueWriteBack(WriteBack writeBack) {
    writeBacks_.push_back(std::move(writeBack));
    if (writeBacks_.size() == 1) {
        startNextWrite();
    }
}

void nrChangePasterboard::startNextWrite() {
    const auto &next = writeBacks_.front();
    const auto replaced = ownSource_ == next.source ? ownCount_ : next.source;
    pasteboard_.write(next.cleaned.content, replaced,
                      alive_.guard([this](const PasteboardWrite &result) {
                          auto ended = std::move(writeBacks_.front());
                          writeBacks_.pop_front();
                          const bool done = result.status == PasteboardStatus::done;
                          const auto tell = std::move(ended.ended);
                          if (done) {
                              written(std::move(ended), result.changeCount);
                          }
                          if (tell) {
                              tell(done);
                          }
                          if (!writeBacks_.empty()) {
                              startNextWrite();
                          }
                          clipboardChanged();
                      }));
}

void nrChangePasterboard::written(WriteBack writeBack, platform::ChangeCount count) {
    if (!writeBack.ofOurs) {
        // No longer wanted, perhaps, since it was read.
        original_ = originalLimit_ > 0 ? std::move(writeBack.original) : nullptr;
        whyNot_ = originalLimit_ > 0 ? writeBack.whyNotKept : Restored::nothingKept;
    }
    // It can only be swapped for the original.
    result_ = original_ ? std::make_shared<const Kept>(std::move(writeBack.cleaned)) : nullptr;
    originalShown_ = false;
    lastResult_ = writeBack.hash;
    ownSource_ = writeBack.source;
    ownCount_ = count;
    mainQueue_.cancel(dropping_);
    dropping_ = mainQueue_.postAfter(keptOriginalTime,
                                     alive_.guard([this] { dropOriginal(Restored::tooOld); }),
                                     std::chrono::seconds(30));
    if (listener_) {
        listener_->addOneCount(count);
    }
    tellRestorable();
    if (cleaned_) {
        cleaned_();
    }
}

// What a newer copy has replaced cannot come back, so its memory is given back too.
void nrChangePasterboard::clipboardChanged() {
    if (writing()) {
        return; // the end of the write comes here again
    }
    if (ownCount_ && pasteboard_.changeCount() != *ownCount_ && (original_ || result_)) {
        dropOriginal(Restored::newerCopy);
    }
    if (listener_) {
        listener_->clipboardChanged();
    }
}

void nrChangePasterboard::dropOriginal(Restored why) {
    mainQueue_.cancel(std::exchange(dropping_, 0));
    original_ = nullptr;
    result_ = nullptr;
    whyNot_ = why;
    tellRestorable();
}

void nrChangePasterboard::tellRestorable() const {
    if (restorableChanged_) {
        restorableChanged_();
    }
}

const nrChangePasterboard::Kept *nrChangePasterboard::otherSide() const {
    return originalShown_ ? result_.get() : original_.get();
}

nrChangePasterboard::Restored nrChangePasterboard::restorable() const {
    if (!ownCount_) {
        return Restored::nothingKept;
    }
    if (pasteboard_.changeCount() != *ownCount_) {
        return Restored::newerCopy;
    }
    const auto *other = otherSide();
    return !other ? whyNot_ : other->complete ? Restored::done : Restored::incomplete;
}

std::u16string nrChangePasterboard::restorableWords() const {
    const auto outcome = restorable();
    const bool restores = outcome == Restored::done || outcome == Restored::incomplete;
    return restores ? otherSide()->firstWords : std::u16string();
}

void nrChangePasterboard::restore(std::function<void(Restored)> handler) {
    const auto outcome = restorable();
    if (outcome != Restored::done && outcome != Restored::incomplete) {
        handler(outcome);
        return;
    }
    restoring_ = true;
    pasteboard_.write(
        otherSide()->content, ownCount_,
        alive_.guard([this, outcome, handler = std::move(handler)](const PasteboardWrite &result) {
            restored(result, outcome, handler);
        }));
}

void nrChangePasterboard::restored(const PasteboardWrite &result, Restored outcome,
                                   const std::function<void(Restored)> &handler) {
    restoring_ = false;
    if (result.status == PasteboardStatus::done) {
        originalShown_ = !originalShown_;
        ownSource_ = std::nullopt;
        ownCount_ = result.changeCount;
        if (listener_) {
            listener_->addOneCount(result.changeCount);
        }
        tellRestorable();
    }
    handler(result.status == PasteboardStatus::done      ? outcome
            : result.status == PasteboardStatus::changed ? Restored::newerCopy
                                                         : Restored::failed);
    clipboardChanged();
}

} // namespace nerlo::clipboard
