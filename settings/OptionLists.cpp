#include "settings/OptionLists.h"

namespace nerlo::settings {

namespace {

using Items = std::vector<std::u16string>;

constexpr std::u16string_view comma = u", ";

Items split(std::u16string_view text) {
    Items items;
    for (;;) {
        const auto end = text.find(comma);
        items.emplace_back(text.substr(0, end));
        if (end == std::u16string_view::npos) {
            return items;
        }
        text.remove_prefix(end + comma.size());
    }
}

Items returns(const Localize &localize) {
    constexpr std::u16string_view key = u"none, single return, double returns, space";
    // The key names four of the ten; a translation that names them all wins over these.
    Items items = split(localize(key));
    constexpr std::u16string_view further[] = {
        u"return and space", u"return and tab",  u"return and custom text",
        u"HTML paragraphs",  u"HTML image tags", u"custom text around lines",
    };
    for (std::size_t i = items.size(); i < 4 + std::size(further); ++i) {
        items.push_back(i < 4 ? std::u16string() : localize(further[i - 4]));
    }
    return items;
}

Items separators(const Localize &localize) {
    Items items{localize(u"Return")};
    for (const std::u16string_view mark : {u".", u". ", u",", u", ", u";", u"; ", u"\t"}) {
        items.push_back(u'"' + std::u16string(mark) + u'"');
    }
    items.push_back(localize(u"Custom"));
    return items;
}

Items sortOrders(const Localize &localize) {
    Items items = split(u"A-Z (Aa-Zz/aA-zZ), Z-A (zZ-aA/Zz-Aa), A-Z (aA-zZ), Z-A (Zz-Aa), A-Za-z, "
                        u"z-aZ-A");
    items.push_back(localize(u"Reverse"));
    items.push_back(localize(u"Random"));
    return items;
}

Items positions(const Localize &localize) {
    Items items;
    for (const std::u16string_view position : popupPositions) {
        items.push_back(localize(position));
    }
    return items;
}

} // namespace

std::vector<OptionList> optionLists(const Localize &translate) {
    const Localize localize =
        translate ? translate : [](std::u16string_view key) { return std::u16string(key); };
    const auto list = [&](std::u16string_view key) { return split(localize(key)); };
    return {
        {"udSortOption", sortOrders(localize)},
        {"udSortSeparator", separators(localize)},
        {"udRemoveDuplicateLinesSeparator", separators(localize)},
        {"udStatisticsDefaultPosition", positions(localize)},
        {"udChangeTabsAnd4SpacesOption", list(u"Change tab to 4 spaces, Change 4 spaces to tab")},
        {"udChangeEllipsisAndDotsOption",
         list(u"Change 3 dots to ellipsis, Change ellipsis to 3 dots")},
        {"udChangeWrongInsertedReturnsOption", list(u"none, space")},
        {"udChangeReturnsOption", returns(localize)},
        {"udChangeCaseOption", list(u"smart capitalized, capitalized, lowercase, uppercase")},
        {"udChangeQuotesOption", list(u"single to double, double to single")},
        {"udChangeQuotesSingleOption",
         split(u"‘…’, ’…’, ‚…‘, ‚…’, ‹…›, ‹ … ›, ›…‹, 『…』, ’…‘, '…'")},
        {"udChangeQuotesDoubleOption", split(u"“…”, ”…”, „…“, „…”, «…», « … », »…«, 「…」, \"…\"")},
        {"udInsertYourPatternOption", list(u"delete, search")},
    };
}

} // namespace nerlo::settings
