#include "clipboard/CopyTable.h"

#include "clipboard/PasteboardFormats.h"
#include "engine/Structure.h"
#include "engine/TerminalText.h"
#include "platform/SpreadsheetLinks.h"
#include "text/Ascii.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nerlo::clipboard {

namespace {

using engine::LineKind;
using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

// In UTF-16 units. What a text looks like shows at its beginning.
constexpr std::size_t lookedAt = std::size_t{64} << 10;

constexpr std::array<std::pair<Looks, std::u16string_view>, 4> looksNames{{
    {Looks::link, u"link"},
    {Looks::code, u"code"},
    {Looks::table, u"table"},
    {Looks::terminal, u"terminal"},
}};

constexpr std::u16string_view blanks = u" \t\r\n";

std::u16string_view trimmed(std::u16string_view text) {
    const auto first = text.find_first_not_of(blanks);
    return first == text.npos ? std::u16string_view()
                              : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// The corner of a frame.
bool opensFrame(std::u16string_view line) {
    const auto words = trimmed(line);
    return words.size() > 2 &&
           std::u16string_view(u"\u250C\u250F\u2554\u256D").find(words[0]) != words.npos;
}

bool matches(std::string_view pattern, std::string_view name) {
    if (pattern.ends_with('*')) {
        pattern.remove_suffix(1);
        name = name.substr(0, pattern.size());
    }
    return text::equalIgnoringAsciiCase(pattern, name);
}

bool offers(const std::vector<std::string> &formats, const std::string &wanted) {
    return platform::offersLink(formats, wanted) ||
           std::ranges::any_of(formats, [&](const std::string &format) {
               return matches(wanted, format) || matches(wanted, withoutParameters(format));
           });
}

bool isPageOf(std::string_view host, std::string_view wanted) {
    if (wanted == "*") {
        return !host.empty();
    }
    return matches(wanted, host) ||
           (host.size() > wanted.size() && host[host.size() - wanted.size() - 1] == '.' &&
            matches(wanted, host.substr(host.size() - wanted.size())));
}

enum class Fit { no, yes, open };

Fit fits(const CopyRule &rule, const Copy &copy) {
    if (!rule.on || (!rule.format.empty() && !offers(copy.formats, rule.format)) ||
        (!rule.program.empty() && (copy.program.empty() || !matches(rule.program, copy.program))) ||
        (!rule.host.empty() && copy.host && !isPageOf(*copy.host, rule.host)) ||
        (rule.looks && copy.looks && rule.looks != copy.looks)) {
        return Fit::no;
    }
    const bool known = (rule.host.empty() || copy.host) && (!rule.looks || copy.looks);
    return known ? Fit::yes : Fit::open;
}

std::string utf8In(const PropertyDictionary &dictionary, std::string_view key) {
    const PropertyValue *value = dictionary.find(key);
    return value ? text::utf16ToUtf8(value->stringValue()) : std::string();
}

CopyRule ruleOf(const PropertyDictionary &dictionary) {
    CopyRule rule;
    const auto textOf = [&](std::string_view key) {
        const PropertyValue *value = dictionary.find(key);
        return value ? value->stringValue() : std::u16string();
    };
    const PropertyValue *on = dictionary.find("checkbox");
    rule.on = on && on->boolValue();
    rule.format = utf8In(dictionary, "format");
    rule.host = utf8In(dictionary, "page");
    rule.program = utf8In(dictionary, "program");
    rule.profile = textOf("profile");
    if (const auto looks = textOf("looks"); !looks.empty()) {
        const auto *row =
            std::ranges::find(looksNames, looks, &std::pair<Looks, std::u16string_view>::second);
        if (row != looksNames.end()) {
            rule.looks = row->first;
        } else {
            rule.on = false;
        }
    }
    rule.stored = dictionary;
    return rule;
}

PropertyDictionary dictionaryOf(const CopyRule &rule) {
    PropertyDictionary dictionary = rule.stored;
    const auto set = [&](std::string_view key, std::u16string text) {
        if (text.empty()) {
            dictionary.remove(key);
        } else {
            dictionary.set(key, std::move(text));
        }
    };
    dictionary.set("checkbox", rule.on);
    set("format", text::utf8ToUtf16(rule.format).text);
    set("page", text::utf8ToUtf16(rule.host).text);
    set("program", text::utf8ToUtf16(rule.program).text);
    set("profile", rule.profile);
    if (rule.looks) {
        const auto *row = std::ranges::find(looksNames, *rule.looks,
                                            &std::pair<Looks, std::u16string_view>::first);
        set("looks", std::u16string(row->second));
    } else if (ruleOf(rule.stored).looks) {
        dictionary.remove("looks");
    }
    return dictionary;
}

} // namespace

Looks looksOf(std::u16string_view text, bool withPage) {
    if (isUrl(trimmed(text))) {
        return Looks::link;
    }
    text = text.substr(0, lookedAt);
    std::size_t inked = 0;
    std::size_t tables = 0;
    std::size_t codes = 0;
    std::size_t codeLines = 0;
    std::size_t codeLike = 0;
    if (text.find(u'\u001B') != text.npos) {
        return Looks::terminal;
    }
    for (const engine::StructuredLine &line : engine::scanStructure(text)) {
        if (line.kind == LineKind::prompt ||
            opensFrame(text.substr(line.begin, line.end - line.begin))) {
            return Looks::terminal;
        }
        inked += line.kind != LineKind::blank;
        tables += line.kind == LineKind::table;
        codeLines += line.kind == LineKind::code;
        codeLike += line.kind == LineKind::code && line.codeLike;
        codes += line.kind == LineKind::fence || line.kind == LineKind::diff ||
                 line.kind == LineKind::markup;
    }
    codes += withPage && codeLike * 4 < codeLines ? 0 : codeLines;
    if (inked > 0 && tables * 2 >= inked) {
        return Looks::table;
    }
    if (inked > 0 && codes * 2 >= inked) {
        return Looks::code;
    }
    return engine::unwrapTerminal(std::u16string(text)) != text ? Looks::terminal : Looks::other;
}

std::vector<CopyRule> copyRules(const PropertyValue *stored) {
    std::vector<CopyRule> rules;
    const auto *array = stored ? stored->as<PropertyArray>() : nullptr;
    for (const PropertyValue &element : array ? *array : PropertyArray()) {
        if (const auto *dictionary = element.as<PropertyDictionary>()) {
            rules.push_back(ruleOf(*dictionary));
        }
    }
    return rules;
}

PropertyArray storedRules(const std::vector<CopyRule> &rules) {
    PropertyArray array;
    for (const CopyRule &rule : rules) {
        array.emplace_back(dictionaryOf(rule));
    }
    return array;
}

std::vector<CopyRule> offeredRules() {
    return {{.looks = Looks::terminal, .profile = u"terminal"},
            {.looks = Looks::code, .profile = u"code"},
            {.host = "*", .profile = u"web"}};
}

CopyDecision decide(std::span<const CopyRow> table, const Copy &copy, bool onDemand) {
    for (std::size_t place = 0; place < table.size(); ++place) {
        const CopyRow &row = table[place];
        const Fit fit = onDemand && !row.options ? Fit::no : fits(row.rule, copy);
        if (fit != Fit::no) {
            return fit == Fit::open ? CopyDecision{true, {}} : CopyDecision{false, place};
        }
    }
    return {};
}

CopyRow putBackRow() {
    return {{.on = true, .format = putBackFormat}};
}

// Where nothing tells the program, the formats that only cells have tell the spreadsheet.
CopyTable spreadsheetRows(std::string_view program) {
    CopyTable rows;
    for (const platform::SpreadsheetLink &link : platform::spreadsheetLinks()) {
        const bool ofCells = link.type == platform::cellsType;
        if (!program.empty() || ofCells) {
            rows.push_back({{.on = true,
                             .format = std::string(link.type),
                             .program = program.empty() ? "" : std::string(link.identifier)}});
        }
    }
    return rows;
}

} // namespace nerlo::clipboard
