#include "bench/Corpus.h"

#include <array>
#include <random>
#include <string_view>
#include <vector>

namespace nerlo::bench {

namespace {

constexpr std::array<std::u16string_view, 40> latin{
    u"the",     u"of",      u"and",    u"to",      u"in",       u"was",     u"his",     u"that",
    u"with",    u"for",     u"it",     u"house",   u"morning",  u"letter",  u"window",  u"garden",
    u"station", u"quietly", u"answer", u"brother", u"machine",  u"harbour", u"winter",  u"doctor",
    u"paper",   u"evening", u"nobody", u"several", u"question", u"river",   u"picture", u"suddenly",
    u"people",  u"between", u"across", u"finally", u"remember", u"silence", u"village", u"journey"};

constexpr std::array<std::u16string_view, 28> scripts{
    u"и",    u"не",       u"человек", u"время",  u"рука",   u"слово", u"και",
    u"του",  u"άνθρωπος", u"ημέρα",   u"日本語", u"東京都", u"です",  u"カタカナ",
    u"中文", u"文字",     u"straße",  u"élève",  u"façade", u"Übung", u"naïve",
    u"🎉",    u"👍🏽", u"«слово»", u"„Wort“", u"“word”", u"it’s",  u"ζωή"};

class Writer {
  public:
    explicit Writer(Kind kind)
        : kind_(kind) {}

    std::u16string write(std::size_t bytes) {
        while (size_ < bytes) {
            if (kind_ == Kind::Html) {
                element();
            } else {
                paragraph();
            }
        }
        return std::move(text_);
    }

  private:
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    void put(std::u16string_view piece) {
        text_.append(piece);
        for (const char16_t unit : piece) {
            size_ += unit < 0x80 ? 1u : unit < 0x800 || (unit & 0xF800) == 0xD800 ? 2u : 3u;
        }
    }

    std::u16string_view word() {
        if (kind_ == Kind::Mixed && !oneIn(4)) {
            return scripts[below(scripts.size())];
        }
        return latin[below(latin.size())];
    }

    void sentence(std::u16string_view lineBreak) {
        const std::size_t words = 5 + below(18);
        for (std::size_t i = 0; i < words; ++i) {
            if (oneIn(40)) {
                put(u"'");
                put(word());
                put(u"'");
            } else if (oneIn(60)) {
                put(u"\u2018");
                put(word());
                put(u"\u2019");
            } else if (i == 0) {
                std::u16string first(word());
                if (first.front() >= u'a' && first.front() <= u'z') {
                    first.front() = static_cast<char16_t>(first.front() - 32);
                }
                put(first);
            } else {
                put(word());
            }
            if (i + 1 < words) {
                put(oneIn(12) ? lineBreak : oneIn(40) ? u"  " : oneIn(90) ? u", " : u" ");
            }
        }
        put(oneIn(10) ? u"..." : oneIn(8) ? u"?" : oneIn(20) ? u" ." : u".");
    }

    void paragraph() {
        const std::u16string_view lineBreak = kind_ == Kind::Mixed || oneIn(10) ? u"\n" : u"\r\n";
        put(oneIn(10) ? u"\t" : oneIn(12) ? u"\u2022 " : oneIn(15) ? u"> " : u"");
        for (std::size_t i = 0, count = 2 + below(5); i < count; ++i) {
            sentence(lineBreak);
            put(oneIn(4) ? u"  " : u" ");
        }
        put(lineBreak);
        put(lineBreak);
    }

    void element() {
        constexpr std::array<std::u16string_view, 5> opening{
            u"<p class=\"text\">", u"<a href='page.html' title=\"a > b\">", u"<div id=\"x1\">",
            u"<li>", u"<span style=\"color: red\">"};
        put(opening[below(opening.size())]);
        sentence(u"\n");
        put(u"</p>\n");
        if (oneIn(12)) {
            put(u"<!-- left over -->\n<script>var a = '<b>' + 1;</script>\n");
        }
    }

    Kind kind_;
    std::mt19937_64 random_{7};
    std::u16string text_;
    std::size_t size_ = 0;
};

} // namespace

std::u16string makeText(Kind kind, std::size_t bytes) {
    return Writer(kind).write(bytes);
}

} // namespace nerlo::bench
