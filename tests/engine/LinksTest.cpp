// Addresses without what follows people.
#include "engine/Links.h"
#include "engine/LinkRules.h"
#include "engine/TrackingParameters.h"
#include "tests/engine/Rows.h"

#include <set>
#include <utility>

namespace nerlo::engine {
namespace {

std::u16string byOwnList(const std::u16string &text) {
    return cleanLinks(text);
}

TEST(Links, LoseWhatFollowsPeople) {
    expectRows(
        {
            {"order stays", u"https://e.org/a?b=1&utm_source=x&c=%2f&utm_medium=y&d",
             u"https://e.org/a?b=1&c=%2f&d"},
            {"nothing left", u"https://e.org/?fbclid=a. Then", u"https://e.org/. Then"},
            {"fragments",
             u"https://e.org/?gclid=1#top https://e.org/a?x=1#xtor=RSS "
             u"https://e.org/#/p?utm_id=1 https://e.org/#utm_a=1&b=2",
             u"https://e.org/#top https://e.org/a?x=1 https://e.org/#/p https://e.org/#b=2"},
            {"Markdown",
             u"[a](https://youtu.be/b?si=c) **https://e.org?utm_id=1** "
             u"_www.e.org/?utm_id=1_ (https://e.org/a_(b)?utm_id=1)",
             u"[a](https://youtu.be/b) **https://e.org** _www.e.org/_ (https://e.org/a_(b))"},
            {"markup",
             u"<a href=\"https://e.org/?a=1&amp;utm_id=1&amp;b=2\">&quot;https://e.org/"
             u"?utm_id=1&quot;",
             u"<a href=\"https://e.org/?a=1&amp;b=2\">&quot;https://e.org/&quot;"},
            {"quotes of code", u"'https://e.org?utm_id=1','b' \"https://e.org?utm_id=1\\n\"",
             u"'https://e.org','b' \"https://e.org\\n\""},
            {"letter case", u"HTTPS://YouTu.be/a?SI=b", u"HTTPS://YouTu.be/a"},
            {"only where the service is",
             u"https://e.org/?si=b&t=1 https://x.com/a?t=b&s=20 "
             u"https://max.com/?s=1 https://www.amazon.co.uk/a?sr=1",
             u"https://e.org/?si=b&t=1 https://x.com/a https://max.com/?s=1 "
             u"https://www.amazon.co.uk/a"},
            {"others' empty parameters stay", u"https://e.org/?&a&&b=", u"https://e.org/?&a&&b="},
            {"what a page redirects to",
             u"https://www.google.de/url?sa=t&url=https%3A%2F%2Fe.org%2F%3Fa%3D1%26utm_id%3D2&x=1",
             u"https://e.org/?a=1"},
            {"one in another, in markup",
             u"\"https://l.facebook.com/l.php?u=https%3A%2F%2Fvk.com%2Faway.php%3Fto%3Dhttps%253A"
             u"%252F%252Fe.org%252F%253Fa%253D1%2526b%253D2&amp;h=1\"",
             u"\"https://e.org/?a=1&amp;b=2\""},
        },
        byOwnList);
}

// One that changed would be a false repair: something else begins in it, or is meant.
TEST(Links, StayWhereTheirEndIsNotSure) {
    for (const std::u16string_view text :
         {u"https://e.org/?utm_source={source}", u"https://e.org/?utm_source=<name>&a=b",
          u"https://e.org/?utm_source=%s", u"https://e.org/?utm_source=$NAME",
          u"https://e.org/?utm_source=a,12,next", u"https://e.org/?utm_source=a|b",
          u"https://e.org/?utm_source=a\u2026", u"https://e.org/?utm_source=a...",
          u"https://e.org/?utm_source=O'Reilly", u"https://e.org/?utm_source=\u7136\u540E",
          u"https://e.org/?utm_source=ab\nout&id=7", u"https://e.org/?utm_source=3Dab=\nout",
          u"https://e.org/?utm_source=a\\u0026id=3", u"https://e.org/?utm_source",
          u"https://web.archive.org/web/2020/https://e.org/?utm_source=a",
          u"https://www.google.com/url?q=javascript%3Aalert(1)",
          u"https://www.google.com/url?q=https%3A%2F%2Fe.org%2Fa%20b",
          u"see utm_source=a or a?utm_source=b, ftp://e.org/?utm_source=a"}) {
        EXPECT_EQ(reference::escaped(cleanLinks(std::u16string(text))), reference::escaped(text));
    }
    const std::u16string tooLong = u"https://e.org/?utm_id=1&a=" + std::u16string(9000, u'a');
    EXPECT_EQ(cleanLinks(tooLong), tooLong);
}

TEST(Links, EachRowOfTheListIsOneThatCanMatch) {
    std::set<std::pair<std::u16string_view, std::u16string_view>> rows;
    for (const TrackingParameter &row : trackingParameters()) {
        const std::u16string name(row.name.substr(0, row.name.find(u'*')));
        std::u16string host(row.hosts.substr(0, row.hosts.find(u' ')));
        host = host.ends_with(u'*') ? host.substr(0, host.size() - 1) + u"co.uk" : host;
        EXPECT_TRUE(rows.insert({row.name, row.hosts}).second) << reference::escaped(name);
        EXPECT_TRUE(isTrackingParameter(name, host)) << reference::escaped(name);
        EXPECT_EQ(isTrackingParameter(name, u"e.org"), row.hosts.empty());
        EXPECT_FALSE(row.service.empty()) << reference::escaped(name);
    }
    EXPECT_FALSE(isOneOfHosts(u"notgoogle.de", u"google.*"));
    EXPECT_FALSE(isOneOfHosts(u"google.evil.example", u"google.*"));
}

std::vector<LinkProvider> providers() {
    LinkProvider all{.name = u"all", .urlPattern = u".*"};
    all.rules = {u"(?:%3F)?trk[a-z]*", u"(?:a+)+b"};
    all.exceptions = {u"^https?:\\/\\/keep\\.org"};
    LinkProvider shop{.name = u"shop",
                      .urlPattern = u"^https?:\\/\\/(?:[a-z]+\\.)*?shop(?:\\.[a-z]{2,})"};
    shop.rules = {u"ref"};
    shop.referralMarketing = {u"tag"};
    shop.rawRules = {u"\\/ref=[^\\/?]*"};
    LinkProvider out{.name = u"out", .urlPattern = u"^https?:\\/\\/out\\.org"};
    out.redirections = {u"^https?:\\/\\/out\\.org\\/\\?.*?to=([^&]*)"};
    LinkProvider tracker{
        .name = u"tracker", .urlPattern = u"tracker\\.org", .completeProvider = true};
    tracker.rules = {u"q"};
    return {all, shop, out, tracker};
}

TEST(LinkRules, OfAnotherListApplyAfterOurs) {
    const LinkRules rules(providers());
    EXPECT_FALSE(rules.badPattern());
    expectRows(
        {
            {"names match as a whole", u"https://e.org/?trkX=1&xtrk=2&utm_id=1",
             u"https://e.org/?xtrk=2"},
            {"exceptions", u"https://keep.org/?trk=1", u"https://keep.org/?trk=1"},
            {"only its addresses",
             u"https://a.SHOP.de/b/ref=c_d?ref=1&tag=2&e https://e.org/?ref=1",
             u"https://a.SHOP.de/b?e https://e.org/?ref=1"},
            {"redirections", u"(https://out.org/?a=1&to=https%3A%2F%2Fe.org%2F%3Ftrk%3D1)",
             u"(https://e.org/)"},
            {"a tracker's own address stays", u"https://tracker.org/?q=1",
             u"https://tracker.org/?q=1"},
            {"a pattern that takes too much work is left out",
             u"https://e.org/?" + std::u16string(60, u'a') + u"=1&trkz=1",
             u"https://e.org/?" + std::u16string(60, u'a') + u"=1&trkz=1"},
        },
        [&](std::u16string text) { return cleanLinks(std::move(text), &rules); });
    auto broken = providers();
    broken[1].rules.emplace_back(u"[a");
    EXPECT_EQ(LinkRules(std::move(broken)).badPattern()->provider, u"shop");
}

TEST(Links, ASecondRunChangesNothing) {
    const LinkRules rules(providers());
    constexpr std::u16string_view tokens[]{u"https://",
                                           u"www.",
                                           u"e.org",
                                           u"www.google.com/url",
                                           u"youtu.be/",
                                           u"/",
                                           u"?",
                                           u"&",
                                           u"&amp;",
                                           u"utm_source=",
                                           u"fbclid=",
                                           u"q=",
                                           u"si=",
                                           u"to=",
                                           u"out.org",
                                           u"a",
                                           u"%3F",
                                           u"%26",
                                           u"https%3A%2F%2Fe.org%2F",
                                           u"#",
                                           u"(",
                                           u")",
                                           u"\n",
                                           u" ",
                                           u".",
                                           u"'",
                                           u"=",
                                           u"\u7136",
                                           u"trk=",
                                           u"_",
                                           u"|"};
    reference::Random random(7);
    for (int round = 0; round < 5'000; ++round) {
        const std::u16string text = random.text(tokens);
        for (const LinkRules *each : {static_cast<const LinkRules *>(nullptr), &rules}) {
            const std::u16string once = cleanLinks(text, each);
            ASSERT_EQ(reference::escaped(cleanLinks(once, each)), reference::escaped(once))
                << reference::escaped(text);
        }
    }
}

} // namespace
} // namespace nerlo::engine
