// Pipes that do not end: what is sure comes at once, in memory that does not grow.
#include "tests/cli/RunNerlo.h"

#include <algorithm>

namespace nerlo::test {

namespace {

// The whole input by a pipe, which is read as it comes, unlike a file.
const std::string byPipe = "exec 3<&0; mkfifo $0.pipe; cat <&3 >$0.pipe & exec <$0.pipe";

Arguments cleanWith(const std::string &operations) {
    Arguments arguments{"clean", "--set", "udChangeCaseOption=2"};
    for (std::size_t at = 0; at < operations.size();) {
        const std::size_t end = std::min(operations.find(' ', at), operations.size());
        arguments.insert(arguments.end(), {"--operation", operations.substr(at, end - at)});
        at = end + 1;
    }
    return arguments;
}

// The writer waits for each answer before it goes on.
TEST(Stream, WhatIsSureComesWhenTheInputPauses) {
    const std::string script = R"(
        coproc NERLO { exec "$0" "${@:3}"; }
        for round in 1 2 3; do
            printf "$1" >&${NERLO[1]}
            read -r -t 60 -N ${#2} answer <&${NERLO[0]} && [ "$answer" = "$2" ] || exit 99
        done)";
    struct Row {
        const char *operations;
        const char *written; // for printf
        const char *answer;
    };
    const Row rows[] = {
        {"collapse-spaces", "a  b  c\\n", "a b c\n"},
        {"collapse-spaces", "a  b  c", "a b c"},
        {"collapse-white-space", "a \\n b\\n", "a b "},
        {"change-returns", "a\\n\\nb", "a\nb"},
        {"remove-bullets", "\\342\\200\\242 a\\n", "a\n"},
        {"remove-space-around-return", "a\\n", "a\n"},
        {"remove-hyphens", "a\\n", "a\n"},
        {"change-case", "Word WORD\\n", "word word\n"},
        {"collapse-spaces remove-tabs change-case", "A  \\tB\\n", "a b\n"},
    };
    for (const Row &row : rows) {
        Arguments command{"env",
                          "HOME=/nonexistent",
                          "XDG_CONFIG_HOME=/nonexistent",
                          "bash",
                          "-c",
                          script,
                          NERLO_PROGRAM,
                          row.written,
                          row.answer};
        const Arguments rest = cleanWith(row.operations);
        command.insert(command.end(), rest.begin(), rest.end());
        Process process(command);
        EXPECT_EQ(process.wait(std::chrono::minutes(5)), 0) << row.operations;
    }
}

TEST(Stream, MemoryStaysSmallWhateverComes) {
    struct Row {
        const char *line;
        const char *operations;
    };
    const Row rows[] = {{"word  Word", "collapse-spaces remove-tabs remove-reply-marks"},
                        {"", "change-returns remove-tabs"},
                        {" ", "remove-space-around-return"},
                        {"\u2022", "remove-bullets collapse-white-space"},
                        {"y", "change-case"}};
    for (const Row &row : rows) {
        const NerloRun run{cleanWith(row.operations),
                           "",
                           {},
                           "mkfifo $0.pipe; { yes '" + std::string(row.line) +
                               "' | head -c 6000000 >$0.pipe; } & exec <$0.pipe >/dev/null"};
        const Ended ended = run.toEnd();
        EXPECT_EQ(ended.status, 0) << ended.err;
        EXPECT_TRUE(!peakTellsMemory || ended.peakKilobytes < 20'000)
            << ended.peakKilobytes << ": " << row.operations << " on lines of " << row.line;
    }
}

TEST(Stream, ABadByteComesBehindWhatWasSoundOnPipesOnly) {
    const std::string text = "\xEF\xBB\xBF"
                             "a  b\n\xFF c"; // the first three are no text
    const Arguments arguments = cleanWith("collapse-spaces");
    const Ended piped = NerloRun{arguments, text, {}, byPipe}.toEnd();
    EXPECT_EQ(piped.out, "a b\n");
    const Ended file = NerloRun{arguments, text, {}, ""}.toEnd();
    EXPECT_EQ(file.out, "");
    for (const Ended &ended : {piped, file}) {
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.err, "nerlo: standard input: invalid UTF-8 at byte 8\n");
    }
}

// Read while it grows, it would never end.
TEST(Stream, AFileMayBeAppendedToItself) {
    const TemporaryFolder folder;
    putBytes(folder / "file", "a  b\n");
    Arguments arguments = cleanWith("collapse-spaces");
    arguments.push_back(folder / "file");
    const Ended ended = NerloRun{arguments, "", {}, "exec >>" + (folder / "file")}.toEnd();
    EXPECT_EQ(ended.status, 0) << ended.err;
    EXPECT_EQ(bytesOf(folder / "file"), "a  b\na b\n");
}

} // namespace

} // namespace nerlo::test
