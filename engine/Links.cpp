#include "engine/Links.h"

#include "engine/TrackingParameters.h"
#include "text/Ascii.h"
#include "text/Characters.h"
#include "text/UnitScan.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

constexpr std::size_t longestLink = 8192;
constexpr std::size_t longestName = 64;
constexpr std::size_t longestLookAhead = 512; // behind an address
// Addresses inside of addresses, and what rules make of what other rules have left.
constexpr int mostRounds = 8;

constexpr View trailing = u".,;:!?*~";
constexpr text::UnitSet linkMarks(u":wW");

bool isOneOf(char16_t unit, View units) {
    return units.find(unit) != View::npos;
}

std::u16string lowered(View text) {
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), text::asciiLower<char16_t>);
    return result;
}

int hexValue(char16_t unit) {
    const char16_t small = text::asciiLower(unit);
    return text::isAsciiDigit(unit)         ? unit - u'0'
           : small >= u'a' && small <= u'f' ? small - u'a' + 10
                                            : -1;
}

bool isEscape(View text, std::size_t at) {
    return at + 2 < text.size() && text[at] == u'%' && hexValue(text[at + 1]) >= 0 &&
           hexValue(text[at + 2]) >= 0;
}

bool startsWith(View text, View small) {
    return text.size() >= small.size() &&
           std::ranges::equal(text.substr(0, small.size()), small, {}, text::asciiLower<char16_t>);
}

// "http://" or "https://", or 0.
std::size_t schemeSize(View link) {
    return startsWith(link, u"http://") ? 7 : startsWith(link, u"https://") ? 8 : 0;
}

// An entity of HTML that is no "&": in markup, the address has ended in front of it.
bool isEndingEntity(View text) {
    const std::size_t end = text.substr(0, 10).find(u';');
    return end != View::npos && end > 1 && !text.starts_with(u"&amp;") &&
           std::ranges::all_of(text.substr(1, end - 1), [](char16_t unit) {
               return text::isAsciiLetterOrDigit(unit) || unit == u'#';
           });
}

enum class InLink : std::uint8_t { plain, ends, opens, closes, mayEnd };

constexpr auto asciiInLinks = [] {
    std::array<InLink, 0x80> kinds{};
    std::fill_n(kinds.begin(), u' ' + 1, InLink::ends);
    for (const char16_t unit : View(u"\"<>`'|\\^{}\u007F")) {
        kinds[unit] = InLink::ends;
    }
    kinds[u'('] = kinds[u'['] = InLink::opens;
    kinds[u')'] = kinds[u']'] = InLink::closes;
    kinds[u'&'] = InLink::mayEnd;
    return kinds;
}();

// Where the address that begins `text` ends; not beyond what may belong to it. Brackets inside of
// it come in pairs.
std::size_t endOfLink(View text) {
    std::size_t round = 0;
    std::size_t square = 0;
    for (std::size_t at = 0; at < text.size();) {
        const char16_t unit = text[at];
        if (unit >= 0x80) {
            const char32_t character = text::characterAt(text, at);
            if (!text::isWordCharacter(character)) {
                return at;
            }
            at += text::sizeOf(character);
            continue;
        }
        switch (asciiInLinks[unit]) {
        case InLink::ends:
            return at;
        case InLink::opens:
            ++(unit == u'(' ? round : square);
            break;
        case InLink::closes:
            if ((unit == u')' ? round : square)-- == 0) {
                return at;
            }
            break;
        case InLink::mayEnd:
            if (isEndingEntity(text.substr(at))) {
                return at;
            }
            break;
        case InLink::plain:
            break;
        }
        ++at;
    }
    return text.size();
}

// Whether all of a value can be meant, and nothing else: no list, no placeholder, no half of a pair
// of brackets.
bool isPlainValue(View value) {
    std::size_t open = 0;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const char16_t unit = value[at];
        if (unit == u')' && open-- == 0) {
            return false;
        }
        open += unit == u'(';
        const bool plain = text::isAsciiLetterOrDigit(unit) || isOneOf(unit, u"-._~+!@:/?=()");
        if (!plain && !isEscape(value, at)) {
            return false;
        }
    }
    return open == 0;
}

// The rest of an address, on the next line of a text that was wrapped.
bool goesOnBelow(View after) {
    const std::size_t next = after.find_first_not_of(u"\r\n\t ");
    if (next == View::npos || !isOneOf(after[0], u"\r\n")) {
        return false;
    }
    View word = after.substr(next);
    word = word.substr(0, word.find_first_of(u" \t\r\n"));
    const bool otherLink = word.find(u"://") != View::npos || word.find(u"www.") != View::npos;
    return word.find(u'&') != View::npos && !otherLink;
}

// An address and what stands around it.
struct Surroundings {
    char16_t before = u' ';
    View after;

    // Whether the address ends where it seems to, `value` being the last in it.
    bool endAfter(View value) const {
        const char16_t next = after.empty() ? u' ' : after[0];
        if (value.empty() && next > u' ' && next != u'"' && next != u')') {
            return false; // "utm_source={name}"
        }
        switch (next) {
        case u'\'':
        case u'|':
            return before == next;
        case u'}':
            return before == u'{';
        case u'\\':
            return after.size() > 1 && isOneOf(after[1], u"\"'nrt");
        case u'{':
        case u'^':
        case u'\u2026':
            return false;
        case u'.':
            return !after.starts_with(u"..");
        default:
            return !goesOnBelow(after) &&
                   !(value.ends_with(u'=') && isOneOf(next, u"\r\n")); // a mail's soft break
        }
    }
};

// The parameters of a query, each with the mark in front of it.
struct Parameter {
    View mark; // "", "&" or "&amp;"
    View name;
    View value;
    View all; // name and value
    bool hasValue = false;
};

std::vector<Parameter> parametersOf(View query) {
    std::vector<Parameter> parameters;
    View mark;
    for (;;) {
        const std::size_t end = std::min(query.find(u'&'), query.size());
        const View all = query.substr(0, end);
        const std::size_t sign = all.find(u'=');
        const bool hasValue = sign != View::npos;
        parameters.push_back(
            {mark, all.substr(0, sign), hasValue ? all.substr(sign + 1) : View(), all, hasValue});
        if (end == query.size()) {
            return parameters;
        }
        mark = query.substr(end).starts_with(u"&amp;") ? u"&amp;" : u"&";
        query.remove_prefix(end + mark.size());
    }
}

struct LinkParts {
    View base;
    View query;    // without its "?"
    View fragment; // without its "#"
    bool hasQuery = false;
    bool hasFragment = false;
};

LinkParts partsOf(View link) {
    LinkParts parts;
    const std::size_t hash = std::min(link.find(u'#'), link.size());
    const View front = link.substr(0, hash);
    const std::size_t query = std::min(front.find(u'?'), front.size());
    parts.base = front.substr(0, query);
    parts.hasQuery = query < front.size();
    parts.query = parts.hasQuery ? front.substr(query + 1) : View();
    parts.hasFragment = hash < link.size();
    parts.fragment = parts.hasFragment ? link.substr(hash + 1) : View();
    return parts;
}

struct Place {
    std::u16string host; // in lower case
    View path;
};

Place placeOf(View base) {
    base.remove_prefix(schemeSize(base));
    const std::size_t slash = std::min(base.find(u'/'), base.size());
    View host = base.substr(0, slash);
    host.remove_prefix(std::min(host.rfind(u'@') + 1, host.size()));
    return {lowered(host.substr(0, host.find(u':'))), base.substr(slash)};
}

std::optional<std::u16string> decodedOnce(View value) {
    std::string bytes;
    while (!value.empty()) {
        if (isEscape(value, 0)) {
            bytes += static_cast<char>(hexValue(value[1]) * 16 + hexValue(value[2]));
            value.remove_prefix(3);
            continue;
        }
        const std::size_t end = std::min(value.find(u'%', 1), value.size());
        text::appendUtf8(bytes, value.substr(0, end));
        value.remove_prefix(end);
    }
    auto [decoded, invalidAt] = text::utf8ToUtf16(bytes);
    return invalidAt ? std::nullopt : std::optional(std::move(decoded));
}

// The address that a value holds, if it would stand in a text as it does here.
std::optional<std::u16string> decodedAddress(View value) {
    std::optional<std::u16string> address = std::u16string(value);
    for (int layer = 0; layer < 3; ++layer) {
        address = decodedOnce(*address);
        if (!address || schemeSize(*address) > 0) {
            break;
        }
    }
    const std::size_t scheme = address ? schemeSize(*address) : 0;
    if (scheme == 0 || scheme == address->size() ||
        !text::isAsciiLetterOrDigit((*address)[scheme]) || endOfLink(*address) < address->size() ||
        std::ranges::count(*address, u'(') != std::ranges::count(*address, u')') ||
        std::ranges::count(*address, u'[') != std::ranges::count(*address, u']')) {
        return std::nullopt;
    }
    return address;
}

class LinkCleaning {
  public:
    explicit LinkCleaning(const LinkRules *rules)
        : session_(rules ? rules->session() : nullptr) {}

    // Nothing where it stays as it is.
    std::optional<std::u16string> cleaned(View link, const Surroundings &around) {
        if (!session_ && link.find_first_of(u"?#") == View::npos) {
            return std::nullopt;
        }
        around_ = &around;
        inMarkup_ = link.find(u"&amp;") != View::npos;
        std::u16string now(link);
        for (int round = 0; round < mostRounds; ++round) {
            settled_ = true;
            std::u16string next = once(now);
            settled_ = settled_ || next == now;
            now = std::move(next);
            if (settled_) {
                return now == link ? std::nullopt : std::optional(std::move(now));
            }
        }
        return std::nullopt;
    }

  private:
    std::u16string once(const std::u16string &link) {
        const LinkParts parts = partsOf(link);
        const Place place = placeOf(parts.base);
        // An archive's pages are found by the whole address of what they show.
        if (place.path.find(u"://") != View::npos) {
            return link;
        }
        if (auto target = ownTarget(parts, place)) {
            settled_ = false;
            return withMarks(std::move(*target));
        }
        std::u16string result = without(
            link, [&](View name) { return isTrackingParameter(lowered(name), place.host); });
        if (!session_) {
            return result;
        }
        settled_ = false;
        return byRules(std::move(result));
    }

    std::u16string byRules(std::u16string link) {
        for (const std::size_t provider : session_->providersOf(link)) {
            if (const auto found = session_->redirection(provider, link)) {
                const auto target =
                    endsSurely(partsOf(link)) ? decodedAddress(*found) : std::nullopt;
                if (target) {
                    return withMarks(*target);
                }
            }
            std::u16string rest = session_->withoutParts(provider, link);
            if (rest != link && schemeSize(rest) == schemeSize(link) && isWhole(rest) &&
                endsSurely(partsOf(link))) {
                link = std::move(rest);
            }
            link = without(link, [&](View name) { return session_->isTracking(provider, name); });
        }
        return link;
    }

    static bool isWhole(View link) {
        const std::size_t scheme = schemeSize(link);
        return link.size() > scheme && text::isAsciiLetterOrDigit(link[scheme]) &&
               endOfLink(link) == link.size() &&
               std::ranges::count(link, u'(') == std::ranges::count(link, u')');
    }

    std::optional<std::u16string> ownTarget(const LinkParts &parts, const Place &place) const {
        for (const RedirectingPage &page : redirectingPages()) {
            if (!parts.hasQuery || !place.path.starts_with(page.path) ||
                !isOneOfHosts(place.host, page.hosts)) {
                continue;
            }
            for (const Parameter &parameter : parametersOf(parts.query)) {
                if (parameter.name == page.name && isPlainValue(parameter.value) &&
                    endsSurely(parts)) {
                    if (auto target = decodedAddress(parameter.value)) {
                        return target;
                    }
                }
            }
        }
        return std::nullopt;
    }

    // Whether nothing of the address may stand behind its end.
    bool endsSurely(const LinkParts &parts) const {
        const Parameter last =
            parametersOf(parts.hasFragment ? parts.fragment : parts.query).back();
        return isPlainValue(last.value) && around_->endAfter(last.all);
    }

    // In markup "&" is written as "&amp;".
    std::u16string withMarks(std::u16string target) const {
        if (!inMarkup_) {
            return target;
        }
        std::u16string result;
        for (std::size_t at = 0; at < target.size(); ++at) {
            result += target[at];
            if (target[at] == u'&' && !View(target).substr(at).starts_with(u"&amp;")) {
                result += u"amp;";
            }
        }
        return result;
    }

    template <class IsTracking>
    std::u16string without(const std::u16string &link, IsTracking isTracking) const {
        const LinkParts parts = partsOf(link);
        const auto query =
            parts.hasQuery ? kept(parts.query, !parts.hasFragment, isTracking) : std::nullopt;
        // A page in the fragment may have parameters of its own: "#/page?name=value".
        const std::size_t inner = parts.fragment.find(u'?') + 1;
        const auto fragment =
            parts.hasFragment ? kept(parts.fragment.substr(inner), true, isTracking) : std::nullopt;
        if (!query && !fragment) {
            return link;
        }
        std::u16string result(parts.base);
        const View queryLeft = query ? View(*query) : parts.query;
        if (parts.hasQuery && (!query || !queryLeft.empty())) {
            result.append(u"?").append(queryLeft);
        }
        View page = parts.fragment.substr(0, inner);
        const View fragmentLeft = fragment ? View(*fragment) : parts.fragment.substr(inner);
        if (fragment && fragmentLeft.empty() && inner > 0) {
            page.remove_suffix(1);
        }
        if (parts.hasFragment && (!fragment || !page.empty() || !fragmentLeft.empty())) {
            result.append(u"#").append(page).append(fragmentLeft);
        }
        return result;
    }

    // What is left of a query. Nothing where all of it is.
    template <class IsTracking>
    std::optional<std::u16string> kept(View query, bool isLast, IsTracking isTracking) const {
        const std::vector<Parameter> parameters = parametersOf(query);
        std::u16string left;
        bool changed = false;
        for (const Parameter &parameter : parameters) {
            const bool ends = isLast && &parameter == &parameters.back();
            if (parameter.hasValue && parameter.name.size() <= longestName &&
                isTracking(parameter.name) && isPlainValue(parameter.value) &&
                (!ends || around_->endAfter(parameter.value))) {
                changed = true;
            } else if (!parameter.all.empty()) {
                left.append(left.empty() ? View() : parameter.mark).append(parameter.all);
            }
        }
        return changed ? std::optional(std::move(left)) : std::nullopt;
    }

    std::shared_ptr<LinkRules::Session> session_;
    const Surroundings *around_ = nullptr;
    bool inMarkup_ = false;
    bool settled_ = false; // another round would not find more
};

// Where an address begins whose mark, the ":" of its scheme or its first "w", stands at `at`; the
// text's size for none.
std::size_t beginOfLink(View text, std::size_t at) {
    std::size_t begin = at;
    if (text[at] == u':') {
        const std::size_t size = at >= 5 && text::asciiLower(text[at - 1]) == u's' ? 5 : 4;
        begin = at >= size ? at - size : text.size();
    } else if (!startsWith(text.substr(at, 4), u"www.")) {
        return text.size();
    }
    if (begin == text.size()) {
        return begin;
    }
    const View link = text.substr(begin, longestLink);
    const std::size_t scheme = text[at] == u':' ? schemeSize(link) : 4;
    if (scheme == 0 || link.size() == scheme || !text::isWordCharacter(link[scheme])) {
        return text.size();
    }
    const char16_t before = begin > 0 ? text[begin - 1] : u' ';
    const View inside = text[at] == u':' ? View(u"+-.") : View(u"./@-:%=&?#\\");
    const bool apart = !text::isAsciiLetterOrDigit(before) && !isOneOf(before, inside);
    return apart ? begin : text.size();
}

} // namespace

std::u16string cleanLinks(std::u16string text, const LinkRules *rules) {
    const View all(text);
    LinkCleaning cleaning(rules);
    text::UnitCursor cursor(all, linkMarks);
    std::u16string result;
    std::size_t copied = 0;
    for (std::size_t at = cursor.next(); at < all.size();) {
        const std::size_t begin = beginOfLink(all, at);
        if (begin == all.size() || begin < copied) {
            at = cursor.next();
            continue;
        }
        std::size_t end = begin + endOfLink(all.substr(begin));
        const std::size_t next = end;
        while (isOneOf(all[end - 1], trailing)) {
            --end;
        }
        const char16_t before = begin > 0 ? all[begin - 1] : u' ';
        end -= before == u'_' && all[end - 1] == u'_';
        const Surroundings around{before, all.substr(end, longestLookAhead)};
        if (end - begin <= longestLink) {
            if (auto link = cleaning.cleaned(all.substr(begin, end - begin), around)) {
                result.append(all, copied, begin - copied).append(*link);
                copied = end;
            }
        }
        at = cursor.nextFrom(std::max(next, at + 1));
    }
    if (copied == 0) {
        return text;
    }
    return result.append(all, copied);
}

} // namespace nerlo::engine
