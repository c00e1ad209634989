#include "cli/BatchAnswers.h"

#include "engine/Operations.h"
#include "engine/Statistics.h"
#include "settings/JsonOptions.h"
#include "settings/JsonText.h"
#include "settings/PreparedOptions.h"
#include "settings/TraceJson.h"
#include "settings/UserLocale.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

namespace nerlo::cli {

namespace {

using nlohmann::json;
using settings::explainedPlaces;
using settings::jsonOfText;
using settings::textOfJson;

// A request that cannot be answered; the message goes into the answer.
struct BadRequest : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Steps over one line of well-formed JSON.
class Walker {
  public:
    explicit Walker(std::string_view text)
        : text_(text) {}

    char peek() {
        at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    void skipMark() { // one of { : ,
        peek();
        ++at_;
    }
    // The bytes of a value, which may be a member's name.
    std::string_view value() {
        peek();
        const std::size_t start = at_;
        std::size_t depth = 0;
        do {
            const char c = text_[at_];
            if (c == '"') {
                skipString();
                continue;
            }
            if (depth == 0 &&
                (c == ',' || c == '}' || c == ']' || c == ' ' || c == '\t' || c == '\r')) {
                break; // behind a number or a word
            }
            depth += c == '{' || c == '[' ? 1 : 0;
            depth -= c == '}' || c == ']' ? 1 : 0;
            ++at_;
        } while (at_ < text_.size() && (depth > 0 || isBare(text_[start])));
        return text_.substr(start, at_ - start);
    }

  private:
    static bool isBare(char first) { return first != '"' && first != '{' && first != '['; }

    void skipString() {
        std::size_t close = at_;
        bool escaped = true;
        while (escaped) {
            close = text_.find('"', close + 1);
            const std::size_t before = text_.find_last_not_of('\\', close - 1);
            escaped = (close - before) % 2 == 0;
        }
        at_ = close + 1;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

// The id goes back byte for byte: read and written again, a long number would lose digits and a
// deeply nested value would need a stack as deep. `object` is well-formed; of several ids the last
// one counts, as for the parser.
std::string rawId(std::string_view object) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (object.substr(0, byteOrderMark.size()) == byteOrderMark) {
        object.remove_prefix(byteOrderMark.size());
    }
    std::string_view id = "null";
    Walker walker(object);
    walker.skipMark();
    while (walker.peek() == '"') {
        const std::string_view name = walker.value();
        walker.skipMark();
        const std::string_view value = walker.value();
        if (name == "\"id\"" || (name.find('\\') != std::string_view::npos &&
                                 json::parse(name, nullptr, false) == "id")) {
            id = value;
        }
        if (walker.peek() == ',') {
            walker.skipMark();
        }
    }
    return std::string(id);
}

// Null when the member is missing or null.
const json *memberOf(const json &request, const char *name) {
    const auto member = request.find(name);
    return member == request.end() || member->is_null() ? nullptr : &*member;
}

const std::string &stringOf(const json &value, const char *name) {
    if (!value.is_string()) {
        throw BadRequest('"' + std::string(name) + "\" is not a string");
    }
    return value.get_ref<const std::string &>();
}

const engine::Operation *operationOf(const json *value) {
    if (!value) {
        return nullptr; // the full pipeline
    }
    const engine::Operation *operation = nullptr;
    if (value->is_string()) {
        operation = engine::findOperation(value->get_ref<const std::string &>());
    } else if (value->is_number_integer()) {
        const bool fits = value->is_number_unsigned()
                              ? value->get<std::uint64_t>() <= std::numeric_limits<int>::max()
                              : value->get<std::int64_t>() >= std::numeric_limits<int>::min();
        operation = fits ? engine::findOperation(value->get<std::int32_t>()) : nullptr;
    } else {
        throw BadRequest("\"operation\" is neither an index nor a name");
    }
    if (!operation) {
        throw BadRequest("unknown operation " + value->dump());
    }
    return operation;
}

std::string localeOf(const json &value) {
    const std::string &name = stringOf(value, "locale");
    const std::optional<std::string> id = settings::localeId(name);
    if (!id) {
        throw BadRequest("unusable locale " + value.dump());
    }
    return *id;
}

bool isSwitchedOn(const json *value, const char *name) {
    if (value && !value->is_boolean()) {
        throw BadRequest('"' + std::string(name) + "\" is neither true nor false");
    }
    return value && value->get<bool>();
}

void refuseFailures(const engine::CleaningReport &report) {
    if (!report.empty()) {
        throw BadRequest(messageOf(report));
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

void checkMembers(const json &request) {
    constexpr std::string_view known[] = {"id",        "text",   "options",
                                          "operation", "locale", "explain"};
    for (const auto &[name, value] : request.items()) {
        if (std::find(std::begin(known), std::end(known), name) == std::end(known)) {
            throw BadRequest("unknown field " + jsonOfText(textOfJson(name)));
        }
    }
}

std::string statisticsJson(std::u16string_view text, const std::string &locale) {
    const engine::TextStatistics counts = engine::countAll(text, locale);
    return "{\"characters\":" + std::to_string(counts.characters) +
           ",\"spaces\":" + std::to_string(counts.spaces) +
           ",\"words\":" + std::to_string(counts.words) +
           ",\"paragraphs\":" + std::to_string(counts.paragraphs) + "}";
}

} // namespace

BatchAnswers::BatchAnswers(engine::CleaningOptions defaults, std::string locale)
    : defaults_(std::move(defaults))
    , locale_(std::move(locale)) {}

// The members that follow the id. `id` is set as soon as it is known.
std::string BatchAnswers::resultOf(std::string_view request, std::string &id) const {
    json parsed = settings::parsedJson(request);
    if (!parsed.is_object()) {
        throw BadRequest("a request is a JSON object");
    }
    id = rawId(request);
    checkMembers(parsed);
    const json *text = memberOf(parsed, "text");
    if (!text) {
        throw BadRequest("no \"text\"");
    }
    std::u16string content = textOfJson(stringOf(*text, "text"));
    const engine::Operation *operation = operationOf(memberOf(parsed, "operation"));
    const json *locale = memberOf(parsed, "locale");
    const std::string localeId = locale ? localeOf(*locale) : locale_;
    if (operation && operation->index == engine::statisticsOperation) {
        return "\"statistics\":" + statisticsJson(content, localeId);
    }

    const json *optionsJson = memberOf(parsed, "options");
    engine::CleaningOptions ownOptions;
    if (optionsJson) {
        ownOptions.setAllBools(settings::optionsFromJson(*optionsJson));
    }
    bool own = optionsJson;
    if (settings::lacksLinkRules(own ? ownOptions : defaults_, operation)) {
        ownOptions = own ? std::move(ownOptions) : defaults_;
        own = true;
        settings::addLinkRules(ownOptions);
    }
    engine::CleaningReport report;
    const engine::CleaningContext context{
        .options = own ? ownOptions : defaults_, .locale = localeId, .report = &report};
    const bool explained = isSwitchedOn(memberOf(parsed, "explain"), "explain");
    parsed = nullptr; // a long text need not be held twice
    if (explained) {
        return explainedResult(content, operation, context);
    }
    content = operation ? engine::runOperation(operation->index, std::move(content), context)
                        : engine::runPipeline(std::move(content), context);
    refuseFailures(report);
    return "\"text\":" + jsonOfText(content);
}

Answer BatchAnswers::answer(std::string_view request) const {
    std::string id = "null";
    std::string error;
    try {
        std::string result = resultOf(request, id);
        return {"{\"id\":" + id + "," + std::move(result) + "}\n"};
    } catch (const std::bad_alloc &) {
        error = "out of memory";
    } catch (const std::exception &exception) {
        error = exception.what();
    }
    return {"{\"id\":" + id + ",\"error\":" + json(error).dump() + "}\n", true};
}

Answers BatchAnswers::answerAll(std::string_view requests) const {
    Answers answers;
    while (!requests.empty()) {
        const std::size_t end = std::min(requests.find('\n'), requests.size());
        const std::string_view request = requests.substr(0, end);
        ++answers.count;
        if (request.find_first_not_of(" \t\r") != std::string_view::npos) {
            const Answer one = answer(request);
            answers.lines += one.line;
            if (one.failed && ++answers.failed == 1) {
                answers.firstFailed = answers.count;
            }
        }
        requests.remove_prefix(std::min(end + 1, requests.size()));
    }
    return answers;
}

} // namespace nerlo::cli
