// Where the output goes, and what happens when it cannot go there.
#include "tests/cli/RunNerlo.h"

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nerlo::test {

namespace {

const std::string request = "{\"id\":1,\"text\":\"a  b\"}\n";
const std::string answer = "{\"id\":1,\"text\":\"a b\"}\n";

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
        lines += request;
    }
    return {{{"clean"}, std::string(300000, 'a')},
            {{"count"}, "a"},
            {{"operations"}, ""},
            {{"keys", "--json"}, ""},
            {{"--help"}, ""},
            {{"batch"}, lines},
            {{"batch", "--jobs", "2"}, lines}};
}

TEST(Output, AClosedPipeEndsQuietlyAndAFullDiskIsReported) {
    const auto closedPipe = [] {
        int ends[2];
        if (pipe(ends) == 0) {
            close(ends[0]);
            dup2(ends[1], STDOUT_FILENO);
            close(ends[1]);
        }
    };
    const auto fullDisk = [] { dup2(open("/dev/full", O_WRONLY | O_CLOEXEC), STDOUT_FILENO); };
    for (const auto &[arguments, input] : commands()) {
        SCOPED_TRACE(arguments[0]);
        const Ended closed = NerloRun{arguments, input, {}, closedPipe}.toEnd();
        EXPECT_EQ(closed.status, 0);
        EXPECT_EQ(closed.err, "");
        const Ended full = NerloRun{arguments, input, {}, fullDisk}.toEnd();
        EXPECT_EQ(full.status, 1);
        EXPECT_EQ(full.err, "nerlo: standard output: No space left on device\n");
    }
}

// A descriptor that the caller closed must not be given to a file that the program opens.
TEST(Output, ClosedDescriptorsAreNotReused) {
    const TemporaryFolder folder;
    putBytes(folder / "file", "a  b");
    const Ended ended = NerloRun{
        {"clean", "--in-place", folder / "file"}, "", {}, [] {
            close(STDIN_FILENO);
            close(STDOUT_FILENO);
        }}.toEnd();
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(bytesOf(folder / "file"), "a b");

    const Ended unread = NerloRun{{"clean"}, "", {}, [] { close(STDIN_FILENO); }}.toEnd();
    EXPECT_EQ(unread.status, 1);
    EXPECT_EQ(unread.err, "nerlo: standard input: Bad file descriptor\n");
}

// An editor sends a request and waits for its answer before it sends the next.
TEST(Output, BatchAnswersBeforeMoreIsAsked) {
    for (const char *jobs : {"1", "2"}) {
        int toChild = -1;
        int fromChild = -1;
        const pid_t child =
            NerloRun{{"batch", "--jobs", jobs}, "", {}, {}}.start(&toChild, &fromChild);
        for (int round = 0; round < 3; ++round) {
            ASSERT_EQ(write(toChild, request.data(), request.size()),
                      static_cast<ssize_t>(request.size()));
            pollfd ready{fromChild, POLLIN, 0};
            ASSERT_EQ(poll(&ready, 1, 60000), 1) << "no answer";
            char buffer[100];
            const ssize_t size = read(fromChild, buffer, sizeof buffer);
            EXPECT_EQ(std::string(buffer, static_cast<std::size_t>(size)), answer);
        }
        // Nobody reads any more: the next answer ends the program, though its input stays open.
        close(fromChild);
        ASSERT_EQ(write(toChild, request.data(), request.size()),
                  static_cast<ssize_t>(request.size()));
        EXPECT_EQ(waitFor(child), 0);
        close(toChild);
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
    const std::string before(20000, 'a');
    putBytes(folder / "file", before);
    const Ended ended = NerloRun{
        {"clean", "--in-place", folder / "file"}, "", {}, [] {
            const rlimit limit{10000, 10000};
            setrlimit(RLIMIT_FSIZE, &limit);
        }}.toEnd();
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
        {"an empty LC_ALL does not count", {{"LC_ALL", ""}, {"LANG", "tr_TR"}}, {}, "İ"},
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
