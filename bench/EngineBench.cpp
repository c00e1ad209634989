// Each operation and the first-start pipeline on texts of 1 KB, 20 KB and 16 MB of UTF-8, in MB/s
// of UTF-16, with copying, transcoding and one pattern on the same text as the yardsticks.
#include "bench/Corpus.h"
#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "settings/SettingsKeys.h"
#include "text/Regex.h"
#include "text/Utf.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace nerlo::bench {
namespace {

using engine::CleaningContext;
using engine::CleaningOptions;
using storage::PropertyDictionary;

constexpr std::size_t sizes[] = {1 << 10, 20 << 10, 16 << 20};
constexpr Kind kinds[] = {Kind::Prose, Kind::Mixed, Kind::Html};
constexpr const char *kindNames[] = {"prose", "mixed", "html"};
constexpr const char *sizeNames[] = {"1K", "20K", "16M"};

const std::u16string &textOf(Kind kind, std::size_t bytes) {
    static std::map<std::pair<Kind, std::size_t>, std::u16string> texts;
    std::u16string &text = texts[{kind, bytes}];
    if (text.empty()) {
        text = makeText(kind, bytes);
    }
    return text;
}

// Measures run(text) without the copying of the text that it consumes.
template <class Run>
void measure(benchmark::State &state, const std::u16string &text, Run run) {
    using Clock = std::chrono::steady_clock;
    const std::size_t batch = text.size() > 1 << 20 ? 1 : 64;
    std::vector<std::u16string> copies(batch);
    for (auto _ : state) {
        for (std::u16string &copy : copies) {
            copy = text;
        }
        const auto begin = Clock::now();
        for (std::u16string &copy : copies) {
            run(copy);
        }
        const std::chrono::duration<double> time = Clock::now() - begin;
        benchmark::DoNotOptimize(copies.data());
        state.SetIterationTime(time.count() / static_cast<double>(batch));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size() * 2));
}

CleaningOptions optionsFrom(const PropertyDictionary &dictionary) {
    CleaningOptions options;
    options.setAllBools(dictionary);
    return options;
}

struct Case {
    const char *name;
    std::int32_t operation;
    PropertyDictionary settings;
};

std::vector<Case> cases() {
    std::vector<Case> rows;
    for (const engine::Operation &operation : engine::operations()) {
        // One of the replacement pairs is enough. The list of rules is empty here, and the
        // statistics change nothing.
        const bool idle = operation.name.starts_with("replace-") && operation.name != "replace-1";
        if (idle || operation.index == engine::statisticsOperation ||
            operation.name == "find-replace-list") {
            continue;
        }
        rows.push_back({operation.name.data(),
                        operation.index,
                        {{"udChangeReturnsOption", 1},
                         {"udChangeWrongInsertedReturnsOption", 1},
                         {"udInsertYourPatternTextField", u"[0-9]+"},
                         {"udPrefixTextField", u"> "},
                         {"udSuffixTextField", u"\n"},
                         {"udChangeProperty1ChangeTextField", u"the"},
                         {"udChangeProperty1ToTextField", u"THE"}}});
    }
    for (const auto &[name, value] : {std::pair{"change-case/capitalized", 1},
                                      {"change-case/lower", 2},
                                      {"change-case/upper", 3}}) {
        rows.push_back({name, 6, {{"udChangeCaseOption", value}}});
    }
    rows.push_back({"change-quotes/straight", 7, {{"udChangeQuotesSingleOption", 9}}});
    rows.push_back({"change-quotes/all", 7, {{"udChangeQuotesAll", 1}}});
    rows.push_back({"remove-single-quotes/all", 8, {{"udRemoveSingleQuotesAll", 1}}});
    rows.push_back({"remove-tags/pattern", 11, {{"udRemoveHTMLTagsJS", 1}}});
    rows.push_back({"remove-hyphens/all", 34, {{"udRemoveHyphensAll", 1}}});
    rows.push_back({"sort-lines/locale", 23, {{"udSortOption", 2}}});
    rows.push_back({"sort-lines/code-units", 23, {{"udSortOption", 4}}});
    return rows;
}

void registerAll() {
    static const std::vector<Case> rows = cases();
    static const CleaningOptions firstStart = optionsFrom(settings::firstStartProfile("en"));
    static const CleaningOptions guarded = [] {
        CleaningOptions options = firstStart;
        options.udProtectStructure = true;
        return options;
    }();
    for (std::size_t k = 0; k < std::size(kinds); ++k) {
        for (std::size_t s = 0; s < std::size(sizes); ++s) {
            const Kind kind = kinds[k];
            const std::size_t size = sizes[s];
            const auto add = [&](const std::string &name, auto run) {
                const std::string full = name + "/" + kindNames[k] + "/" + sizeNames[s];
                auto *const row =
                    benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State &state) {
                        measure(state, textOf(kind, size), run);
                    });
                row->UseManualTime();
                if (size > 1 << 20) { // making the copies takes longer than some operations
                    row->Iterations(5);
                }
            };
            add("memcpy", [](std::u16string &text) {
                static std::u16string to;
                to.resize(text.size());
                std::memcpy(to.data(), text.data(), text.size() * 2);
                benchmark::DoNotOptimize(to.data());
            });
            add("utf16-to-utf8",
                [](std::u16string &text) { benchmark::DoNotOptimize(text::utf16ToUtf8(text)); });
            add("utf8-to-utf16", [bytes = std::string()](std::u16string &text) mutable {
                if (bytes.empty()) {
                    bytes = text::utf16ToUtf8(text);
                }
                benchmark::DoNotOptimize(text::utf8ToUtf16(bytes));
            });
            for (const Case &row : rows) {
                add(row.name, [&row](std::u16string &text) {
                    static std::map<const Case *, CleaningOptions> known;
                    auto &options = known[&row];
                    if (!options.kCheckSetters) {
                        options = optionsFrom(row.settings);
                    }
                    const CleaningContext context{options, "en_US"};
                    text = engine::runOperation(row.operation, std::move(text), context);
                });
            }
            add("counts", [](std::u16string &text) {
                benchmark::DoNotOptimize(engine::countAll(text, "en_US"));
            });
            // What one pattern costs, its compilation included: the yardstick for small texts.
            add("one-pattern-pass", [](std::u16string &text) {
                auto pattern = text::Regex::compile(u"[ ]+", text::Regex::Case::Sensitive);
                benchmark::DoNotOptimize(pattern->replaceAll(text, u" "));
            });
            add("first-start-pipeline", [](std::u16string &text) {
                text = engine::runPipeline(std::move(text), {firstStart, "en_US"});
            });
            add("guarded-first-start-pipeline", [](std::u16string &text) {
                text = engine::runPipeline(std::move(text), {guarded, "en_US"});
            });
            add("first-start-pipeline-and-counts", [](std::u16string &text) {
                text = engine::runPipeline(std::move(text), {firstStart, "en_US"});
                benchmark::DoNotOptimize(engine::countAll(text, "en_US"));
            });
        }
    }
}

} // namespace
} // namespace nerlo::bench

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    nerlo::bench::registerAll();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
