#include "text/ReplacementTemplate.h"

#include "text/Characters.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

namespace nerlo::text {

namespace {

class TemplateParser {
  public:
    TemplateParser(std::u16string_view replacement, URegularExpression *expression)
        : rest_(replacement)
        , expression_(expression) {}

    std::vector<TemplatePiece> parse() {
        std::vector<TemplatePiece> pieces(1);
        while (!rest_.empty()) {
            const char16_t unit = rest_.front();
            rest_.remove_prefix(1);
            if (unit == u'\\') {
                takeEscaped(pieces.back().text);
            } else if (unit == u'$' && takeGroup(pieces.back().group)) {
                pieces.emplace_back();
            } else {
                pieces.back().text.push_back(unit);
            }
        }
        return pieces;
    }

  private:
    static UChar unitAt(std::int32_t offset, void *view) {
        return (*static_cast<const std::u16string_view *>(view))[static_cast<std::size_t>(offset)];
    }

    void takeEscaped(std::u16string &text) {
        if (rest_.empty()) {
            return;
        }
        if (rest_.front() == u'u' || rest_.front() == u'U') {
            std::int32_t read = 0;
            const UChar32 character =
                u_unescapeAt(unitAt, &read, static_cast<std::int32_t>(rest_.size()), &rest_);
            if (character >= 0) {
                UChar units[U16_MAX_LENGTH];
                std::int32_t length = 0;
                U16_APPEND_UNSAFE(units, length, character);
                text.append(units, static_cast<std::size_t>(length));
                rest_.remove_prefix(static_cast<std::size_t>(read));
                return;
            }
        }
        text.push_back(rest_.front());
        rest_.remove_prefix(1);
    }

    // What follows a "$". Takes nothing if it names no group.
    bool takeGroup(std::int32_t &group) {
        return rest_.starts_with(u'{') ? takeName(group) : takeNumber(group);
    }

    bool takeName(std::int32_t &group) {
        const std::size_t close = rest_.find(u'}');
        if (close == rest_.npos || close < 2) {
            return false;
        }
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t number = uregex_groupNumberFromName(
            expression_, rest_.data() + 1, static_cast<std::int32_t>(close - 1), &status);
        if (U_FAILURE(status)) {
            return false;
        }
        group = number;
        rest_.remove_prefix(close + 1);
        return true;
    }

    // As many digits as still name a group.
    bool takeNumber(std::int32_t &group) {
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t groups = uregex_groupCount(expression_, &status);
        std::int32_t number = 0;
        bool found = false;
        while (!rest_.empty()) {
            const char32_t character = characterAt(rest_, 0);
            const auto digit = static_cast<UChar32>(character);
            if (!u_isdigit(digit) || number * 10 + u_charDigitValue(digit) > groups) {
                break;
            }
            number = number * 10 + u_charDigitValue(digit);
            found = true;
            rest_.remove_prefix(sizeOf(character));
        }
        if (found) {
            group = number;
        }
        return found;
    }

    std::u16string_view rest_;
    URegularExpression *expression_;
};

} // namespace

std::vector<TemplatePiece> parseTemplate(std::u16string_view replacement,
                                         URegularExpression *expression) {
    return TemplateParser(replacement, expression).parse();
}

} // namespace nerlo::text
