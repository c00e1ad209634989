#include "engine/CharacterReferences.h"

#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

// The names of HTML 4, from its three lists. Those of U+00A0 to U+00FF, in order.
constexpr std::string_view latin1Names =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg "
    "plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest "
    "Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute "
    "Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml "
    "Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc "
    "euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash "
    "ugrave uacute ucirc uuml yacute thorn yuml ";

struct Name {
    std::string_view name;
    char16_t unit;
};

constexpr Name otherNames[] = {
    {"Alpha", 0x0391},  {"Beta", 0x0392},    {"Chi", 0x03A7},     {"Dagger", 0x2021},
    {"Delta", 0x0394},  {"Epsilon", 0x0395}, {"Eta", 0x0397},     {"Gamma", 0x0393},
    {"Iota", 0x0399},   {"Kappa", 0x039A},   {"Lambda", 0x039B},  {"Mu", 0x039C},
    {"Nu", 0x039D},     {"OElig", 0x0152},   {"Omega", 0x03A9},   {"Omicron", 0x039F},
    {"Phi", 0x03A6},    {"Pi", 0x03A0},      {"Prime", 0x2033},   {"Psi", 0x03A8},
    {"Rho", 0x03A1},    {"Scaron", 0x0160},  {"Sigma", 0x03A3},   {"Tau", 0x03A4},
    {"Theta", 0x0398},  {"Upsilon", 0x03A5}, {"Xi", 0x039E},      {"Yuml", 0x0178},
    {"Zeta", 0x0396},   {"alefsym", 0x2135}, {"alpha", 0x03B1},   {"amp", 0x0026},
    {"and", 0x2227},    {"ang", 0x2220},     {"asymp", 0x2248},   {"bdquo", 0x201E},
    {"beta", 0x03B2},   {"bull", 0x2022},    {"cap", 0x2229},     {"chi", 0x03C7},
    {"circ", 0x02C6},   {"clubs", 0x2663},   {"cong", 0x2245},    {"crarr", 0x21B5},
    {"cup", 0x222A},    {"dArr", 0x21D3},    {"dagger", 0x2020},  {"darr", 0x2193},
    {"delta", 0x03B4},  {"diams", 0x2666},   {"empty", 0x2205},   {"emsp", 0x2003},
    {"ensp", 0x2002},   {"epsilon", 0x03B5}, {"equiv", 0x2261},   {"eta", 0x03B7},
    {"euro", 0x20AC},   {"exist", 0x2203},   {"fnof", 0x0192},    {"forall", 0x2200},
    {"frasl", 0x2044},  {"gamma", 0x03B3},   {"ge", 0x2265},      {"gt", 0x003E},
    {"hArr", 0x21D4},   {"harr", 0x2194},    {"hearts", 0x2665},  {"hellip", 0x2026},
    {"image", 0x2111},  {"infin", 0x221E},   {"int", 0x222B},     {"iota", 0x03B9},
    {"isin", 0x2208},   {"kappa", 0x03BA},   {"lArr", 0x21D0},    {"lambda", 0x03BB},
    {"lang", 0x2329},   {"larr", 0x2190},    {"lceil", 0x2308},   {"ldquo", 0x201C},
    {"le", 0x2264},     {"lfloor", 0x230A},  {"lowast", 0x2217},  {"loz", 0x25CA},
    {"lrm", 0x200E},    {"lsaquo", 0x2039},  {"lsquo", 0x2018},   {"lt", 0x003C},
    {"mdash", 0x2014},  {"minus", 0x2212},   {"mu", 0x03BC},      {"nabla", 0x2207},
    {"ndash", 0x2013},  {"ne", 0x2260},      {"ni", 0x220B},      {"notin", 0x2209},
    {"nsub", 0x2284},   {"nu", 0x03BD},      {"oelig", 0x0153},   {"oline", 0x203E},
    {"omega", 0x03C9},  {"omicron", 0x03BF}, {"oplus", 0x2295},   {"or", 0x2228},
    {"otimes", 0x2297}, {"part", 0x2202},    {"permil", 0x2030},  {"perp", 0x22A5},
    {"phi", 0x03C6},    {"pi", 0x03C0},      {"piv", 0x03D6},     {"prime", 0x2032},
    {"prod", 0x220F},   {"prop", 0x221D},    {"psi", 0x03C8},     {"quot", 0x0022},
    {"rArr", 0x21D2},   {"radic", 0x221A},   {"rang", 0x232A},    {"rarr", 0x2192},
    {"rceil", 0x2309},  {"rdquo", 0x201D},   {"real", 0x211C},    {"rfloor", 0x230B},
    {"rho", 0x03C1},    {"rlm", 0x200F},     {"rsaquo", 0x203A},  {"rsquo", 0x2019},
    {"sbquo", 0x201A},  {"scaron", 0x0161},  {"sdot", 0x22C5},    {"sigma", 0x03C3},
    {"sigmaf", 0x03C2}, {"sim", 0x223C},     {"spades", 0x2660},  {"sub", 0x2282},
    {"sube", 0x2286},   {"sum", 0x2211},     {"sup", 0x2283},     {"supe", 0x2287},
    {"tau", 0x03C4},    {"there4", 0x2234},  {"theta", 0x03B8},   {"thetasym", 0x03D1},
    {"thinsp", 0x2009}, {"tilde", 0x02DC},   {"trade", 0x2122},   {"uArr", 0x21D1},
    {"uarr", 0x2191},   {"upsih", 0x03D2},   {"upsilon", 0x03C5}, {"weierp", 0x2118},
    {"xi", 0x03BE},     {"zeta", 0x03B6},    {"zwj", 0x200D},     {"zwnj", 0x200C},
};

constexpr std::size_t longestReference = 10; // between "&" and ";"

std::optional<char32_t> named(View name) {
    const auto isName = [&](std::string_view other) {
        return std::ranges::equal(name, other, {}, {},
                                  [](char c) { return static_cast<char16_t>(c); });
    };
    char32_t character = 0xA0;
    for (std::string_view left = latin1Names; !left.empty(); ++character) {
        const std::size_t end = left.find(' ');
        if (isName(left.substr(0, end))) {
            return character;
        }
        left.remove_prefix(end + 1);
    }
    const auto *const found = std::ranges::find_if(otherNames, isName, &Name::name);
    return found != std::end(otherNames) ? std::optional<char32_t>(found->unit) : std::nullopt;
}

std::optional<char32_t> numbered(View digits) {
    const bool hexadecimal = digits.starts_with(u'x') || digits.starts_with(u'X');
    digits.remove_prefix(hexadecimal ? 1 : 0);
    const char32_t base = hexadecimal ? 16 : 10;
    char32_t value = 0;
    for (const char16_t unit : digits) {
        const char16_t low = unit | 0x20;
        const char32_t digit = unit >= u'0' && unit <= u'9' ? unit - u'0'
                               : low >= u'a' && low <= u'f' ? low - u'a' + 10u
                                                            : base;
        value = value * base + digit;
        if (digit >= base || value > 0x10FFFF) {
            return std::nullopt;
        }
    }
    // Other controls would end or mangle the text.
    const bool wanted = value >= u' ' || value == u'\t' || value == u'\n';
    return wanted && !digits.empty() ? std::optional(value) : std::nullopt;
}

struct Reference {
    char32_t character;
    std::size_t size;
};

std::optional<Reference> simpleReferenceAt(View text, std::size_t at) {
    const View inside =
        text.substr(at).starts_with(u'&') ? text.substr(at + 1, longestReference) : View();
    const std::size_t end = inside.find(u';');
    if (end == View::npos || end == 0) {
        return std::nullopt;
    }
    const View name = inside.substr(0, end);
    const auto character = name[0] == u'#' ? numbered(name.substr(1)) : named(name);
    return character ? std::optional(Reference{*character, end + 2}) : std::nullopt;
}

// Some programs write the two halves of a surrogate pair as one reference each.
std::optional<Reference> referenceAt(View text, std::size_t at) {
    const auto first = simpleReferenceAt(text, at);
    if (!first || first->character < 0xD800 || first->character > 0xDFFF) {
        return first;
    }
    const auto second = simpleReferenceAt(text, at + first->size);
    if (first->character > 0xDBFF || !second || second->character < 0xDC00 ||
        second->character > 0xDFFF) {
        return std::nullopt;
    }
    const char32_t offset = (first->character - 0xD800) * 0x400 + (second->character - 0xDC00);
    return Reference{0x10000 + offset, first->size + second->size};
}

bool isTagAt(View text, std::size_t at) {
    const char16_t next = at + 1 < text.size() ? text[at + 1] : u' ';
    const char16_t low = next | 0x20;
    return (low >= u'a' && low <= u'z') || next == u'/' || next == u'!' || next == u'?';
}

bool hasTag(View text) {
    for (std::size_t at = text.find(u'<'); at != View::npos; at = text.find(u'<', at + 1)) {
        if (isTagAt(text, at)) {
            return true;
        }
    }
    return false;
}

// Nothing if there is no reference.
std::optional<std::u16string> decodedOnce(View text) {
    std::optional<std::u16string> result;
    std::size_t done = 0;
    for (std::size_t at = text::findUnit(text, 0, u'&'); at < text.size();
         at = text::findUnit(text, at, u'&')) {
        const auto reference = referenceAt(text, at);
        if (!reference) {
            ++at;
            continue;
        }
        result = result ? std::move(result) : std::u16string();
        result->append(text, done, at - done);
        text::appendCharacter(*result, reference->character);
        at += reference->size;
        done = at;
    }
    if (result) {
        result->append(text, done);
    }
    return result;
}

} // namespace

std::u16string decodeCharacterReferences(std::u16string text, int mostLayers) {
    for (int layer = 0; layer < mostLayers; ++layer) {
        auto decoded = decodedOnce(text);
        if (!decoded || (layer == 0 && hasTag(text))) {
            break;
        }
        text = *std::move(decoded);
    }
    return text;
}

} // namespace nerlo::engine
