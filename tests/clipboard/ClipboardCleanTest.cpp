// The engine between a clipboard and a worker thread, all in memory.
#include "clipboard/nrChangePasterboard.h"

#include "clipboard/PasteboardFormats.h"
#include "engine/Operations.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemoryPasteboard.h"
#include "tests/fakes/MemoryWorkerQueue.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace nerlo::clipboard {
namespace {

using namespace std::chrono_literals;
using platform::ChangeCount;
using platform::PasteboardContent;
using Log = std::vector<std::string>;

constexpr std::int32_t removeAllSpaces = 1;
constexpr std::int32_t addPrefix = 35;

PasteboardContent content(std::initializer_list<std::pair<const char *, std::string>> formats) {
    PasteboardContent result;
    for (const auto &[format, bytes] : formats) {
        result.push_back({format, {}, std::make_shared<const std::string>(bytes)});
    }
    return result;
}

std::vector<std::pair<std::string, std::string>> plain(const PasteboardContent &content) {
    std::vector<std::pair<std::string, std::string>> result;
    for (const auto &data : content) {
        result.emplace_back(data.format, *data.bytes);
    }
    return result;
}

class ClipboardCleanTest : public testing::Test, public ClipboardListener {
  protected:
    ClipboardCleanTest() {
        engine.setListener(this);
        setOptions({{"udRemoveAllSpaces", true}});
    }
    void addOneCount(ChangeCount written) override { acknowledged.push_back(written); }

    void setOptions(storage::PropertyDictionary dictionary) { engine.setAllBools(dictionary); }
    // Until nothing is left to do, with the clock standing.
    void finish() {
        do {
            mainQueue.runPosted();
            workers.runAll();
            mainQueue.runPosted();
        } while (workers.size() > 0);
    }
    void clean() {
        engine.changePasteboard();
        finish();
    }
    void cleanWith(std::int32_t operation) {
        engine.changePasteboardWithKeys(operation);
        finish();
    }
    // A clean that is under way: the worker has the text.
    void begin() {
        engine.changePasteboard();
        mainQueue.runPosted();
    }
    std::string text() const { return pasteboard.bytes("text/plain"); }
    std::size_t count(const std::string &line) const {
        return static_cast<std::size_t>(std::ranges::count(pasteboard.log, line));
    }

    test::MemoryMainQueue mainQueue;
    test::MemoryWorkerQueue workers;
    test::MemoryPasteboard pasteboard{mainQueue};
    nrChangePasterboard engine{pasteboard, mainQueue, workers, "en_US"};
    std::vector<ChangeCount> acknowledged;
};

TEST_F(ClipboardCleanTest, RewritesTextAsPlainTextOnlyAndAcknowledgesTheWrite) {
    pasteboard.copy(content(
        {{"text/html", "<b>a b</b>"}, {"CLIPBOARD_STATE", "harmless"}, {"text/plain", "a b"}}));
    clean();
    EXPECT_EQ(pasteboard.formatNames(),
              Log({"text/plain;charset=utf-8", "UTF8_STRING", "text/plain", "STRING", "TEXT"}));
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(acknowledged, std::vector{pasteboard.changeCount()});
}

TEST_F(ClipboardCleanTest, LeavesAloneWhatIsNotOursToTouch) {
    const struct {
        const char *name;
        PasteboardContent content;
        Log log; // what may be asked of the clipboard
    } rows[] = {
        {"empty", {}, {"formats"}},
        {"link with its text",
         content({{"text/x-moz-url", "http://a b"}, {"text/plain", "a b"}}),
         {"formats"}},
        {"files", content({{"text/uri-list", "file:///a"}, {"text/plain", "/a b"}}), {"formats"}},
        {"image", content({{"image/png", "\x89PNG"}, {"text/html", "<img>"}}), {"formats"}},
        {"password, whatever the hint's value",
         content({{"x-kde-passwordManagerHint", ""}, {"text/plain", "pass word"}}),
         {"formats"}},
        {"sensitive state",
         content({{"CLIPBOARD_STATE", "sensitive"}, {"text/plain", "pass word"}}),
         {"formats", "read CLIPBOARD_STATE"}},
        {"state too long to be told",
         content({{"CLIPBOARD_STATE", std::string(300, 'x')}, {"text/plain", "pass word"}}),
         {"formats", "read CLIPBOARD_STATE"}},
        {"text without a letter", content({{"text/plain", ""}}), {"formats", "read text/plain"}},
        {"bytes that are no text",
         content({{"text/plain", "caf\xe9 x"}}),
         {"formats", "read text/plain"}},
        {"a link as text",
         content({{"text/plain", "a+1.b-c://x/y?z=\xc3\xa9"}}),
         {"formats", "read text/plain"}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        for (const auto operation : {-1, removeAllSpaces, engine::statisticsOperation}) {
            pasteboard.copy(row.content);
            pasteboard.log.clear();
            operation == -1 ? clean() : cleanWith(operation);
            EXPECT_EQ(plain(pasteboard.content()), plain(row.content));
            if (operation != engine::statisticsOperation) {
                EXPECT_EQ(pasteboard.log, row.log);
            }
        }
    }
    EXPECT_TRUE(acknowledged.empty());
}

// Nobody can tell the difference, but that the copy stays its owner's.
TEST_F(ClipboardCleanTest, PlainTextThatWouldStayAsItIsIsNotWritten) {
    int cleaned = 0;
    engine.setCleanedHandler([&] { ++cleaned; });
    for (const char *format : {"STRING", "text/plain; charset=iso-8859-15"}) {
        pasteboard.copy(content({{format, "caf\xe9"}, {"COMPOUND_TEXT", "?"}}));
        const auto copied = pasteboard.changeCount();
        clean();
        EXPECT_EQ(pasteboard.changeCount(), copied);
        EXPECT_EQ(acknowledged.back(), copied) << "it has been dealt with";
    }
    EXPECT_EQ(cleaned, 2);
    pasteboard.copy(content({{"text/html", "<b>ab</b>"}, {"UTF8_STRING", "ab"}}));
    clean();
    EXPECT_EQ(count("written"), 1u);
}

TEST_F(ClipboardCleanTest, OurLastResultAsAnothersPlainTextIsNotCleanedByItself) {
    setOptions({{"udAddPrefix", true}, {"udPrefixTextField", u">"}});
    pasteboard.copyText("a");
    clean();
    const auto cleanByItself = [&] {
        engine.changePasteboard(CopyTable());
        finish();
    };
    pasteboard.copyText(">a");
    cleanByItself();
    EXPECT_EQ(text(), ">a");
    clean();
    EXPECT_EQ(text(), ">>a") << "but it is when somebody asks for it";
    pasteboard.copy(content({{"text/html", "x"}, {"text/plain", ">>a"}}));
    cleanByItself();
    EXPECT_EQ(text(), ">>>a");
}

TEST_F(ClipboardCleanTest, ARowOfTheTableChoosesTheOptions) {
    const auto upper = [] {
        auto options = std::make_shared<engine::CleaningOptions>();
        options->udChangeCaseTo = true;
        options->udChangeCaseOption = 3;
        options->udStatistics = true;
        return options;
    }();
    struct Window final : CountWindow {
        explicit Window(std::u16string &shown)
            : shown_(shown) {}
        void countToTextFields(std::u16string, std::u16string, std::u16string,
                               std::u16string) override {}
        void tellProfile(std::u16string name) override { shown_ = std::move(name); }
        void showWindow() override {}
        std::u16string &shown_;
    };
    std::u16string shown;
    engine.setCountWindowMaker([&] { return std::make_unique<Window>(shown); });
    engine.setCopyTableMaker([&] {
        return CopyTable{{{.on = true, .format = "x-secretive"}, 1, {}, nullptr},
                         {{.on = true, .host = "example.org", .profile = u"u"}, 2, u"Loud", upper},
                         {{.on = true, .looks = Looks::link, .profile = u"u"}, 3, u"Loud", upper},
                         {{.on = true, .looks = Looks::code}, 4, {}, nullptr}};
    });
    using Outcome = DecidedCopy::Outcome;
    const auto code = "if (a) {\n  b;\n}\n";
    const struct {
        const char *shows;
        PasteboardContent copied;
        bool onDemand;
        std::string text;
        Outcome outcome;
        std::size_t row; // 0: none
    } rows[] = {
        {"by its page",
         content({{"chromium/x-source-url", "http://a.example.org/"}, {"UTF8_STRING", "a b"}}),
         false, "A B", Outcome::cleaned, 2},
        {"of another page",
         content({{"chromium/x-source-url", "http://example.net/"}, {"UTF8_STRING", "a b"}}), false,
         "ab", Outcome::cleaned, 0},
        {"a link", content({{"UTF8_STRING", "http://a"}}), false, "HTTP://A", Outcome::cleaned, 3},
        {"left alone by its formats", content({{"x-secretive", ""}, {"UTF8_STRING", "a b"}}), false,
         "a b", Outcome::leftAlone, 1},
        {"but not when it is asked for", content({{"x-secretive", ""}, {"UTF8_STRING", "a b"}}),
         true, "ab", Outcome::cleaned, 0},
        {"left alone by its looks", content({{"UTF8_STRING", code}}), false, code,
         Outcome::leftAlone, 4},
        {"files", content({{"text/uri-list", "a b"}, {"UTF8_STRING", "a b"}}), true, "a b",
         Outcome::noText, 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.shows);
        shown.clear();
        pasteboard.log.clear();
        pasteboard.copy(row.copied);
        if (row.onDemand) {
            engine.changePasteboard();
        } else {
            engine.changePasteboard(CopyTable());
        }
        finish();
        EXPECT_EQ(pasteboard.bytes("UTF8_STRING"), row.text);
        const DecidedCopy &decided = engine.decided();
        EXPECT_EQ(decided.outcome, row.outcome);
        EXPECT_EQ(decided.onDemand, row.onDemand);
        EXPECT_EQ(decided.row ? decided.row->number : 0, row.row);
        EXPECT_EQ(shown, decided.row && decided.row->options ? u"Loud" : u"");
        EXPECT_EQ(std::ranges::count(pasteboard.log, "formats"), 1);
        EXPECT_EQ(pasteboard.log.size() == 1, row.row == 1 || row.outcome == Outcome::noText)
            << "nothing is read in vain";
    }
    pasteboard.copy(content({{"UTF8_STRING", "a b"}}));
    engine.changePasteboardWithKeys(removeAllSpaces);
    finish();
    EXPECT_EQ(text(), "ab") << "an operation has the options of the selected profile";
}

TEST_F(ClipboardCleanTest, TheNextFormatIsTakenWhereOneIsRefusedOrBroken) {
    pasteboard.copy(content(
        {{"text/html", "x"}, {"STRING", "a \xe9"}, {"UTF8_STRING", "\xff"}, {"text/plain", ""}}));
    clean();
    EXPECT_EQ(text(), "a\xc3\xa9");
    std::optional<std::u16string> read;
    pasteboard.copy(content({{"TEXT", "\xff"}}));
    engine.readClipboardText([&](auto got) { read = got.value_or(u"none"); });
    finish();
    EXPECT_EQ(read, u"none");
}

TEST_F(ClipboardCleanTest, ATextBeyondTheLimitIsTold) {
    int told = 0;
    engine.setTooLargeHandler([&] { ++told; });
    const auto large = std::make_shared<const std::string>(cleanedTextLimit + 1, ' ');
    pasteboard.copy({{"text/plain", {}, large}});
    clean();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(pasteboard.content()[0].bytes, large);
}

TEST_F(ClipboardCleanTest, NeverReplacesANewerCopyNorRefillsAnEmptiedClipboard) {
    const struct {
        const char *name;
        std::function<void()> meanwhile;
        std::string after;
    } rows[] = {
        {"copied again", [&] { pasteboard.copyText("n e w"); }, "n e w"},
        {"the same text copied again", [&] { pasteboard.copyText("a b"); }, "a b"},
        {"emptied", [&] { pasteboard.empty(); }, ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        pasteboard.copyText("a b");
        begin();
        row.meanwhile();
        finish();
        EXPECT_EQ(text(), row.after);
        // The change may also come before the text is read.
        pasteboard.copyText("a b");
        engine.changePasteboard();
        row.meanwhile();
        finish();
        EXPECT_EQ(text(), row.after);
    }
    EXPECT_TRUE(acknowledged.empty());
}

TEST_F(ClipboardCleanTest, WritesBackInTheOrderInWhichCleansEnd) {
    setOptions({{"udPrefixTextField", u">"}});
    pasteboard.copyText("a b");
    engine.changePasteboardWithKeys(removeAllSpaces);
    engine.changePasteboardWithKeys(addPrefix);
    mainQueue.runPosted();
    ASSERT_EQ(workers.size(), 2u);
    workers.run(1);
    workers.run(0);
    finish();
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(acknowledged.size(), 2u);
    EXPECT_EQ(count("refused"), 0u);
}

// The snapshot and the table of copies say otherwise.
TEST_F(ClipboardCleanTest, AChoiceIsDoneWhateverElseIsOnAndTellsWhatBecameOfIt) {
    engine::CleaningOptions prefix;
    prefix.udPrefixTextField = u"> ";
    const auto options = std::make_shared<const engine::CleaningOptions>(prefix);
    const auto known =
        std::make_shared<const std::pair<std::u16string, std::u16string>>(u"a b", u"as shown");
    const struct {
        const char *shows;
        nrChangePasterboard::Choice choice;
        const char *copied;
        const char *expected; // "": it is not done
    } rows[] = {
        {"one operation", {options, addPrefix, nullptr}, "a b", "> a b"},
        {"everything in its options, which is nothing", {options, {}, nullptr}, "a b", "a b"},
        {"the known result", {options, addPrefix, known}, "a b", "as shown"},
        {"another text than the known one", {options, addPrefix, known}, "b", "> b"},
        {"a link stays", {options, addPrefix, nullptr}, "https://example.org/", ""},
    };
    for (const auto &row : rows) {
        pasteboard.copy(content({{"text/plain", row.copied}, {"text/html", "<b>"}}));
        std::optional<bool> ended;
        engine.changePasteboard(row.choice, [&](bool done) { ended = done; });
        finish();
        EXPECT_EQ(ended, *row.expected != 0) << row.shows;
        EXPECT_EQ(text(), *row.expected ? row.expected : row.copied) << row.shows;
    }
}

TEST_F(ClipboardCleanTest, ATextOfOurOwnIsNoCopyAndEndsWhatCouldBeRestored) {
    pasteboard.copyText("a b");
    cleanWith(removeAllSpaces);
    acknowledged.clear();
    bool put = false;
    engine.putText(u"c  d", [&](bool done) { put = done; });
    EXPECT_TRUE(engine.writing());
    finish();
    EXPECT_TRUE(put);
    EXPECT_EQ(text(), "c  d");
    EXPECT_EQ(acknowledged, std::vector{pasteboard.changeCount()});
    EXPECT_NE(engine.restorable(), nrChangePasterboard::Restored::done);
}

TEST_F(ClipboardCleanTest, AnyOtherIndexStillMakesItPlainText) {
    for (const auto index : {40, -1}) {
        pasteboard.copy(content({{"text/html", "<b>a b</b>"}, {"UTF8_STRING", "a b"}}));
        cleanWith(index);
        EXPECT_EQ(text(), "a b");
        EXPECT_EQ(pasteboard.bytes("text/html"), "");
    }
}

TEST_F(ClipboardCleanTest, ACleanKeepsTheOptionsThatItStartedWith) {
    pasteboard.copyText("a b");
    engine.changePasteboard();
    setOptions({});
    finish();
    EXPECT_EQ(text(), "ab");
}

class RecordingWindow final : public CountWindow {
  public:
    explicit RecordingWindow(Log &log_)
        : log(log_) {
        log.emplace_back("made");
    }
    ~RecordingWindow() override { log.emplace_back("closed"); }
    void countToTextFields(std::u16string, std::u16string, std::u16string,
                           std::u16string) override {
        log.emplace_back("filled");
    }
    void tellReport(const engine::CleaningReport &) override { log.emplace_back("told"); }
    void tellSteps(const std::vector<ChangedStep> &steps) override {
        for (const ChangedStep &step : steps) {
            log.emplace_back(step.operation->name).append(" " + std::to_string(step.changes));
        }
    }
    void showWindow() override { log.emplace_back("shown"); }

  private:
    Log &log;
};

TEST_F(ClipboardCleanTest, StatisticsReplaceThePopupAndWriteNothing) {
    Log windows;
    engine.setCountWindowMaker([&] { return std::make_unique<RecordingWindow>(windows); });
    pasteboard.copyText("a b");
    const auto before = pasteboard.changeCount();
    cleanWith(engine::statisticsOperation);
    EXPECT_EQ(windows, Log({"made", "filled", "shown"}));
    EXPECT_EQ(pasteboard.changeCount(), before);
    EXPECT_TRUE(acknowledged.empty());

    setOptions({{"udStatistics", true}});
    clean();
    EXPECT_EQ(windows, Log({"made", "filled", "shown", "closed", "made", "filled", "shown"}));
    EXPECT_EQ(acknowledged.size(), 1u);

    // A single operation shows none, whatever the switch says.
    cleanWith(removeAllSpaces);
    EXPECT_EQ(windows.size(), 7u);
    engine.setCountWindowMaker(nullptr);
    engine.newCountWindow(u"x");
    finish();
    EXPECT_EQ(windows.back(), "closed");
}

TEST_F(ClipboardCleanTest, ThePopupTellsTheStepsOnlyWhenAskedAndBehindTheWrite) {
    Log windows;
    engine.setCountWindowMaker([&] { return std::make_unique<RecordingWindow>(windows); });
    const auto told = [&](bool rules, const std::string &copied) {
        setOptions({{"udStatistics", true},
                    {"udStatisticsRules", rules},
                    {"udChangeMultipleSpacesToSingleSpace", true},
                    {"udRemoveAllTabs", true}});
        windows.clear();
        pasteboard.copyText(copied);
        clean();
        return windows;
    };
    const Log none{"made", "filled", "shown"};
    const Log closed{"closed", "made", "filled", "shown"};
    EXPECT_EQ(told(false, "a  b"), none);
    EXPECT_EQ(told(true, "a b"), closed) << "nothing was changed";
    EXPECT_EQ(told(true, "a  b  c"),
              Log({"closed", "made", "filled", "collapse-spaces 2", "shown"}));
    EXPECT_EQ(text(), "a b c");
    EXPECT_EQ(told(true, std::string(tracedTextLimit + 1, ' ')), closed);
    engine.setCountWindowMaker(nullptr);
    engine.newCountWindow(u"x");
    finish();
}

TEST_F(ClipboardCleanTest, ARuleThatIsGivenUpIsToldAndTheRestIsDone) {
    Log windows;
    engine.setCountWindowMaker([&] { return std::make_unique<RecordingWindow>(windows); });
    std::vector<engine::CleaningReport> reports;
    engine.setReportHandler([&](const auto &report) { reports.push_back(report); });
    setOptions({{"udRemoveAllSpaces", true},
                {"udStatistics", true},
                {"udInsertYourPattern", true},
                {"udInsertYourPatternTextField", u"(a+)+$"}});
    const std::string letters(40, 'a');
    pasteboard.copyText(letters + " !");
    clean();
    EXPECT_EQ(text(), letters + "!");
    EXPECT_EQ(windows, Log({"made", "filled", "told", "shown"}));
    pasteboard.copyText("b");
    clean();
    EXPECT_EQ(reports, (std::vector<engine::CleaningReport>{{engine::PatternFailure{}}, {}}));
    // The window writes into the log as it goes.
    engine.setCountWindowMaker(nullptr);
    engine.newCountWindow(u"x");
    finish();
}

class RestoreTest : public ClipboardCleanTest {
  protected:
    nrChangePasterboard::Restored restore() {
        std::optional<nrChangePasterboard::Restored> outcome;
        engine.restore([&](nrChangePasterboard::Restored result) { outcome = result; });
        finish();
        return outcome.value();
    }

    const PasteboardContent rich = content({{"text/html", "<b>a b</b>"},
                                            {"UTF8_STRING", "a b"},
                                            {"image/png", std::string("\0x", 2)}});
    using Restored = nrChangePasterboard::Restored;
};

TEST_F(RestoreTest, SwapsTheOriginalAndTheResult) {
    EXPECT_EQ(restore(), Restored::nothingKept);
    int told = 0;
    engine.setRestorableHandler([&] { ++told; });
    pasteboard.copy(rich);
    clean();
    EXPECT_EQ(engine.restorableWords(), u"a b");
    // Cleaning our own result again does not make it the original.
    setOptions({{"udPrefixTextField", u" \n\ta quite long prefix, line\u2028by line, "}});
    cleanWith(addPrefix);
    const auto result = text();
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(engine.restorableWords(), u"a b");
        EXPECT_EQ(restore(), Restored::done);
        EXPECT_EQ(plain(pasteboard.content()), plain(rich));
        EXPECT_EQ(acknowledged.back(), pasteboard.changeCount());
        EXPECT_EQ(engine.restorableWords(), u"a quite long prefix, lin…");
        EXPECT_EQ(restore(), Restored::done);
        EXPECT_EQ(text(), result);
        EXPECT_EQ(pasteboard.bytes("text/html"), "");
    }
    EXPECT_EQ(told, 2 + 4);
    // Of the restored original too, which still is the original.
    restore();
    cleanWith(removeAllSpaces);
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(restore(), Restored::done);
    EXPECT_EQ(plain(pasteboard.content()), plain(rich));
}

TEST_F(RestoreTest, NeverTouchesWhatCameAfterTheResult) {
    const std::pair<const char *, std::function<void()>> rows[] = {
        {"text", [&] { pasteboard.copyText("n e w"); }},
        {"rich text", [&] { pasteboard.copy(rich); }},
        {"emptied", [&] { pasteboard.empty(); }},
        {"secret",
         [&] {
             pasteboard.copy(
                 content({{"x-kde-passwordManagerHint", "secret"}, {"text/plain", "p"}}));
         }},
    };
    for (const auto &[name, replace] : rows) {
        SCOPED_TRACE(name);
        for (const bool original : {false, true}) {
            pasteboard.copy(rich);
            clean();
            if (original) {
                restore();
            }
            replace();
            const auto newer = pasteboard.content();
            EXPECT_EQ(restore(), Restored::newerCopy);
            // It may also come while we write.
            pasteboard.copy(rich);
            clean();
            std::optional<Restored> outcome;
            engine.restore([&](Restored result) { outcome = result; });
            replace();
            finish();
            EXPECT_EQ(outcome, Restored::newerCopy);
            EXPECT_EQ(plain(pasteboard.content()), plain(newer));
            EXPECT_EQ(engine.restorableWords(), u"");
        }
    }
}

TEST_F(RestoreTest, TellsWhatItDoesNotHave) {
    engine.keepOriginalsUpTo(100);
    pasteboard.copy(content({{"text/html", "x"}, {"text/plain", std::string(101, 'x')}}));
    clean();
    EXPECT_EQ(restore(), Restored::tooLarge);

    pasteboard.copy(rich);
    clean();
    EXPECT_EQ(engine.restorable(), Restored::done);
    mainQueue.advance(keptOriginalTime + std::chrono::minutes(1));
    EXPECT_EQ(restore(), Restored::tooOld);

    // Formats that do not fit, that are late, or that have no usable name; pictures are read last.
    pasteboard.copy(content({{"image/png", std::string(98, 'x')},
                             {"application/x-own", "own"},
                             {"text/html", "<b>a b</b>"},
                             {"UTF8_STRING", "a b"}}));
    pasteboard.log.clear();
    clean();
    EXPECT_EQ(pasteboard.log[1], "read UTF8_STRING,text/html,application/x-own,image/png");
    EXPECT_EQ(restore(), Restored::incomplete);
    EXPECT_EQ(pasteboard.formatNames(), Log({"application/x-own", "text/html", "UTF8_STRING"}));
    EXPECT_EQ(restore(), Restored::done) << "the result is whole";

    pasteboard.copy(rich, {.silent = {"text/html"}});
    engine.changePasteboard();
    mainQueue.advance(platform::pasteboardOthersLimit);
    finish();
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(restore(), Restored::incomplete);
    EXPECT_EQ(pasteboard.formatNames(), Log({"UTF8_STRING", "image/png"}));
}

// Each line of the log names what the owner was asked for.
TEST_F(RestoreTest, WithoutOriginalsOnlyWhatTheCleanNeedsIsAskedFor) {
    const auto asked = [&](const PasteboardContent &copied) {
        pasteboard.copy(copied);
        pasteboard.log.clear();
        clean();
        std::erase_if(pasteboard.log, [](const auto &line) { return !line.starts_with("read "); });
        return pasteboard.log;
    };
    EXPECT_EQ(asked(rich), Log({"read UTF8_STRING,text/html,image/png"}));
    engine.keepOriginalsUpTo(0);
    EXPECT_EQ(restore(), Restored::nothingKept) << "the one that was kept";
    EXPECT_EQ(asked(rich), Log({"read UTF8_STRING"}));
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(restore(), Restored::nothingKept);
    auto hinted = rich;
    hinted.push_back(content({{"CLIPBOARD_STATE", "plain"}})[0]);
    EXPECT_EQ(asked(hinted), Log({"read CLIPBOARD_STATE", "read UTF8_STRING"}));
    // A rule for pages needs the page.
    auto page = rich;
    page.push_back(content({{"text/x-moz-url-priv", "https://a.example/"}})[0]);
    engine.setCopyTableMaker([this] {
        return CopyTable{
            {{.on = true, .host = "b.example", .profile = u"p"}, 1, u"p", engine.snapshot()}};
    });
    EXPECT_EQ(asked(page), Log({"read UTF8_STRING,text/x-moz-url-priv,text/html"}));
    engine.setCopyTableMaker(nullptr);
    // What is on its way when the setting changes is not kept either.
    engine.keepOriginalsUpTo(keptOriginalLimit);
    pasteboard.copy(rich);
    engine.changePasteboard();
    mainQueue.runPosted();
    engine.keepOriginalsUpTo(0);
    finish();
    EXPECT_EQ(restore(), Restored::nothingKept);
}

TEST_F(RestoreTest, OfTwoCleansOfOurResultTheOriginalStays) {
    setOptions({{"udRemoveAllSpaces", true}, {"udPrefixTextField", u">"}});
    pasteboard.copy(rich);
    clean();
    engine.changePasteboardWithKeys(addPrefix);
    engine.changePasteboardWithKeys(addPrefix);
    finish();
    EXPECT_EQ(restore(), Restored::done);
    EXPECT_EQ(plain(pasteboard.content()), plain(rich));
}

TEST_F(ClipboardCleanTest, AnEngineThatEndsLeavesWorkUnderWayHarmless) {
    auto brief = std::make_unique<nrChangePasterboard>(pasteboard, mainQueue, workers, "en_US");
    pasteboard.copyText("a b");
    brief->changePasteboard();
    mainQueue.runPosted();
    brief->changePasteboard();
    brief.reset();
    finish();
    EXPECT_EQ(text(), "a b");
}

} // namespace
} // namespace nerlo::clipboard
