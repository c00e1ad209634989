#include "engine/LinkRules.h"

#include "text/Ascii.h"

#include <algorithm>
#include <bitset>
#include <unordered_map>
#include <utility>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::Regex;

constexpr std::size_t knownNamesLimit = 4096; // remembered of each provider

std::optional<Regex> compiled(View pattern) {
    return Regex::compile(pattern, Regex::Case::Insensitive);
}

// One pattern that matches where any of these does.
std::u16string anyOf(const LinkProvider::Patterns &patterns, View before, View behind) {
    std::u16string all(before);
    all += u"(?:";
    for (const std::u16string &pattern : patterns) {
        all += u"(?:" + pattern + u")|";
    }
    all.back() = u')';
    all += behind;
    return all;
}

LinkProvider::Patterns namesOf(const LinkProvider &provider) {
    auto names = provider.rules;
    names.insert(names.end(), provider.referralMarketing.begin(), provider.referralMarketing.end());
    return names;
}

// Where the part of a pattern that begins at `at` with "(" or "[" ends.
std::size_t endOfGroup(View pattern, std::size_t at) {
    std::size_t depth = 0;
    bool inClass = false;
    for (; at < pattern.size(); ++at) {
        const char16_t unit = pattern[at];
        if (unit == u'\\') {
            ++at;
        } else if (inClass) {
            inClass = unit != u']';
        } else if (unit == u'[') {
            inClass = true;
        } else {
            depth += unit == u'(';
            depth -= unit == u')' && depth > 0;
        }
        if (depth == 0 && !inClass) {
            return at + 1;
        }
    }
    return pattern.size();
}

// The longest run of plain units, in lower case, that every match holds.
std::u16string requiredPart(View pattern) {
    std::u16string best;
    std::u16string run;
    const auto endRun = [&] {
        if (run.size() > best.size() && View(u"https://www.").find(run) == View::npos) {
            best = run;
        }
        run.clear();
    };
    for (std::size_t at = 0; at < pattern.size();) {
        const char16_t unit = pattern[at];
        if (unit == u'|') {
            return {};
        }
        if (unit == u'(' || unit == u'[') {
            endRun();
            at = endOfGroup(pattern, at);
            continue;
        }
        if (View(u"?*{").find(unit) != View::npos && !run.empty()) {
            run.pop_back(); // may be missing
        }
        if (unit == u'{') {
            endRun();
            at = std::min(pattern.find(u'}', at), pattern.size() - 1) + 1;
            continue;
        }
        const bool escaped = unit == u'\\' && at + 1 < pattern.size();
        const char16_t plain = escaped ? pattern[at + 1] : unit;
        const bool isPlain = escaped ? View(u"/.-_=&?:").find(plain) != View::npos
                                     : View(u"\\.^$?*+{}])").find(plain) == View::npos;
        if (isPlain && plain < 0x80) {
            run += text::asciiLower(plain);
        } else {
            endRun();
        }
        at += escaped ? 2 : 1;
    }
    endRun();
    return best;
}

} // namespace

// Finds the providers whose patterns may match: those with a required part that occurs in the
// address, by its first four units, and those without one.
struct LinkRules::Index {
    static constexpr std::size_t keySize = 4;
    static constexpr std::size_t filterSize = 1 << 14;

    static std::uint64_t keyAt(View units, std::size_t at) {
        std::uint64_t key = 0;
        for (std::size_t next = at; next < at + keySize; ++next) {
            key = key << 16 | text::asciiLower(units[next]);
        }
        return key;
    }
    static std::size_t slotOf(std::uint64_t key) {
        return static_cast<std::size_t>(key * 0x9E3779B97F4A7C15U >> 50);
    }
    static_assert(filterSize == std::size_t{1} << (64 - 50));

    void add(std::size_t provider, const std::u16string &part) {
        if (part.size() < keySize) {
            always.push_back(provider);
            return;
        }
        const std::uint64_t key = keyAt(part, 0);
        filter.set(slotOf(key));
        byKey[key].push_back(provider);
    }

    std::vector<std::size_t> candidates(View url) const {
        std::vector<std::size_t> found = always;
        for (std::size_t at = 0; at + keySize <= url.size(); ++at) {
            const std::uint64_t key = keyAt(url, at);
            if (!filter.test(slotOf(key))) {
                continue;
            }
            if (const auto row = byKey.find(key); row != byKey.end()) {
                found.insert(found.end(), row->second.begin(), row->second.end());
            }
        }
        std::ranges::sort(found);
        found.erase(std::ranges::unique(found).begin(), found.end());
        return found;
    }

    std::vector<std::size_t> always;
    std::bitset<filterSize> filter;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> byKey;
};

LinkRules::LinkRules(std::vector<LinkProvider> providers)
    : providers_(std::move(providers))
    , index_(std::make_unique<Index>()) {
    for (std::size_t at = 0; at < providers_.size(); ++at) {
        if (!providers_[at].completeProvider) {
            index_->add(at, requiredPart(providers_[at].urlPattern));
        }
    }
}

LinkRules::~LinkRules() = default;

std::optional<LinkRules::BadPattern> LinkRules::badPattern() const {
    for (const LinkProvider &provider : providers_) {
        const LinkProvider::Patterns url{provider.urlPattern};
        for (const auto *const patterns :
             {&url, &provider.rules, &provider.referralMarketing, &provider.rawRules,
              &provider.exceptions, &provider.redirections}) {
            for (const std::u16string &pattern : *patterns) {
                if (!compiled(pattern)) {
                    return BadPattern{provider.name, pattern};
                }
            }
        }
    }
    return std::nullopt;
}

std::shared_ptr<LinkRules::Session> LinkRules::session() const {
    std::unique_ptr<Session> session;
    {
        const std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            session = std::move(idle_.back());
            idle_.pop_back();
        }
    }
    if (!session) {
        session = std::make_unique<Session>(*this);
    }
    return {session.release(), [this](Session *used) {
                const std::lock_guard lock(mutex_);
                idle_.emplace_back(used);
            }};
}

struct LinkRules::Session::Matchers {
    explicit Matchers(const LinkProvider &provider)
        : url(compiled(provider.urlPattern)) {
        if (!provider.exceptions.empty()) {
            exceptions = compiled(anyOf(provider.exceptions, u"", u""));
            // Where they cannot be told, everything is one.
            url = exceptions ? std::move(url) : std::nullopt;
        }
        if (const auto patterns = namesOf(provider); !patterns.empty()) {
            names = compiled(anyOf(patterns, u"^", u"$"));
        }
        addAll(parts, provider.rawRules);
        addAll(redirections, provider.redirections);
    }

    static void addAll(std::vector<std::optional<Regex>> &to,
                       const LinkProvider::Patterns &patterns) {
        for (const std::u16string &pattern : patterns) {
            to.push_back(compiled(pattern));
        }
    }

    // Whether it matches; nothing where that would take too much work, and then never again.
    static std::optional<bool> occurs(std::optional<Regex> &pattern, View text) {
        const auto found = pattern ? pattern->occursIn(text) : std::optional(false);
        if (!found) {
            pattern.reset();
        }
        return found;
    }

    bool isFor(View address) {
        if (!occurs(url, address).value_or(false)) {
            return false;
        }
        const auto excepted = occurs(exceptions, address);
        if (!excepted) {
            url.reset();
        }
        return !excepted.value_or(true);
    }

    std::optional<Regex> url;
    std::optional<Regex> exceptions;
    std::optional<Regex> names;
    std::vector<std::optional<Regex>> parts;
    std::vector<std::optional<Regex>> redirections;
    std::unordered_map<std::u16string, bool> known; // names
};

LinkRules::Session::Session(const LinkRules &rules)
    : rules_(rules)
    , matchers_(rules.providers_.size()) {}

LinkRules::Session::~Session() = default;

LinkRules::Session::Matchers &LinkRules::Session::matchersOf(std::size_t provider) {
    auto &matchers = matchers_[provider];
    if (!matchers) {
        matchers = std::make_unique<Matchers>(rules_.providers_[provider]);
    }
    return *matchers;
}

std::vector<std::size_t> LinkRules::Session::providersOf(View url) {
    std::vector<std::size_t> providers = rules_.index_->candidates(url);
    std::erase_if(providers, [&](std::size_t each) { return !matchersOf(each).isFor(url); });
    return providers;
}

std::optional<std::u16string> LinkRules::Session::redirection(std::size_t provider, View url) {
    for (std::optional<Regex> &pattern : matchersOf(provider).redirections) {
        const auto found = pattern ? pattern->findAll(url) : std::nullopt;
        if (!found) {
            pattern.reset();
        } else if (!found->empty()) {
            const auto [begin, end] = found->front();
            std::u16string target(url.substr(begin, end - begin));
            if (pattern->replaceAll(target, u"$1")) {
                return target;
            }
        }
    }
    return std::nullopt;
}

std::u16string LinkRules::Session::withoutParts(std::size_t provider, std::u16string url) {
    for (std::optional<Regex> &pattern : matchersOf(provider).parts) {
        if (pattern && !pattern->replaceAll(url, u"")) {
            pattern.reset();
        }
    }
    return url;
}

bool LinkRules::Session::isTracking(std::size_t provider, View name) {
    Matchers &matchers = matchersOf(provider);
    if (!matchers.names) {
        return false;
    }
    if (matchers.known.size() >= knownNamesLimit) {
        matchers.known.clear();
    }
    const auto [row, isNew] = matchers.known.try_emplace(std::u16string(name));
    if (isNew) {
        row->second = Matchers::occurs(matchers.names, name).value_or(false);
    }
    return row->second;
}

} // namespace nerlo::engine
