#include "shell/Why.h"

#include "text/Utf.h"

#include <algorithm>
#include <vector>

namespace nerlo::shell {

namespace {

using clipboard::Copy;
using clipboard::CopyRule;
using clipboard::DecidedCopy;
using clipboard::Looks;

// Names come from other programs, and go to a terminal.
std::string shown(std::string name) {
    std::ranges::replace_if(
        name, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return name;
}

std::string nameOf(Looks looks) {
    switch (looks) {
    case Looks::link:
        return "a link";
    case Looks::code:
        return "code";
    case Looks::table:
        return "a table";
    case Looks::terminal:
        return "text from a terminal";
    case Looks::other:
        break;
    }
    return "none of these";
}

std::string conditionsOf(const CopyRule &rule) {
    std::string text;
    const auto add = [&](const char *what, const std::string &value) {
        if (!value.empty()) {
            text += (text.empty() ? "" : ", ") + (what + shown(value));
        }
    };
    add("offers ", rule.format);
    add("page ", rule.host);
    add("looks like ", rule.looks ? nameOf(*rule.looks) : std::string());
    add("program ", rule.program);
    return text.empty() ? "any copy" : text;
}

std::string reasonOf(const DecidedCopy &decided) {
    if (!decided.row) {
        return "no row of the table fits";
    }
    if (decided.row->rule.format == clipboard::putBackFormat) {
        return "a clipboard manager has put it back when its program had gone";
    }
    return decided.row->number == 0
               ? "copies from spreadsheets are excepted"
               : "row " + std::to_string(decided.row->number) + " of the table fits (" +
                     conditionsOf(decided.row->rule) + ")";
}

std::string outcomeOf(const DecidedCopy &decided, const std::string &selected) {
    using Outcome = DecidedCopy::Outcome;
    switch (decided.outcome) {
    case Outcome::none:
        break;
    case Outcome::noText:
        return "left alone: it holds no text to be cleaned, or a link, files or a secret";
    case Outcome::link:
        return "left alone: it is an address and nothing else";
    case Outcome::leftAlone:
        return "left alone: " + reasonOf(decided);
    case Outcome::cleaned:
        return "cleaned with the profile \"" +
               shown(decided.row ? text::utf16ToUtf8(decided.row->title) : selected) +
               "\": " + reasonOf(decided);
    }
    return "no copy has been looked at yet";
}

std::string linesOf(const Copy &copy) {
    std::string formats;
    for (const std::string &format : copy.formats) {
        formats += (formats.empty() ? "" : ", ") + shown(format);
    }
    const auto line = [](const char *what, const std::string &value, const char *otherwise) {
        return what + (value.empty() ? otherwise : value) + '\n';
    };
    return line("formats: ", formats, "not told") +
           line("page: ", shown(copy.host.value_or("")), "none, or not asked for") +
           line("looks like: ", copy.looks ? nameOf(*copy.looks) : std::string(),
                "no row asks for it") +
           line("program in front: ", shown(copy.program), "not known");
}

} // namespace

std::string whyText(const DecidedCopy &decided, const std::string &selected) {
    const std::string outcome = "Last copy: " + outcomeOf(decided, selected) + '\n';
    return decided.outcome == DecidedCopy::Outcome::none
               ? outcome
               : outcome + linesOf(decided.copy) +
                     (decided.onDemand ? "The clean was asked for: rows that leave a copy alone "
                                         "do not count.\n"
                                       : "");
}

} // namespace nerlo::shell
