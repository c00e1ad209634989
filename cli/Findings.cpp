#include "cli/Findings.h"

#include "cli/ChangeWords.h"
#include "cli/Failure.h"
#include "engine/Operations.h"
#include "settings/JsonText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>

namespace nerlo::cli {

namespace {

using settings::jsonMembers;
using settings::jsonOfName;
using settings::TextPosition;

using text::Change;

// From the source to the text with its ending, by all steps together.
std::vector<Change> changesOfAll(const engine::Trace &trace, std::u16string_view ending) {
    std::vector<Change> all;
    for (const engine::TraceStep &step : trace.steps) {
        if (step.places.empty()) {
            continue;
        }
        std::vector<Change> changes;
        changes.reserve(step.places.size());
        for (const engine::TracedChange &place : step.places) {
            changes.push_back(place.change);
        }
        all = text::composed(all, changes);
    }
    if (!ending.empty()) {
        const std::size_t size = trace.text.size();
        all = text::composed(all, {{{size, size}, {size, size + ending.size()}}});
    }
    return all;
}

std::u16string_view partOf(std::u16string_view text, text::Range place) {
    return text.substr(place.begin, place.end - place.begin);
}

// Those of `all` that do change the source.
std::vector<Change> lastingChanges(std::vector<Change> all, std::u16string_view source,
                                   std::u16string_view result) {
    std::erase_if(all, [&](const Change &change) {
        return partOf(source, change.before) == partOf(result, change.after);
    });
    return all;
}

bool isIn(const std::vector<Change> &changes, text::Range place) {
    const auto change = std::ranges::partition_point(
        changes, [&](const Change &one) { return one.before.end < place.begin; });
    return change != changes.end() && change->before.begin <= place.begin &&
           place.end <= change->before.end;
}

std::string line(const std::string &path, const Finding &finding) {
    std::string words = withoutControls(path);
    words.append(":").append(std::to_string(finding.begin.line));
    words.append(":").append(std::to_string(finding.begin.column));
    words.append(": ").append(effectOf(*finding.change));
    return words.append(" (").append(nameOf(*finding.step)).append(")\n");
}

std::string arrayHead() {
    return "[\n";
}

std::string jsonObject(const std::string &path, const Finding &finding) {
    return "{\"path\":" + jsonOfName(path) + "," + jsonMembers(*finding.step) + "," +
           jsonMembers(*finding.change, finding.begin, finding.end) + "}";
}

// The form of code scanners, version 2.1.0.
std::string sarifHead() {
    std::string rules;
    for (const engine::Operation &operation : engine::operations()) {
        rules += (rules.empty() ? "{\"id\":\"" : ",\n{\"id\":\"") + std::string(operation.name) +
                 "\",\"shortDescription\":{\"text\":" + jsonOfName(std::string(operation.summary)) +
                 "}}";
    }
    return "{\"version\":\"2.1.0\",\"$schema\":\"https://json.schemastore.org/sarif-2.1.0.json\","
           "\"runs\":[{\"columnKind\":\"unicodeCodePoints\",\"tool\":{\"driver\":{"
           "\"name\":\"nerlo\",\"rules\":[\n" +
           rules + "]}},\"results\":[\n";
}

std::string uriOf(const std::string &path) {
    constexpr std::string_view plain = "-._~/";
    std::string uri = path.starts_with('/') ? "file://" : "";
    for (const char byte : path) {
        const auto unsignedByte = static_cast<unsigned char>(byte);
        if (std::isalnum(unsignedByte) != 0 || plain.find(byte) != plain.npos) {
            uri += byte;
        } else {
            char code[4];
            std::snprintf(code, sizeof code, "%%%02X", unsignedByte);
            uri += code;
        }
    }
    return uri;
}

std::string sarifResult(const std::string &path, const Finding &finding) {
    const auto place = [](const char *line, const char *column, const TextPosition &position) {
        return "\"" + std::string(line) + "\":" + std::to_string(position.line) + ",\"" + column +
               "\":" + std::to_string(position.column);
    };
    return "{\"ruleId\":\"" + std::string(finding.step->operation->name) +
           "\",\"level\":\"warning\",\"message\":{\"text\":" +
           jsonOfName(effectOf(*finding.change)) +
           "},\"locations\":[{\"physicalLocation\":{\"artifactLocation\":{\"uri\":" +
           jsonOfName(uriOf(path)) + "},\"region\":{" +
           place("startLine", "startColumn", finding.begin) + "," +
           place("endLine", "endColumn", finding.end) + "}}}]}";
}

// A workflow command of GitHub Actions; a line break or "::" in a name must not begin another one.
std::string escapedForWorkflow(const std::string &text, std::string_view escaped) {
    std::string result;
    for (const char byte : text) {
        if (escaped.find(byte) == escaped.npos) {
            result += byte;
        } else {
            char code[4];
            std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned char>(byte));
            result += code;
        }
    }
    return result;
}

std::string workflowCommand(const std::string &path, const Finding &finding) {
    const auto number = [](const char *name, std::size_t value) {
        return "," + std::string(name) + "=" + std::to_string(value);
    };
    const bool oneLine = finding.begin.line == finding.end.line;
    return "::warning file=" + escapedForWorkflow(path, "%\r\n:,") +
           number("line", finding.begin.line) + number("endLine", finding.end.line) +
           number("col", finding.begin.column) +
           (oneLine ? number("endColumn", finding.end.column) : "") +
           ",title=" + escapedForWorkflow(nameOf(*finding.step), "%\r\n:,") +
           "::" + escapedForWorkflow(effectOf(*finding.change), "%\r\n") + "\n";
}

std::string nothing() {
    return {};
}

constexpr std::array<FindingFormat, 4> formats{{
    {"text", nothing, line, "", ""},
    {"json", arrayHead, jsonObject, ",\n", "]\n"},
    {"sarif", sarifHead, sarifResult, ",\n", "]}]}\n"},
    {"github", nothing, workflowCommand, "", ""},
}};

} // namespace

std::vector<Finding> findingsOf(std::u16string_view source, const engine::Trace &trace,
                                std::u16string_view ending) {
    const std::u16string result = trace.text + std::u16string(ending);
    std::vector<Finding> findings;
    if (result == source) {
        return findings;
    }
    const std::vector<Change> lasting = lastingChanges(changesOfAll(trace, ending), source, result);
    for (const engine::TraceStep &step : trace.steps) {
        for (const engine::TracedChange &place : step.places) {
            if (isIn(lasting, place.source)) {
                findings.push_back({{}, {}, &step, &place});
            }
        }
    }
    std::ranges::stable_sort(findings, {},
                             [](const Finding &finding) { return finding.change->source.begin; });
    TextPosition position;
    for (Finding &finding : findings) {
        position.moveTo(source, finding.change->source.begin);
        finding.begin = position;
        finding.end = position;
        finding.end.moveTo(source, finding.change->source.end);
    }
    return findings;
}

std::span<const FindingFormat> findingFormats() {
    return formats;
}

} // namespace nerlo::cli
