#include "engine/QuoteLanguages.h"

#include <algorithm>
#include <iterator>

namespace nerlo::engine {

namespace {

struct Row {
    std::string_view language;
    std::int64_t single;
    std::int64_t twofold;
};

// "ca", "nl" and "da" follow the fixed table, although the typography of these languages differs.
constexpr Row table[] = {
    {"en", 0, 0}, {"es", 0, 0}, {"it", 0, 4},      {"ru", 2, 2},      {"fr", 5, 5},
    {"pt", 0, 0}, {"de", 2, 2}, {"zh-Hant", 7, 7}, {"zh-Hans", 0, 0}, {"ja", 7, 7},
    {"nl", 0, 0}, {"ko", 0, 0}, {"pl", 0, 3},      {"ca", 0, 0},      {"sv", 1, 1},
    {"cs", 2, 2}, {"el", 4, 4}, {"nb", 1, 4},      {"pt-BR", 0, 0},   {"es-MX", 0, 0},
    {"th", 0, 0}, {"ar", 4, 4}, {"en-GB", 0, 0},   {"en-US", 0, 0},   {"en-CA", 0, 0},
    {"fi", 1, 1}, {"da", 1, 1}, {"uk", 2, 2},
};

const Row *find(std::string_view language) {
    const auto row = std::ranges::find(table, language, &Row::language);
    return row == std::end(table) ? nullptr : row;
}

} // namespace

nrDefaultQuotesLanguage &nrDefaultQuotesLanguage::sharedInstance() {
    static nrDefaultQuotesLanguage instance;
    return instance;
}

void nrDefaultQuotesLanguage::setDefaultQuotesForLanguage(std::string_view language) {
    const Row *row = find(language);
    defaultQuoteSingle = row ? row->single : 0;
    defaultQuoteDouble = row ? row->twofold : 0;
}

bool nrDefaultQuotesLanguage::knows(std::string_view language) {
    return find(language) != nullptr;
}

} // namespace nerlo::engine
