#include "cli/BatchAnswers.h"

#include "cli/JsonCursor.h"
#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "settings/JsonOptions.h"
#include "settings/JsonText.h"
#include "settings/PreparedOptions.h"
#include "settings/TraceJson.h"
#include "settings/UserLocale.h"
#include "text/Utf.h"

#include <algorithm>
#include <new>
#include <optional>

namespace nerlo::cli {

namespace {

using settings::explainedPlaces;
using settings::jsonOfText;
using settings::textOfLiteral;

// What a request holds, as its bytes; what is null counts as missing. Of members with the same name
// the last one counts.
struct Request {
    std::string_view id = "null";
    std::string_view text;
    std::string_view operation;
    std::string_view options;
    std::string_view locale;
    std::string_view explain;
};

struct Member {
    std::string_view name;
    std::string_view Request::*value;
};

constexpr Member known[] = {
    {"\"id\"", &Request::id},
    {"\"text\"", &Request::text},
    {"\"operation\"", &Request::operation},
    {"\"options\"", &Request::options},
    {"\"locale\"", &Request::locale},
    {"\"explain\"", &Request::explain},
};

// Without escapes, in UTF-8 and quotes.
std::string plainName(std::string_view literal) {
    return jsonOfText(textOfLiteral(literal).value_or(std::u16string()));
}

// Throws BadLine for what is not an object. `unknown` becomes the first name that has no meaning.
Request readRequest(std::string_view line, std::string &unknown) {
    JsonCursor cursor(line);
    if (cursor.peek() != '{') {
        cursor.value();
        cursor.finish();
        throw BadLine("a request is a JSON object");
    }
    Request request;
    cursor.members([&](std::string_view literal) {
        const std::string escaped =
            literal.find('\\') == std::string_view::npos ? "" : plainName(literal);
        const std::string_view name = escaped.empty() ? literal : escaped;
        const auto member = std::ranges::find(known, name, &Member::name);
        const std::string_view value = cursor.value();
        if (member != std::end(known)) {
            request.*(member->value) = value;
        } else if (unknown.empty()) {
            unknown = plainName(literal);
        }
    });
    cursor.finish();
    return request;
}

bool isThere(std::string_view value) {
    return !value.empty() && value != "null";
}

// `value` is a part of the line.
std::u16string stringOf(std::string_view value, const char *name) {
    std::optional<std::u16string> text;
    if (value.front() == '"') {
        text = textOfLiteral(value);
    }
    if (!text) {
        throw BadLine('"' + std::string(name) + "\" is not a string");
    }
    return std::move(*text);
}

const engine::Operation *operationOf(std::string_view value) {
    if (!isThere(value)) {
        return nullptr; // the full pipeline
    }
    const bool isName = value.front() == '"';
    if (!isName && value.find_first_not_of("-0123456789") != std::string_view::npos) {
        throw BadLine("\"operation\" is neither an index nor a name");
    }
    const std::string name = isName ? text::utf16ToUtf8(stringOf(value, "operation")) : "";
    const engine::Operation *operation = engine::findOperation(isName ? name : value);
    if (!operation) {
        throw BadLine("unknown operation " + (isName ? plainName(value) : std::string(value)));
    }
    return operation;
}

std::string localeOf(std::string_view value) {
    const std::string name = text::utf16ToUtf8(stringOf(value, "locale"));
    const std::optional<std::string> id = settings::localeId(name);
    if (!id) {
        throw BadLine("unusable locale " + plainName(value));
    }
    return *id;
}

bool isSwitchedOn(std::string_view value, const char *name) {
    if (isThere(value) && value != "true" && value != "false") {
        throw BadLine('"' + std::string(name) + "\" is neither true nor false");
    }
    return value == "true";
}

void refuseFailures(const engine::CleaningReport &report) {
    if (!report.empty()) {
        throw BadLine(messageOf(report));
    }
}

std::string explainedResult(const std::u16string &text, const engine::Operation *operation,
                            const engine::CleaningContext &context) {
    const engine::Trace trace =
        operation ? engine::traceOperation(*operation, text, context, explainedPlaces)
                  : engine::tracePipeline(text, context, explainedPlaces);
    refuseFailures(*context.report);
    return "\"text\":" + jsonOfText(trace.text) +
           ",\"explain\":" + settings::explainJson(text, trace);
}

} // namespace

BatchAnswers::BatchAnswers(engine::CleaningOptions defaults, std::string locale)
    : defaults_(std::move(defaults))
    , locale_(std::move(locale)) {}

// The members that follow the id. `id` is set as soon as it is known.
std::string BatchAnswers::resultOf(std::string_view line, std::string &id) const {
    std::string unknown;
    const Request request = readRequest(line, unknown);
    checkUtf8(line, 0, line.size());
    id = request.id;
    if (!unknown.empty()) {
        throw BadLine("unknown field " + unknown);
    }
    if (!isThere(request.text)) {
        throw BadLine("no \"text\"");
    }
    std::u16string content = stringOf(request.text, "text");
    const engine::Operation *operation = operationOf(request.operation);
    const std::string localeId = isThere(request.locale) ? localeOf(request.locale) : locale_;
    if (operation && operation->index == engine::statisticsOperation) {
        return "\"statistics\":{" + settings::jsonMembers(engine::countAll(content, localeId)) +
               "}";
    }

    bool own = isThere(request.options);
    engine::CleaningOptions ownOptions;
    if (own) {
        ownOptions.setAllBools(settings::parseOptions(request.options));
    }
    if (settings::lacksLinkRules(own ? ownOptions : defaults_, operation)) {
        if (!own) {
            ownOptions = defaults_;
            own = true;
        }
        settings::addLinkRules(ownOptions);
    }
    engine::CleaningReport report;
    const engine::CleaningContext context{
        .options = own ? ownOptions : defaults_, .locale = localeId, .report = &report};
    if (isSwitchedOn(request.explain, "explain")) {
        return explainedResult(content, operation, context);
    }
    content = operation ? engine::runOperation(operation->index, std::move(content), context)
                        : engine::runPipeline(std::move(content), context);
    refuseFailures(report);
    return "\"text\":" + jsonOfText(content);
}

void BatchAnswers::addAnswer(std::string_view line, Answers &answers) const {
    std::string id = "null";
    std::string error;
    try {
        const std::string result = resultOf(line, id);
        answers.lines.append("{\"id\":").append(id).append(",").append(result).append("}\n");
        return;
    } catch (const std::bad_alloc &) {
        error = "out of memory";
    } catch (const std::exception &exception) {
        error = exception.what();
    }
    answers.lines.append("{\"id\":")
        .append(id)
        .append(",\"error\":")
        .append(settings::jsonOfName(error));
    answers.lines += "}\n";
    answers.addFailure(std::move(error));
}

Answers BatchAnswers::answer(std::string_view requests) const {
    Answers answers;
    answers.lines.reserve(requests.size() + requests.size() / 16);
    while (!requests.empty()) {
        const std::size_t end = std::min(requests.find('\n'), requests.size());
        const std::string_view line = requests.substr(0, end);
        ++answers.count;
        if (line.find_first_not_of(" \t\r") != std::string_view::npos) {
            addAnswer(line, answers);
        }
        requests.remove_prefix(std::min(end + 1, requests.size()));
    }
    return answers;
}

} // namespace nerlo::cli
