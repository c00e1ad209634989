#include "engine/TextLanguage.h"

#include "text/CaseMapping.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

constexpr std::size_t looksAt = 64 * 1024; // units

struct Language {
    std::string_view code;
    View words; // with blanks between them
};
constexpr std::array<Language, 20> languages{{
    {"cs", u"se na je že v s to do jako pro nebo které jsou by při také podle"},
    {"da", u"og i at det er en af til på der ikke med som for den et eller har"},
    {"de", u"der die und in den das von zu ist mit sich des auf für nicht ein eine als oder wird"},
    {"el", u"και το της η να του με για τα που από στο δεν είναι οι"},
    {"en", u"the of and to in is that for it with as be on by this are or not an from"},
    {"es", u"de la que el en y los se del las un por con no una para es al como o"},
    {"fr", u"de la le et les des en un du une que est pour qui dans par sur au ne pas ou"},
    {"hu", u"a az és hogy nem is egy ez meg csak vagy mint de ha amely"},
    {"it", u"di e il la che in un a per è del una le con non si da dei al come o"},
    {"nb", u"og i det er på en av til som for ikke med den et har eller kan blir"},
    {"nl", u"de van het een en in is dat op te zijn met voor niet aan er of die worden"},
    {"pl", u"i w na z się do nie jest to że o jak dla od lub przez są oraz"},
    {"pt", u"de a o que e do da em um para com não uma os no se na por as ou"},
    {"ro", u"de și în la a cu nu o pe care din este un mai că pentru sau sunt"},
    {"ru", u"и в не на что с по как это для из или от к при если также"},
    {"sk", u"a sa na je že v s to do ako pre alebo ktoré sú by pri aj podľa"},
    {"sv", u"och i att det som en på är av för med till den inte om ett har eller kan"},
    {"tr", u"ve bir bu için ile da de olarak olan veya daha gibi değil ya en"},
    {"uk", u"і в не на що з до як це для та або від у при якщо також"},
    {"ca", u"de la i el que a en les per un amb una els és del no o es si"},
}};

using Counts = std::array<std::size_t, languages.size()>;

using Row = std::array<bool, languages.size()>;

// For each word the languages that it is common in.
const std::unordered_map<View, Row> &commonWords() {
    static const auto words = [] {
        std::unordered_map<View, Row> result;
        for (std::size_t at = 0; at < languages.size(); ++at) {
            for (View rest = languages[at].words; !rest.empty();) {
                const std::size_t end = std::min(rest.find(u' '), rest.size());
                result[rest.substr(0, end)][at] = true;
                rest.remove_prefix(std::min(end + 1, rest.size()));
            }
        }
        return result;
    }();
    return words;
}

void countWord(View word, Counts &counts) {
    if (const auto row = commonWords().find(word); row != commonWords().end()) {
        for (std::size_t at = 0; at < languages.size(); ++at) {
            counts[at] += row->second[at];
        }
    }
}

} // namespace

std::string_view languageOf(View text, std::string_view likely) {
    const std::u16string beginning = text::toLowercase(std::u16string(text.substr(0, looksAt)), "");
    Counts counts{};
    std::size_t begin = 0;
    for (std::size_t at = 0; at <= beginning.size(); ++at) {
        if (at == beginning.size() || !text::isWordCharacter(beginning[at])) {
            countWord(View(beginning).substr(begin, at - begin), counts);
            begin = at + 1;
        }
    }
    std::string_view language = likely;
    std::size_t most = 2; // of the likely one and of chance
    for (std::size_t at = 0; at < languages.size(); ++at) {
        most += languages[at].code == likely ? counts[at] * 5 / 4 : 0;
    }
    for (std::size_t at = 0; at < languages.size(); ++at) {
        if (counts[at] > most) {
            most = counts[at];
            language = languages[at].code;
        }
    }
    return language;
}

bool isCommonWord(View word) {
    return commonWords().contains(word);
}

} // namespace nerlo::engine
