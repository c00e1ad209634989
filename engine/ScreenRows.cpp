#include "engine/ScreenRows.h"

#include "text/Characters.h"

#include <algorithm>

namespace nerlo::engine {

using View = std::u16string_view;

View firstWord(View row) {
    row.remove_prefix(indentOf(row));
    return row.substr(0, std::min(row.find(u' '), row.size()));
}

bool isIdeographic(char32_t character) {
    return text::columnsOf(character) == 2 && !text::isHangul(character) &&
           character < U'\U0001F000';
}

bool endsSentence(View row) {
    return View(u".:;!?").find(row.back()) != View::npos;
}

bool hasGap(View words) {
    for (std::size_t at = words.find(u"  "); at != View::npos; at = words.find(u"  ", at)) {
        if (at > 0 && !endsSentence(words.substr(0, at))) {
            return true;
        }
        at = std::min(words.find_first_not_of(u' ', at), words.size());
    }
    return false;
}

bool isStatus(View row) {
    const std::size_t dot = row.rfind(u'.');
    const bool file = row.find(u' ') == View::npos && dot != View::npos && dot > 2 &&
                      row.size() - dot > 1 && row.size() - dot < 6;
    const bool editor = row.starts_with(u'"') && row.find(u"\" ") != View::npos &&
                        (row.ends_with(u"B") || row.ends_with(u" bytes"));
    return row == u":" || editor || row.ends_with(u"(END)") || row.starts_with(u"lines ") ||
           row.starts_with(u"Manual page ") || row.starts_with(u"--More--") || file;
}

bool isProseWhole(View paragraph) {
    paragraph.remove_prefix(std::min(paragraph.find_first_not_of(u" \"'([*_`"), paragraph.size()));
    paragraph.remove_prefix(paragraph.starts_with(u"<http") ? 1 : 0);
    const auto lines = scanStructure(paragraph);
    return lines.size() == 1 && lines[0].kind == LineKind::prose && !hasGap(paragraph);
}

bool mayBeCutOff(View above, View below) {
    const char16_t first = below.front();
    return text::isWordCharacter(first) || first == u'(' || first == u' ' ||
           first == above.back() || (first == u'>' && above.find(u'<') != View::npos);
}

std::size_t inkedEnd(const std::vector<StructuredLine> &lines) {
    std::size_t end = lines.size();
    while (end > 0 && lines[end - 1].kind == LineKind::blank) {
        --end;
    }
    return end;
}

bool isDoubtful(const StructuredLine &line) {
    return line.kind == LineKind::code || line.kind == LineKind::table;
}

bool isCodeItem(View text, const StructuredLine &line) {
    return line.item && line.kind == LineKind::code &&
           text.substr(line.begin, line.words - line.begin).ends_with(u"     ");
}

} // namespace nerlo::engine
