#include "settings/TraceJson.h"

#include "settings/JsonText.h"

namespace nerlo::settings {

namespace {

std::string numberMember(const char *name, std::size_t number) {
    return "\"" + std::string(name) + "\":" + std::to_string(number);
}

bool isCut(text::Range whole, std::u16string_view part) {
    return whole.end - whole.begin != part.size();
}

std::string placesJson(const engine::TraceStep &step, std::u16string_view source) {
    std::string list;
    TextPosition begin;
    for (const engine::TracedChange &place : step.places) {
        begin.moveTo(source, place.source.begin);
        TextPosition end = begin;
        end.moveTo(source, place.source.end);
        list += (list.empty() ? "{" : ",{") + jsonMembers(place, begin, end) + "}";
    }
    return "[" + list + "]";
}

} // namespace

void TextPosition::moveTo(std::u16string_view text, std::size_t to) {
    const auto isPlain = [](char16_t unit) { return unit > u'\r' && (unit & 0xFC00) != 0xDC00; };
    while (offset < to) {
        const std::size_t begin = offset;
        std::size_t at = begin;
        while (at < to && isPlain(text[at])) {
            ++at;
        }
        column += at - begin;
        offset = at;
        if (at < to) {
            passSpecial(text);
        }
    }
}

void TextPosition::passSpecial(std::u16string_view text) {
    const char16_t unit = text[offset];
    const bool beforeFeed = offset + 1 < text.size() && text[offset + 1] == u'\n';
    if (unit == u'\n' || (unit == u'\r' && !beforeFeed)) {
        ++line;
        lineByFeeds += unit == u'\n' ? 1 : 0;
        column = 1;
    } else if (!text::cutsPair(text, offset)) {
        ++column;
    }
    ++offset;
}

std::string jsonMembers(const engine::TraceStep &step) {
    std::string members = "\"operation\":\"" + std::string(step.operation->name) + "\"";
    if (step.rule != 0) {
        members += "," + numberMember("rule", step.rule);
    }
    if (!step.characters.empty()) {
        members.append(",\"characters\":\"").append(step.characters).append("\"");
    }
    return members;
}

std::string jsonMembers(const engine::TracedChange &change, const TextPosition &begin,
                        const TextPosition &end) {
    const bool cut =
        isCut(change.change.before, change.removed) || isCut(change.change.after, change.added);
    return numberMember("line", begin.line) + "," + numberMember("column", begin.column) + "," +
           numberMember("endLine", end.line) + "," + numberMember("endColumn", end.column) +
           ",\"removed\":" + jsonOfText(change.removed) + ",\"added\":" + jsonOfText(change.added) +
           (cut ? ",\"cut\":true" : "");
}

std::string explainJson(std::u16string_view source, const engine::Trace &trace) {
    std::string list;
    for (const engine::TraceStep &step : trace.steps) {
        list += (list.empty() ? "{" : ",{") + jsonMembers(step) + ",\"summary\":" +
                jsonOfText(std::u16string(step.operation->summary.begin(),
                                          step.operation->summary.end())) +
                ",\"changes\":" + std::to_string(step.changes) +
                ",\"places\":" + placesJson(step, source) + "}";
    }
    return "[" + list + "]";
}

} // namespace nerlo::settings
