// Where the output goes, and what happens when it cannot go there.
#include "tests/cli/RunNerlo.h"

#include <nlohmann/json.hpp>

#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::test {

namespace {

const std::string request = R"({"id":1,"text":"a  b"})";
const std::string answer = R"({"id":1,"text":"a b"})";

mode_t modeOf(const std::string &path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? status.st_mode : 0;
}

// Every command that reads, with input for it.
struct Command {
    std::vector<std::string> arguments;
    std::string input;
};

std::vector<Command> commands() {
    std::string lines;
    for (int i = 0; i < 20000; ++i) {
        lines += request + "\n";
    }
    return {{{"clean"}, std::string(300000, 'a')},
            {{"clean", "--operation", "remove-tabs"}, std::string(300000, 'a')},
            {{"count"}, "a"},
            {{"operations"}, ""},
            {{"keys", "--json"}, ""},
            {{"--help"}, ""},
            {{"batch"}, lines},
            {{"batch", "--jobs", "2"}, lines}};
}

TEST(Output, AClosedPipeEndsQuietlyAndAFullDiskIsReported) {
    // The pipe had a reader, which has closed it.
    const std::string closedPipe =
        "mkfifo $0.pipe && exec 3<>$0.pipe && exec >$0.pipe && exec 3<&-";
    for (const auto &[arguments, input] : commands()) {
        SCOPED_TRACE(arguments[0]);
        const Ended closed = NerloRun{arguments, input, {}, closedPipe}.toEnd();
        EXPECT_EQ(closed.status, 0);
        EXPECT_EQ(closed.err + closed.out, "");
        const Ended full = NerloRun{arguments, input, {}, "exec >/dev/full"}.toEnd();
        EXPECT_EQ(full.status, 1);
        EXPECT_EQ(full.err, "nerlo: standard output: No space left on device\n");
    }
}

// A descriptor that the caller closed must not be given to a file that the program opens.
TEST(Output, ClosedDescriptorsAreNotReused) {
    const TemporaryFolder folder;
    putBytes(folder / "file", "a  b");
    const Ended ended =
        NerloRun{{"clean", "--in-place", folder / "file"}, "", {}, "exec <&- >&-"}.toEnd();
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(bytesOf(folder / "file"), "a b");

    const Ended unread = NerloRun{{"clean"}, "", {}, "exec <&-"}.toEnd();
    EXPECT_EQ(unread.status, 1);
    EXPECT_EQ(unread.err, "nerlo: standard input: Bad file descriptor\n");
}

// An editor sends a request and waits for its answer before it sends the next.
TEST(Output, BatchAnswersBeforeMoreIsAsked) {
    const std::string script = R"(
        coproc NERLO { exec "$0" batch --jobs "$1" 2>/dev/null; }
        for round in 1 2 3; do
            echo "$2" >&${NERLO[1]}
            read -r -t 60 answer <&${NERLO[0]} && [ "$answer" = "$3" ] || exit 99
        done
        # Nobody reads any more: the next answer ends the program, though its input stays open.
        child=$NERLO_PID
        exec {NERLO[0]}<&-
        echo "$2" >&${NERLO[1]}
        wait "$child")";
    for (const char *jobs : {"1", "2"}) {
        EXPECT_EQ(Process({"bash", "-c", script, NERLO_PROGRAM, jobs, request, answer})
                      .wait(std::chrono::minutes(5)),
                  0)
            << jobs;
    }
}

TEST(InPlace, KeepsModeAndLinkAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    for (const mode_t mode : {0644u, 0600u, 0755u, 0444u}) {
        putBytes(folder / "real/file", "a  b");
        chmod((folder / "real/file").c_str(), mode);
        ASSERT_EQ(symlink("real/file", (folder / "link").c_str()), 0);
        const Ended ended = NerloRun{{"clean", "--in-place", folder / "link"}, "", {}, {}}.toEnd();
        EXPECT_EQ(ended.status, 0) << ended.err;
        EXPECT_EQ(ended.out, "");
        EXPECT_TRUE(S_ISLNK(modeOf(folder / "link")));
        EXPECT_EQ(modeOf(folder / "real/file"), S_IFREG | mode);
        EXPECT_EQ(bytesOf(folder / "real/file"), "a b");
        EXPECT_EQ(folder.count(".nerlo-"), 0);
        unlink((folder / "link").c_str());
        unlink((folder / "real/file").c_str());
    }
}

TEST(InPlace, KeepsTheEndTheMarkAndAFileThatStaysTheSame) {
    const TemporaryFolder folder;
    const struct {
        const char *before;
        const char *after;
    } rows[] = {
        {"a  b\n", "a b\n"},
        {"a  b\r\n", "a b\r\n"},
        {"a  b\r", "a b\r"},
        {"a  b", "a b"},
        {"a.\r\n\r\nb. \r\n", "a.\nb.\n"},
        {"\n", "\n"},
        {"\xEF\xBB\xBF a  b\n", "\xEF\xBB\xBF"
                                "a b\n"},
        {"\xEF\xBB\xBF", "\xEF\xBB\xBF"},
    };
    const auto clean = [&] {
        return NerloRun{{"clean", "-i", folder / "file"}, "", {}, {}}.toEnd();
    };
    const auto inode = [&] {
        struct stat status {};
        return stat((folder / "file").c_str(), &status) == 0 ? status.st_ino : 0;
    };
    for (const auto &[before, after] : rows) {
        putBytes(folder / "file", before);
        EXPECT_EQ(clean().status, 0);
        EXPECT_EQ(bytesOf(folder / "file"), after);
        const auto cleaned = inode();
        EXPECT_EQ(clean().status, 0);
        EXPECT_EQ(inode(), cleaned) << "rewritten: " << after;
    }
}

// A file name is taken as it is, even if the parser of the arguments has a use for such words.
TEST(Arguments, AreTakenAsTheyAre) {
    const TemporaryFolder folder;
    const std::vector<std::string> names{"[a]", "[a,b]", "[]", "{}", "++", "\1x", "--x=[q]", "--"};
    for (const std::string &name : names) {
        putBytes(folder / name, name + "  .");
        const std::string before = "cd " + folder.path();
        EXPECT_EQ((NerloRun{{"clean", "--", name}, "", {}, before}.toEnd().out), name + ".");
        if (!name.starts_with("--")) {
            EXPECT_EQ((NerloRun{{"clean", name}, "", {}, before}.toEnd().out), name + ".");
            const Ended count = NerloRun{{"count", "--json", name}, "", {}, before}.toEnd();
            EXPECT_EQ(nlohmann::json::parse(count.out)["file"], name);
        }
        for (const char *option : {"--set", "--operation", "--profile", "--options"}) {
            const Ended ended = NerloRun{{"clean", option + ("=" + name)}, "a", {}, before}.toEnd();
            EXPECT_NE(ended.status, 0) << option << " " << name;
            EXPECT_NE(ended.err.find(name.substr(0, name.find('='))), std::string::npos)
                << ended.err;
        }
    }
    const Ended glued =
        NerloRun{{"clean", "[a]", "--", "[]", "--"}, "", {}, "cd " + folder.path()}.toEnd();
    EXPECT_EQ(glued.out, "[a].\n[].\n--.");
}

TEST(InPlace, BadFilesStayAndGoodOnesAreCleaned) {
    const TemporaryFolder folder;
    putBytes(folder / "bad", "a  b\xFF");
    putBytes(folder / "good", "a  b");
    const Ended ended = NerloRun{
        {"clean", "--in-place", folder / "bad", "/dev/null", folder / "good"},
        "",
        {},
        {}}.toEnd();
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.err, "nerlo: " + folder / "bad" + ": invalid UTF-8 at byte 4\n" +
                             "nerlo: /dev/null: not a regular file\n");
    EXPECT_EQ(bytesOf(folder / "bad"), "a  b\xFF");
    EXPECT_EQ(bytesOf(folder / "good"), "a b");
}

TEST(InPlace, FailedWriteLeavesTheOldFile) {
    const TemporaryFolder folder;
    const std::string before = "a  " + std::string(20000, 'a');
    putBytes(folder / "file", before);
    const Ended ended =
        NerloRun{{"clean", "--in-place", folder / "file"}, "", {}, "ulimit -f 19"}.toEnd();
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.err, "nerlo: " + folder / "file" + ": File too large\n");
    EXPECT_EQ(bytesOf(folder / "file"), before);
    EXPECT_EQ(folder.count(".nerlo-"), 0);
}

TEST(Locale, ComesFromTheEnvironmentUnlessGiven) {
    const struct {
        const char *shows;
        Environment environment;
        std::vector<std::string> arguments;
        const char *expected;
    } rows[] = {
        {"LC_ALL wins", {{"LC_ALL", "tr_TR.UTF-8"}, {"LANG", "de_DE"}}, {}, "İ"},
        {"letters follow LC_CTYPE before LANG",
         {{"LC_ALL", ""}, {"LC_CTYPE", "de_DE"}, {"LANG", "tr_TR"}},
         {},
         "I"},
        {"C has no language", {{"LC_ALL", "C"}, {"LANG", "tr_TR"}}, {}, "I"},
        {"the argument wins", {{"LC_ALL", "de_DE"}}, {"--locale", "tr"}, "İ"},
    };
    for (const auto &row : rows) {
        NerloRun run{{"clean", "--operation", "6", "--set", "udChangeCaseOption=3"},
                     "i",
                     row.environment,
                     {}};
        run.arguments.insert(run.arguments.end(), row.arguments.begin(), row.arguments.end());
        EXPECT_EQ(run.toEnd().out, row.expected) << row.shows;
    }
}

// A first start takes its quote styles from the user's language.
TEST(Locale, ChoosesTheQuotes) {
    const Ended german = NerloRun{{"clean"}, "‚a‘", {{"LC_ALL", "de_AT.UTF-8"}}, {}}.toEnd();
    EXPECT_EQ(german.out, "„a“");
    const Ended french =
        NerloRun{{"clean"}, "‹ a ›", {{"LC_ALL", "de_DE"}, {"LANGUAGE", "xx:fr:de"}}, {}}.toEnd();
    EXPECT_EQ(french.out, "‹ a ›") << "\"xx\" comes first and has the styles of English";
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(Memory, SixTimesTheInputAtMost) {
    const std::string sentence = "The  meeting is moved to\nThursday , ‘at noon’ .\n> See you.\n";
    std::string text;
    while (text.size() < (8u << 20)) {
        text += sentence;
    }
    const long idle = NerloRun{{"clean"}, sentence, {}, {}}.toEnd().peakKilobytes;
    const Ended ended = NerloRun{{"clean"}, text, {}, {}}.toEnd();
    EXPECT_EQ(ended.status, 0);
    EXPECT_LE(ended.peakKilobytes - idle, static_cast<long>(6 * text.size() / 1024));
}
#endif

} // namespace

} // namespace nerlo::test
