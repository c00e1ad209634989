// Rules for addresses that somebody else keeps: what they say of an address.
//
// Texts are UTF-16, patterns are ICU regular expressions without regard to case.
#pragma once

#include "text/Regex.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// What is done to the addresses in which `urlPattern` matches and none of `exceptions` does.
struct LinkProvider {
    using Patterns = std::vector<std::u16string>;

    std::u16string name;
    std::u16string urlPattern;
    // The address is that of a tracker as a whole. There is nothing to make of it.
    bool completeProvider = false;
    Patterns rules{};             // names of parameters that go
    Patterns referralMarketing{}; // the same; they tell who is paid for the recommendation
    Patterns rawRules{};          // parts of the address that go
    Patterns exceptions{};
    Patterns
        redirections{}; // their first group is the address to which the page sends its visitors
};

class LinkRules {
  public:
    // The first pattern that does not compile.
    struct BadPattern {
        std::u16string provider;
        std::u16string pattern;
    };

    explicit LinkRules(std::vector<LinkProvider> providers);
    ~LinkRules();
    LinkRules(const LinkRules &) = delete;
    LinkRules &operator=(const LinkRules &) = delete;

    std::optional<BadPattern> badPattern() const;

    // The rules with the patterns that were compiled for one thread.
    class Session;
    // Any thread, and many at a time; the rules must outlive what they return.
    std::shared_ptr<Session> session() const;

  private:
    struct Index;
    std::vector<LinkProvider> providers_;
    std::unique_ptr<Index> index_;
    mutable std::mutex mutex_;
    mutable std::vector<std::unique_ptr<Session>> idle_; // under mutex_
};

// One thread at a time. A pattern that takes too much work on some address is left out from then
// on.
class LinkRules::Session {
  public:
    explicit Session(const LinkRules &rules);
    ~Session();

    // The providers that have something to do with the address, in order.
    std::vector<std::size_t> providersOf(std::u16string_view url);
    // The address to which this one sends its visitors, still encoded.
    std::optional<std::u16string> redirection(std::size_t provider, std::u16string_view url);
    // What rawRules leave of it.
    std::u16string withoutParts(std::size_t provider, std::u16string url);
    bool isTracking(std::size_t provider, std::u16string_view name);

  private:
    struct Matchers;
    Matchers &matchersOf(std::size_t provider);

    const LinkRules &rules_;
    std::vector<std::unique_ptr<Matchers>> matchers_;
};

} // namespace nerlo::engine
