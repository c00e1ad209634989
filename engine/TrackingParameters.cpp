#include "engine/TrackingParameters.h"

#include <algorithm>
#include <array>
#include <bitset>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

// What a service does with a parameter of its own decides: one that chooses what is shown, or who
// is paid for a recommendation, is not in the list.
constexpr TrackingParameter parameters[] = {
    // Added to addresses of any host.
    {u"utm_*", u"", "Google Analytics, and most others after it: campaign, medium, source"},
    {u"gclid", u"", "Google Ads: the click"},
    {u"gclsrc", u"", "Google Ads: where the click came from"},
    {u"dclid", u"", "Google Display: the click"},
    {u"gbraid", u"", "Google Ads: a click from an app"},
    {u"wbraid", u"", "Google Ads: a click towards an app"},
    {u"gad_source", u"", "Google Ads: where the advertisement stood"},
    {u"gad_campaignid", u"", "Google Ads: the campaign"},
    {u"srsltid", u"", "Google Merchant Center: the search result"},
    {u"_ga", u"", "Google Analytics: the visitor, from host to host"},
    {u"_gl", u"", "Google Analytics: the visitor, from host to host"},
    {u"fbclid", u"", "Facebook: the click"},
    {u"fb_action_ids", u"", "Facebook: the action that was shared"},
    {u"fb_action_types", u"", "Facebook: the action that was shared"},
    {u"fb_ref", u"", "Facebook: where it was shared"},
    {u"fb_source", u"", "Facebook: where it was shared"},
    {u"msclkid", u"", "Microsoft Advertising: the click"},
    {u"twclid", u"", "X: the click"},
    {u"ttclid", u"", "TikTok: the click"},
    {u"li_fat_id", u"", "LinkedIn: the click"},
    {u"epik", u"", "Pinterest: the click"},
    {u"sccid", u"", "Snapchat: the click"},
    {u"rdt_cid", u"", "Reddit: the click"},
    {u"qclid", u"", "Quora: the click"},
    {u"yclid", u"", "Yandex Direct: the click"},
    {u"ymclid", u"", "Yandex Market: the click"},
    {u"ysclid", u"", "Yandex Search: the click"},
    {u"_openstat", u"", "Yandex, Openstat: the campaign"},
    {u"igsh", u"", "Instagram: who shared it"},
    {u"igshid", u"", "Instagram: who shared it"},
    {u"mibextid", u"", "Facebook: the app that shared it"},
    {u"mc_cid", u"", "Mailchimp: the campaign"},
    {u"mc_eid", u"", "Mailchimp: who received the mail"},
    {u"_hsenc", u"", "HubSpot: who received the mail"},
    {u"_hsmi", u"", "HubSpot: the mail"},
    {u"__hstc", u"", "HubSpot: the visitor"},
    {u"__hssc", u"", "HubSpot: the visit"},
    {u"__hsfp", u"", "HubSpot: the visitor's browser"},
    {u"hsctatracking", u"", "HubSpot: the button"},
    {u"mkt_tok", u"", "Marketo: who received the mail"},
    {u"_kx", u"", "Klaviyo: who received the mail"},
    {u"vero_id", u"", "Vero: who received the mail"},
    {u"vero_conv", u"", "Vero: the campaign"},
    {u"oly_anon_id", u"", "Omeda: the visitor"},
    {u"oly_enc_id", u"", "Omeda: the subscriber"},
    {u"ml_subscriber", u"", "MailerLite: the subscriber"},
    {u"ml_subscriber_hash", u"", "MailerLite: the subscriber"},
    {u"dm_i", u"", "Dotdigital: who received the mail"},
    {u"bsft_*", u"", "Blueshift: who received the mail"},
    {u"__s", u"", "Drip: the subscriber"},
    {u"sc_cid", u"", "Salesforce: the campaign"},
    {u"et_rid", u"", "Salesforce Marketing Cloud: who received the mail"},
    {u"ef_id", u"", "Adobe Advertising: the click"},
    {u"s_kwcid", u"", "Adobe Advertising: the keyword"},
    {u"mtm_*", u"", "Matomo: the campaign"},
    {u"matomo_*", u"", "Matomo: the campaign"},
    {u"piwik_*", u"", "Matomo, as Piwik: the campaign"},
    {u"pk_campaign", u"", "Matomo, as Piwik: the campaign"},
    {u"pk_kwd", u"", "Matomo, as Piwik: the keyword"},
    {u"pk_keyword", u"", "Matomo, as Piwik: the keyword"},
    {u"pk_source", u"", "Matomo, as Piwik: the source"},
    {u"pk_medium", u"", "Matomo, as Piwik: the medium"},
    {u"pk_content", u"", "Matomo, as Piwik: the content"},
    {u"pk_cid", u"", "Matomo, as Piwik: the campaign's number"},
    {u"at_campaign", u"", "Piano Analytics: the campaign"},
    {u"at_campaign_type", u"", "Piano Analytics: the campaign"},
    {u"at_medium", u"", "Piano Analytics: the medium"},
    {u"at_creation", u"", "Piano Analytics: the advertisement"},
    {u"at_link_*", u"", "Piano Analytics: the link"},
    {u"at_ptr_name", u"", "Piano Analytics: the partner"},
    {u"at_custom*", u"", "Piano Analytics: whatever the site counts"},
    {u"at_bbc_team", u"", "Piano Analytics on the BBC's pages"},
    {u"xtor", u"", "AT Internet, now Piano: the campaign"},
    {u"wt_mc", u"", "Mapp, once Webtrekk: the campaign"},
    {u"wt_zmc", u"", "Mapp, once Webtrekk: the campaign"},
    {u"ns_campaign", u"", "comScore: the campaign"},
    {u"ns_mchannel", u"", "comScore: the channel"},
    {u"ns_source", u"", "comScore: the source"},
    {u"ns_linkname", u"", "comScore: the link"},
    {u"ns_fee", u"", "comScore: the campaign's price"},
    {u"irclickid", u"", "impact.com: the click"},
    {u"cjevent", u"", "CJ Affiliate: the click"},
    {u"wickedid", u"", "Wicked Reports: the click"},
    {u"guccounter", u"", "Yahoo: how often it asked for consent"},
    {u"guce_referrer", u"", "Yahoo: where the visitor came from"},
    {u"guce_referrer_sig", u"", "Yahoo: where the visitor came from"},

    // On the service's own hosts alone, where the name is too short or too common for others.
    {u"si", u"youtube.com youtu.be spotify.com", "YouTube, Spotify: who shared it"},
    {u"pp", u"youtube.com youtu.be", "YouTube: the search that led to the video"},
    {u"feature", u"youtube.com youtu.be", "YouTube: where the link was followed"},
    {u"dl_branch", u"open.spotify.com", "Spotify: the link's test group"},
    {u"_branch_match_id", u"", "Branch: the visitor"},
    {u"_branch_referrer", u"", "Branch: where the visitor came from"},
    {u"s", u"twitter.com x.com", "X: the app that shared it"},
    {u"t", u"twitter.com x.com", "X: who shared it"},
    {u"ref_src", u"twitter.com x.com", "X: where the post was shown"},
    {u"ref_url", u"twitter.com x.com", "X: where the post was shown"},
    {u"xmt", u"threads.net threads.com", "Threads: who shared it"},
    {u"__tn__", u"facebook.com", "Facebook: the part of the page with the link"},
    {u"__cft__*", u"facebook.com", "Facebook: the visitor and the part of the page"},
    {u"__xts__*", u"facebook.com", "Facebook: the part of the page with the link"},
    {u"eav", u"facebook.com", "Facebook: the picture's viewer"},
    {u"paipv", u"facebook.com", "Facebook: the picture's viewer"},
    {u"rdid", u"facebook.com", "Facebook: who shared it"},
    {u"share_url", u"facebook.com", "Facebook: the short address that was opened"},
    {u"_r", u"tiktok.com", "TikTok: whether it was shared"},
    {u"_t", u"tiktok.com", "TikTok: who shared it"},
    {u"is_from_webapp", u"tiktok.com", "TikTok: the app that shared it"},
    {u"sender_device", u"tiktok.com", "TikTok: the device that shared it"},
    {u"web_id", u"tiktok.com", "TikTok: the visitor"},
    {u"share_app_id", u"tiktok.com", "TikTok: the app that shared it"},
    {u"share_link_id", u"tiktok.com", "TikTok: who shared it"},
    {u"tt_from", u"tiktok.com", "TikTok: where it was shared to"},
    {u"share_id", u"reddit.com", "Reddit: who shared it"},
    {u"ref_source", u"reddit.com", "Reddit: where the link was followed"},
    {u"trk", u"linkedin.com", "LinkedIn: where the link was followed"},
    {u"trkinfo", u"linkedin.com", "LinkedIn: where the link was followed"},
    {u"trkemail", u"linkedin.com", "LinkedIn: who received the mail"},
    {u"trackingid", u"linkedin.com", "LinkedIn: the visit"},
    {u"refid", u"linkedin.com", "LinkedIn: the visit"},
    {u"lipi", u"linkedin.com", "LinkedIn: the page before"},
    {u"midtoken", u"linkedin.com", "LinkedIn: who received the mail"},
    {u"midsig", u"linkedin.com", "LinkedIn: who received the mail"},
    {u"rcm", u"linkedin.com", "LinkedIn: who shared it"},
    {u"source", u"medium.com", "Medium: where the link was followed"},
    {u"ei", u"google.*", "Google Search: the visit"},
    {u"ved", u"google.*", "Google Search: the part of the page with the link"},
    {u"sei", u"google.*", "Google Search: the visit"},
    {u"sxsrf", u"google.*", "Google Search: the visit"},
    {u"sca_esv", u"google.*", "Google Search: the visit's test group"},
    {u"sca_upv", u"google.*", "Google Search: the visit's test group"},
    {u"gs_lcp", u"google.*", "Google Search: how the words were typed"},
    {u"gs_lcrp", u"google.*", "Google Search: how the words were typed"},
    {u"gs_lp", u"google.*", "Google Search: how the words were typed"},
    {u"gs_ssp", u"google.*", "Google Search: how the words were typed"},
    {u"oq", u"google.*", "Google Search: the words before they were completed"},
    {u"aqs", u"google.*", "Google Search: what the browser proposed"},
    {u"sclient", u"google.*", "Google Search: the kind of page"},
    {u"sourceid", u"google.*", "Google Search: the browser"},
    {u"uact", u"google.*", "Google Search: what was clicked"},
    {u"iflsig", u"google.*", "Google Search: the visit"},
    {u"biw", u"google.*", "Google Search: the width of the window"},
    {u"bih", u"google.*", "Google Search: the height of the window"},
    {u"cvid", u"bing.com", "Bing: the visit"},
    {u"ghc", u"bing.com", "Bing: the visit's test group"},
    {u"ghsh", u"bing.com", "Bing: the visit's test group"},
    {u"ghacc", u"bing.com", "Bing: the visit's test group"},
    {u"sk", u"bing.com", "Bing: what the browser proposed"},
    {u"qs", u"bing.com", "Bing: how the words were typed"},
    {u"pd_rd_*", u"amazon.*", "Amazon: the recommendation that was clicked"},
    {u"pf_rd_*", u"amazon.* imdb.com", "Amazon, IMDb: the part of the page with the link"},
    {u"ref_", u"amazon.* imdb.com", "Amazon, IMDb: the part of the page with the link"},
    {u"qid", u"amazon.*", "Amazon: the time of the search"},
    {u"sr", u"amazon.*", "Amazon: the place among the results"},
    {u"crid", u"amazon.*", "Amazon: the search"},
    {u"sprefix", u"amazon.*", "Amazon: how the words were typed"},
    {u"dib", u"amazon.*", "Amazon: the search"},
    {u"dib_tag", u"amazon.*", "Amazon: the search"},
    {u"content-id", u"amazon.*", "Amazon: the recommendation that was clicked"},
    {u"_trkparms", u"ebay.*", "eBay: the recommendation that was clicked"},
    {u"_trksid", u"ebay.*", "eBay: the page before"},
    {u"amdata", u"ebay.*", "eBay: the search"},
    {u"click_key", u"etsy.com", "Etsy: the click"},
    {u"click_sum", u"etsy.com", "Etsy: the click"},
    {u"spm", u"aliexpress.* alibaba.com taobao.com tmall.com 1688.com",
     "Alibaba: the part of the page with the link"},
    {u"scm", u"aliexpress.* alibaba.com taobao.com tmall.com 1688.com",
     "Alibaba: the recommendation that was clicked"},
    {u"scm_id", u"aliexpress.*", "AliExpress: the recommendation that was clicked"},
    {u"pvid", u"aliexpress.*", "AliExpress: the visit"},
    {u"algo_pvid", u"aliexpress.*", "AliExpress: the search"},
    {u"algo_exp_id", u"aliexpress.*", "AliExpress: the search's test group"},
    {u"spm_id_from", u"bilibili.com", "Bilibili: the page before"},
    {u"from_spmid", u"bilibili.com", "Bilibili: the page before"},
    {u"vd_source", u"bilibili.com", "Bilibili: the visitor"},
    {u"share_source", u"bilibili.com", "Bilibili: where it was shared to"},
    {u"share_medium", u"bilibili.com", "Bilibili: the app that shared it"},
    {u"share_plat", u"bilibili.com", "Bilibili: the device that shared it"},
    {u"share_session_id", u"bilibili.com", "Bilibili: who shared it"},
    {u"share_tag", u"bilibili.com", "Bilibili: how it was shared"},
    {u"share_from", u"bilibili.com", "Bilibili: where it was shared"},
    {u"itscg", u"apple.com", "Apple: the campaign"},
    {u"itsct", u"apple.com", "Apple: the campaign"},
    {u"snr", u"store.steampowered.com", "Steam: the page before"},
    {u"trackid", u"netflix.com", "Netflix: the visit"},
    {u"tctx", u"netflix.com", "Netflix: the part of the page with the link"},
    {u"smid", u"nytimes.com", "The New York Times: where it was shared to"},
    {u"smtyp", u"nytimes.com", "The New York Times: where it was shared to"},
    {u"itid", u"washingtonpost.com", "The Washington Post: the part of the page with the link"},
    {u"cmp", u"theguardian.com", "The Guardian: where it was shared to"},
    {u"tt_medium", u"twitch.tv", "Twitch: where it was shared"},
    {u"tt_content", u"twitch.tv", "Twitch: where it was shared"},
};

constexpr RedirectingPage pages[] = {
    {u"google.*", u"/url", u"q", "Google Search, Gmail and Docs"},
    {u"google.*", u"/url", u"url", "Google Search"},
    {u"l.facebook.com lm.facebook.com l.messenger.com", u"/l.php", u"u", "Facebook, Messenger"},
    {u"l.instagram.com", u"/", u"u", "Instagram"},
    {u"l.threads.net l.threads.com", u"/", u"u", "Threads"},
    {u"youtube.com", u"/redirect", u"q", "YouTube's descriptions of videos"},
    {u"duckduckgo.com", u"/l/", u"uddg", "DuckDuckGo's plain pages"},
    {u"safelinks.protection.outlook.com", u"/", u"url", "Microsoft Defender, in mails"},
    {u"linkedin.com", u"/redir/redirect", u"url", "LinkedIn"},
    {u"linkedin.com", u"/safety/go", u"url", "LinkedIn"},
    {u"vk.com", u"/away.php", u"to", "VK"},
    {u"out.reddit.com", u"/", u"url", "Reddit"},
    {u"slack-redir.net", u"/link", u"url", "Slack"},
    {u"steamcommunity.com", u"/linkfilter/", u"u", "Steam"},
    {u"steamcommunity.com", u"/linkfilter/", u"url", "Steam"},
    {u"exit.sc", u"/", u"url", "SoundCloud"},
    {u"t.umblr.com", u"/redirect", u"z", "Tumblr"},
};

constexpr std::size_t count = std::size(parameters);

constexpr bool isPrefix(const TrackingParameter &row) {
    return row.name.ends_with(u'*');
}

// The rows in the order of their names; those that end in "*" stand behind all others.
constexpr auto sorted = [] {
    std::array<std::size_t, count> rows{};
    for (std::size_t at = 0; at < count; ++at) {
        rows[at] = at;
    }
    std::ranges::sort(rows, [](std::size_t a, std::size_t b) {
        const auto &left = parameters[a];
        const auto &right = parameters[b];
        return isPrefix(left) != isPrefix(right) ? isPrefix(right) : left.name < right.name;
    });
    return rows;
}();

constexpr std::size_t prefixes = [] {
    return static_cast<std::size_t>(std::ranges::count_if(parameters, isPrefix));
}();

// Most names of other parameters do not begin like any in the list.
constexpr std::size_t beginnings = 1024;
constexpr std::size_t beginningOf(View name) {
    return (std::size_t{name[0]} * 33 + (name.size() > 1 ? name[1] : u'\0')) % beginnings;
}
const std::bitset<beginnings> knownBeginnings = [] {
    std::bitset<beginnings> known;
    for (const TrackingParameter &row : parameters) {
        known.set(beginningOf(row.name));
    }
    return known;
}();

// "google.*": the name, and behind it a top level, or a country's with one below it.
bool isUnderAnyTopLevel(View host, View name) {
    const std::size_t at = host.rfind(name);
    if (at == View::npos || (at > 0 && host[at - 1] != u'.')) {
        return false;
    }
    const View top = host.substr(at + name.size());
    const std::size_t dot = top.find(u'.');
    return top.size() > 1 && (dot == View::npos || (dot <= 3 && top.size() - dot == 3));
}

bool isHost(View host, View pattern) {
    if (pattern.ends_with(u".*")) {
        return isUnderAnyTopLevel(host, pattern.substr(0, pattern.size() - 1));
    }
    return host.ends_with(pattern) &&
           (host.size() == pattern.size() || host[host.size() - pattern.size() - 1] == u'.');
}

} // namespace

std::span<const TrackingParameter> trackingParameters() {
    return parameters;
}

std::span<const RedirectingPage> redirectingPages() {
    return pages;
}

bool isOneOfHosts(View host, View hosts) {
    while (!hosts.empty()) {
        const std::size_t end = std::min(hosts.find(u' '), hosts.size());
        if (isHost(host, hosts.substr(0, end))) {
            return true;
        }
        hosts.remove_prefix(std::min(end + 1, hosts.size()));
    }
    return false;
}

bool isTrackingParameter(View name, View host) {
    if (name.empty() || !knownBeginnings.test(beginningOf(name))) {
        return false;
    }
    const auto isIn = [&](const TrackingParameter &row) {
        return row.hosts.empty() || isOneOfHosts(host, row.hosts);
    };
    const auto names = std::span(sorted).first(count - prefixes);
    const auto byName = [](std::size_t row) { return parameters[row].name; };
    for (const std::size_t row : std::ranges::equal_range(names, name, {}, byName)) {
        if (isIn(parameters[row])) {
            return true;
        }
    }
    return std::ranges::any_of(std::span(sorted).last(prefixes), [&](std::size_t row) {
        const View known = parameters[row].name;
        return name.starts_with(known.substr(0, known.size() - 1)) && isIn(parameters[row]);
    });
}

} // namespace nerlo::engine
