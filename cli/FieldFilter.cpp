#include "cli/FieldFilter.h"

#include "cli/JsonCursor.h"
#include "engine/Statistics.h"
#include "settings/JsonText.h"
#include "text/UnitScan.h"
#include "text/Utf.h"

#include <algorithm>
#include <new>

namespace nerlo::cli {

namespace {

using Kind = FieldNode::Kind;

[[noreturn]] void refuse(const FieldNode &node, const std::string &why) {
    throw BadLine(node.path == "." ? "the record " + why : "\"" + node.path + "\" " + why);
}

// The name of a member, which mostly stands for itself.
std::string_view plainName(std::string_view literal, std::string &room) {
    if (literal.find('\\') == std::string_view::npos) {
        return literal.substr(1, literal.size() - 2);
    }
    room = text::utf16ToUtf8(settings::textOfLiteral(literal).value_or(std::u16string()));
    return room;
}

} // namespace

// Finds the texts of one line after another.
class FieldFilter::Record {
  public:
    Record(const FieldNode &fields, std::vector<bool> &found)
        : fields_(fields)
        , found_(found) {}

    // Throws BadLine for anything but well-formed JSON with strings, or nothing, in the fields.
    void read(std::string_view line) {
        texts_.clear();
        JsonCursor cursor(line);
        walk(fields_, cursor);
        end_ = cursor.place();
        cursor.finish();
        std::size_t checked = 0; // the texts are checked when they are read
        for (const std::string_view text : texts_) {
            const auto at = static_cast<std::size_t>(text.data() - line.data());
            checkUtf8(line, checked, at);
            checked = at + text.size();
        }
        checkUtf8(line, checked, line.size());
    }

    // With their quotes, in the order of the line.
    const std::vector<std::string_view> &texts() const { return texts_; }
    // Behind the record's last byte.
    std::size_t end() const { return end_; }

  private:
    void walk(const FieldNode &node, JsonCursor &cursor) {
        if (node.kind == Kind::Taken) {
            refuse(node, "is there already");
        }
        if (node.kind == Kind::Text) {
            found_[node.field] = true;
        }
        const char first = cursor.peek();
        if (first == 'n') {
            cursor.value(); // null, which is nothing to clean
        } else if (node.kind == Kind::Text && first == '"') {
            texts_.push_back(cursor.string());
        } else if (node.kind == Kind::Object && first == '{') {
            cursor.members([&](std::string_view name) {
                const FieldNode *member = node.member(plainName(name, room_));
                member ? walk(*member, cursor) : static_cast<void>(cursor.value());
            });
        } else if (node.kind == Kind::Array && first == '[') {
            cursor.items([&] { walk(node.below.front(), cursor); });
        } else {
            cursor.value(); // which may not be JSON at all
            refuse(node, node.kind == Kind::Text     ? "is not a string"
                         : node.kind == Kind::Object ? "is not an object"
                                                     : "is not an array");
        }
    }

    const FieldNode &fields_;
    std::vector<bool> &found_;
    std::vector<std::string_view> texts_;
    std::size_t end_ = 0;
    std::string room_;
};

FieldFilter::FieldFilter(Settings settings)
    : settings_(std::move(settings))
    , fields_(fieldTree(settings_.fields, settings_.counts)) {}

void FieldFilter::clean(std::string_view line, Record &record, Answers &answers) const {
    record.read(line);
    engine::CleaningReport report;
    const engine::CleaningContext context{
        .options = settings_.options, .locale = settings_.locale, .report = &report};
    engine::TextStatistics counts;
    std::size_t copied = 0;
    for (const std::string_view literal : record.texts()) {
        const auto source = settings::textOfLiteral(literal);
        if (!source) {
            checkUtf8(line, 0, line.size());
            continue;
        }
        const std::u16string clean =
            settings_.operation ? engine::runOperation(settings_.operation->index, *source, context)
                                : engine::runPipeline(*source, context);
        if (!report.empty()) {
            throw BadLine(messageOf(report));
        }
        if (!settings_.counts.empty()) {
            counts += engine::countAll(clean, settings_.locale);
        }
        if (!text::sameUnits(clean, *source)) {
            const auto at = static_cast<std::size_t>(literal.data() - line.data());
            answers.lines.append(line, copied, at - copied);
            settings::appendJson(answers.lines, clean);
            copied = at + literal.size();
        }
    }
    if (!settings_.counts.empty() && line[record.end() - 1] == '}') {
        const std::size_t close = record.end() - 1;
        const char last = line[line.find_last_not_of(" \t\r", close - 1)];
        answers.lines.append(line, copied, close - copied);
        answers.lines += last == '{' ? "" : ",";
        settings::appendJson(answers.lines, text::utf8ToUtf16(settings_.counts).text);
        answers.lines += ":{" + settings::jsonMembers(counts) + "}";
        copied = close;
    }
    answers.lines.append(line, copied);
}

// False when the work is to end.
bool FieldFilter::addLine(std::string_view line, Record &record, Answers &answers) const {
    const std::size_t kept = answers.lines.size();
    try {
        clean(line, record, answers);
        return true;
    } catch (const std::bad_alloc &) {
        answers.addFailure("out of memory");
    } catch (const std::exception &exception) {
        answers.addFailure(exception.what());
    }
    answers.lines.resize(kept);
    if (settings_.onError == OnError::pass) {
        answers.lines.append(line);
    }
    return settings_.onError != OnError::fail;
}

Answers FieldFilter::filter(std::string_view lines) const {
    Answers answers;
    answers.found.resize(settings_.fields.size());
    answers.lines.reserve(lines.size() + lines.size() / 16);
    Record record(fields_, answers.found);
    while (!lines.empty()) {
        const std::size_t size = std::min(lines.find('\n'), lines.size() - 1) + 1;
        const std::string_view line = lines.substr(0, size);
        lines.remove_prefix(size);
        ++answers.count;
        if (line.find_first_not_of(" \t\r\n") == std::string_view::npos) {
            answers.lines.append(line);
        } else if (!addLine(line, record, answers)) {
            break;
        }
    }
    return answers;
}

} // namespace nerlo::cli
