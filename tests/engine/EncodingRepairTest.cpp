#include "engine/EncodingRepair.h"
#include "engine/EncodingTables.h"
#include "tests/engine/Rows.h"
#include "text/Charset.h"
#include "text/Utf.h"

#include <array>
#include <vector>

namespace nerlo::engine {
namespace {

std::u16string repaired(const std::u16string &text) {
    return repairEncoding(text);
}

TEST(EncodingRepair, TakesLayersOff) {
    expectRows(
        {{"windows-1252", u"Das GemÃ¼se wÃ¤chst â€“ â€žganzÂ\u00A0selbstâ€œ",
          u"Das Gemüse wächst – „ganz\u00A0selbst“"},
         {"one character of a line", u"weiÃŸ", u"weiß"},
         {"the same with controls in gaps", u"sheâ\u0080\u0099s Ã\u0089mile", u"she’s Émile"},
         {"windows-1251", u"РџСЂРёРІРµС‚, РјРёСЂ!", u"Привет, мир!"},
         {"MacRoman", u"la premi√®re fois, d√©j√†‚Ä¶", u"la première fois, déjà…"},
         {"code page 437", u"ca├▒├│n y ping├╝ino", u"cañón y pingüino"},
         {"KOI8-R", u"п╔п╬я─п╬я┬п╬", u"Хорошо"},
         {"two", u"garÃƒÂ§on, lÃ¢â‚¬â„¢ÃƒÂ©tÃƒÂ©", u"garçon, l’été"},
         {"three", u"itÃƒÂ¢Ã¢â€šÂ¬Ã¢â€žÂ¢s", u"it’s"},
         {"a picture, in one character or in two", u"ok ðŸ‘\u008D í ½í±\u008D", u"ok 👍 👍"},
         {"controls alone", u"\u0093Ja\u0094, sagt sie\u0085", u"“Ja”, sagt sie…"},
         {"references", u"caf&eacute; &#8211; &#x201c;M&amp;amp;M&#148; &#55357;&#56845;",
          u"café – “M&M” 😍"}},
        repaired);
}

TEST(EncodingRepair, MendsParts) {
    expectRows(
        {{"words in a sound line", u"« l’été » fut trÃ¨s long, dit-il déjÃ\u00A0.",
          u"« l’été » fut très long, dit-il déjà."},
         {"lines, by what others show", u"Ã©tÃ© trÃ¨s chaud\nÃ¢ge, là-bas",
          u"été très chaud\nâge, là-bas"},
         {"lost bytes", u"â€œnoâ€\uFFFD and â€œnoâ€? are quotes",
          u"“no\uFFFD and “no\uFFFD are quotes"},
         {"bytes that vanished", u"o pÃ£o custa no inÃcio â€œpoucoâ€ e caÃ§a",
          u"o pão custa no início “pouco” e caça"},
         {"a blank for one of them", u"Ð´Ð¾Ð±Ñ€Ð°Ñ\uFFFD Ð ÑƒÑ\uFFFDÑŒ", u"добра\uFFFD Ру\uFFFDь"},
         {"Portuguese words that begin with à", u"entregou Ã s irmÃ£s e Ã quela mÃ£e o pÃ£o",
          u"entregou às irmãs e àquela mãe o pão"}},
        repaired);
}

TEST(EncodingRepair, LeavesAloneWhatMayBeMeant) {
    for (const std::u16string text :
         {u"IRMÃ…", u"« é », « à », “É”", u"5×€3 = √π ≈ 5¼ £", u"der Spaß“, „Öl“ – À…",
          u"З «Ві» та «Рі» і Рік", u"ÅØÆ æøå ÅÄÖ", u"├──┤ │é│ └─à", u"L’É™, ZOË®",
          u"a <b>caf&eacute;</b>", u"x &foo; &#0; & &eacute", u"\u009B1mred", u"기본\u0092값",
          u"10 Å³", u"CANÇÃ O", u"日本語『テスト』", u"ΕΛΛΆΔΑ «Ά»"}) {
        EXPECT_EQ(reference::escaped(repaired(text)), reference::escaped(text));
    }
}

constexpr std::u16string_view sentences[] = {
    u"Größere Übungen für «Anfänger» kosten 5 €",
    u"Où est passé l’été dernier, à Nîmes ?",
    u"Příliš žluťoučký kůň úpěl ďábelské ódy",
    u"Zażółć gęślą jaźń w ciągu dnia",
    u"Árvíztűrő tükörfúrógép és őszi eső",
    u"Съешь же ещё этих мягких французских булок",
    u"Ξεσκεπάζω την ψυχοφθόρα βδελυγμία",
    u"İstanbul’da güneşli bir gün, çok sıcak",
    u"Glāžšķūņa rūķīši dzērumā čiepj Baha koncertu",
    u"ג׳ופ כל דג חפץ שקט בים",
    u"いろはにほへと ちりぬるを 東京",
    u"다람쥐 헌 쳇바퀴에 타고파",
};

// As other programs mistake it: ICU's tables are not ours.
class Misreader {
  public:
    explicit Misreader(const char *charset) {
        for (std::size_t byte = 0; byte < units_.size(); ++byte) {
            const auto unit = text::decode(std::string(1, static_cast<char>(byte)), charset);
            // Some converters refuse gaps; the programs that cause all this do not.
            const bool gap = !unit || unit->empty() || *unit == u"\uFFFD";
            units_[byte] = gap ? static_cast<char16_t>(byte) : unit->front();
        }
    }

    std::u16string operator()(std::u16string_view text) const {
        std::u16string result;
        for (const char byte : text::utf16ToUtf8(text)) {
            result += units_[static_cast<unsigned char>(byte)];
        }
        return result;
    }

  private:
    std::array<char16_t, 256> units_{};
};

TEST(EncodingRepair, BringsBackWhatEachCharsetMangled) {
    const char *const names[] = {"windows-1252", "ISO-8859-1",   "windows-1250", "windows-1251",
                                 "windows-1253", "windows-1254", "windows-1257", "macintosh",
                                 "IBM437",       "KOI8-R"};
    for (const char *const name : names) {
        const Misreader misread(name);
        for (const std::u16string_view sentence : sentences) {
            std::u16string text(sentence);
            for (int layers = 1; layers <= 3; ++layers) {
                text = misread(text);
                EXPECT_EQ(text::utf16ToUtf8(repaired(text)), text::utf16ToUtf8(sentence))
                    << layers << " times " << name;
            }
        }
    }
}

TEST(EncodingRepair, HasNothingToDoTheSecondTime) {
    const auto tokens =
        reference::tokensOf(u"Ã|Â|©|â|€|™|œ|Ð|Ñ|¸|é|’|“|√|├|╝|п|я|│|Р|В|Г|Î|í|½|Å|Ä|\u0085|\u0093|"
                            u"\u00A0|\u00AD|\uFFFD|?| |\n|a|Z|漢|&eacute;",
                            u'|');
    const Misreader misread("windows-1252");
    reference::Random random(39);
    for (int round = 0; round < 300; ++round) {
        std::u16string text = random.text(tokens);
        text.resize(std::min<std::size_t>(text.size(), 60));
        if (random.oneIn(2)) {
            text = misread(text);
        }
        const std::u16string once = repaired(text);
        ASSERT_EQ(reference::escaped(repaired(once)), reference::escaped(once))
            << reference::escaped(text);
    }
    std::u16string deep = u"&";
    for (int layer = 0; layer < mostEncodingLayers; ++layer) {
        deep += u"amp;";
    }
    EXPECT_EQ(repaired(deep + u"lt;"), u"&lt;") << "one layer more than are taken off";
}

} // namespace
} // namespace nerlo::engine
