// The charsets for which UTF-8 is mistaken, and what kinds of characters there are.
//
// The charsets are the mapping tables at unicode.org (MAPPINGS/VENDORS and MAPPINGS/ISO8859), bytes
// 0x80 to 0xFF in order. Kinds follow Unicode's blocks and general categories.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace nerlo::engine {

// A "?" is a gap: programs pass such a byte on as the control character of the same number. They do
// so with other bytes below 0xA0 too, so that these controls stand for their bytes in all charsets.
// ISO 8859-1 is therefore a part of windows-1252.
struct Charset {
    // What it takes to believe in it where another one would do as well.
    int doubt;
    std::u16string_view upperHalf;
};

inline constexpr Charset charsets[] = {
    // windows-1252, and ISO 8859-1
    {0, u"€?‚ƒ„…†‡ˆ‰Š‹Œ?Ž??‘’“”•–—˜™š›œ?žŸ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
        u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"},
    // windows-1250
    {1, u"€?‚?„…†‡?‰Š‹ŚŤŽŹ?‘’“”•–—?™š›śťžź"
        u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
        u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
        u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    // windows-1251
    {1, u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—?™љ›њќћџ"
        u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
        u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
        u"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    // windows-1253
    {2, u"€?‚ƒ„…†‡?‰?‹?????‘’“”•–—?™?›????"
        u"\u00A0΅Ά£¤¥¦§¨©ª«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
        u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡÒΣΤΥΦΧΨΩΪΫάέήί"
        u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώÿ"},
    // windows-1254
    {1, u"€?‚ƒ„…†‡ˆ‰Š‹Œ????‘’“”•–—˜™š›œ??Ÿ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
        u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    // windows-1257
    {1, u"€?‚?„…†‡?‰?‹?¨ˇ¸?‘’“”•–—?™?›?¯˛?"
        u"\u00A0¡¢£¤¥¦§Ø©Ŗ«¬\u00AD®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
        u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
        u"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙"},
    // ISO 8859-2
    {2, u"????????????????????????????????"
        u"\u00A0Ą˘Ł¤ĽŚ§¨ŠŞŤŹ\u00ADŽŻ°ą˛ł´ľśˇ¸šşťź˝žż"
        u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
        u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    // MacRoman
    {1, u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
        u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
        u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›\uFB01\uFB02"
        u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ"},
    // code page 437
    {1, u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
        u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
        u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
        u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0"},
    // KOI8-R
    {1, u"─│┌┐└┘├┤┬┴┼▀▄█▌▐░▒▓⌠■∙√≈≤≥\u00A0⌡°²·÷"
        u"═║╒ё╓╔╕╖╗╘╙╚╛╜╝╞╟╠╡Ё╢╣╤╥╦╧╨╩╪╫╬©"
        u"юабцдефгхийклмнопярстужвьызшэщчъ"
        u"ЮАБЦДЕФГХИЙКЛМНОПЯРСТУЖВЬЫЗШЭЩЧЪ"},
};
inline constexpr std::size_t charsetCount = std::size(charsets);

// What stands for which byte: for a character of any charset, its byte in each, 0 for none.
class CharsetBytes {
  public:
    using Bytes = std::array<std::uint8_t, charsetCount>;

    constexpr CharsetBytes() {
        for (std::size_t charset = 0; charset < charsetCount; ++charset) {
            for (std::size_t at = 0; at < 128; ++at) {
                const char16_t unit = charsets[charset].upperHalf[at];
                const auto byte = static_cast<std::uint8_t>(0x80 + at);
                if (unit != u'?') {
                    rowFor(unit)[charset] = byte;
                }
                if (byte < 0xA0) {
                    rowFor(byte)[charset] = byte;
                }
            }
            // Some have the Greek letter in the place of the micro sign.
            std::uint8_t &greek = rowFor(u'\u03BC')[charset];
            greek = greek ? greek : rowFor(u'\u00B5')[charset];
        }
    }

    constexpr const Bytes &operator[](char16_t unit) const {
        return rows_[cells_[pages_[unit / 256] * 256u + unit % 256]];
    }

  private:
    constexpr Bytes &rowFor(char16_t unit) {
        std::uint8_t &page = pages_[unit / 256];
        page = page ? page : ++usedPages_;
        std::uint16_t &row = cells_.at(page * 256u + unit % 256);
        row = row ? row : ++usedRows_;
        return rows_.at(row);
    }

    // Page and row 0 are empty.
    std::array<std::uint8_t, 256> pages_{};
    std::array<std::uint16_t, std::size_t{14} * 256> cells_{};
    std::array<Bytes, 640> rows_{};
    std::uint8_t usedPages_ = 0;
    std::uint16_t usedRows_ = 0;
};

// What a character is to its neighbours.
enum class Kind : std::uint8_t {
    blank, // and the edges of a line
    digit,
    mark, // punctuation and symbols of ASCII
    lower,
    upper, // letters of ASCII
    latinLower,
    latinUpper,
    greekLower,
    greekUpper,
    cyrillicLower,
    cyrillicUpper,
    hebrew,
    arabic,
    indic,
    southEastAsian,
    otherLetter,
    eastAsian,
    combining,
    apostrophe,
    quote,
    lowQuote, // opens, in all languages
    opening,  // what Spanish puts before a sentence
    dash,
    dots,
    trade, // after a name or a number
    currency,
    superscript,
    symbol,
    math,
    diacritic,
    line,   // of a frame
    corner, // of a frame
    picture,
    control,
    noBreak,
    lost,
    odd,
    count
};

struct KindRow {
    char16_t first;
    char16_t last;
    Kind kind;
    // How far from ordinary text its mere presence is.
    std::uint8_t oddness = 0;
};

// Later rows prevail. What no row has is odd: unassigned, private or in hardly anybody's language.
inline constexpr std::uint8_t oddOddness = 10;
inline constexpr KindRow kindRows[] = {
    {0x0000, 0x0020, Kind::blank},
    {0x0021, 0x002F, Kind::mark},
    {u'0', u'9', Kind::digit},
    {0x003A, 0x0040, Kind::mark},
    {u'A', u'Z', Kind::upper},
    {0x005B, 0x0060, Kind::mark},
    {u'a', u'z', Kind::lower},
    {0x007B, 0x007F, Kind::mark},
    {0x0080, 0x009F, Kind::control, 6},
    {0x00A0, 0x00A0, Kind::noBreak},
    {0x00A1, 0x00A1, Kind::opening},
    {0x00A2, 0x00A5, Kind::currency},
    {0x00A6, 0x00A7, Kind::symbol},
    {0x00A8, 0x00A8, Kind::diacritic, 1},
    {0x00A9, 0x00A9, Kind::symbol},
    {0x00AA, 0x00AA, Kind::trade},
    {0x00AB, 0x00AB, Kind::quote},
    {0x00AC, 0x00AC, Kind::symbol, 1},
    {0x00AD, 0x00AD, Kind::noBreak},
    {0x00AE, 0x00AE, Kind::trade},
    {0x00AF, 0x00AF, Kind::diacritic, 1},
    {0x00B0, 0x00B1, Kind::symbol},
    {0x00B2, 0x00B3, Kind::superscript},
    {0x00B4, 0x00B4, Kind::diacritic, 1},
    {0x00B5, 0x00B6, Kind::symbol},
    {0x00B7, 0x00B7, Kind::dots},
    {0x00B8, 0x00B8, Kind::diacritic, 2},
    {0x00B9, 0x00B9, Kind::superscript},
    {0x00BA, 0x00BA, Kind::trade},
    {0x00BB, 0x00BB, Kind::quote},
    {0x00BC, 0x00BE, Kind::superscript},
    {0x00BF, 0x00BF, Kind::opening},
    {0x00C0, 0x00DE, Kind::latinUpper},
    {0x00C2, 0x00C2, Kind::latinUpper, 3},
    {0x00C3, 0x00C3, Kind::latinUpper, 4},
    {0x00D0, 0x00D0, Kind::latinUpper, 2},
    {0x00D7, 0x00D7, Kind::math},
    {0x00DF, 0x00F6, Kind::latinLower},
    {0x00F7, 0x00F7, Kind::math},
    {0x00F8, 0x00FF, Kind::latinLower},
    {0x00FF, 0x00FF, Kind::latinLower, 3},
    {0x0100, 0x017F, Kind::latinLower}, // these and others by turns upper and lower
    {0x010A, 0x010B, Kind::latinLower, 2},
    {0x0114, 0x0115, Kind::latinLower, 4},
    {0x0120, 0x0121, Kind::latinLower, 2},
    {0x0128, 0x0129, Kind::latinLower, 2},
    {0x012C, 0x012D, Kind::latinLower, 4},
    {0x0138, 0x0138, Kind::latinLower, 8},
    {0x014E, 0x014F, Kind::latinLower, 4},
    {0x0152, 0x0152, Kind::latinUpper, 1},
    {0x0153, 0x0153, Kind::latinLower, 2},
    {0x0156, 0x0157, Kind::latinLower, 4},
    {0x0168, 0x0169, Kind::latinLower, 2},
    {0x0178, 0x0178, Kind::latinUpper, 4},
    {0x017F, 0x017F, Kind::latinLower, 18},
    {0x0192, 0x0192, Kind::currency, 3},
    {0x01A0, 0x01A1, Kind::latinLower},
    {0x01AF, 0x01B0, Kind::latinLower},
    {0x01C4, 0x01CC, Kind::latinLower, 2},
    {0x01CD, 0x01DC, Kind::latinLower, 2},
    {0x01E6, 0x01E7, Kind::latinLower, 2},
    {0x01EA, 0x01EB, Kind::latinLower, 2},
    {0x0218, 0x021B, Kind::latinLower},
    {0x0259, 0x0259, Kind::latinLower, 2},
    {0x02BB, 0x02BC, Kind::apostrophe},
    {0x02C6, 0x02C7, Kind::diacritic, 3},
    {0x02C9, 0x02C9, Kind::diacritic, 3},
    {0x02D8, 0x02DD, Kind::diacritic, 3},
    {0x0300, 0x036F, Kind::combining, 2},
    {0x0384, 0x0385, Kind::diacritic, 2},
    {0x0386, 0x038F, Kind::greekUpper},
    {0x0390, 0x0390, Kind::greekLower},
    {0x0391, 0x03AB, Kind::greekUpper},
    {0x03AC, 0x03CE, Kind::greekLower},
    {0x0400, 0x042F, Kind::cyrillicUpper},
    {0x0430, 0x045F, Kind::cyrillicLower},
    {0x0450, 0x0450, Kind::cyrillicLower, 2},
    {0x0460, 0x0481, Kind::cyrillicLower, 8},
    {0x0490, 0x0491, Kind::cyrillicLower},
    {0x0492, 0x04FF, Kind::cyrillicLower, 3},
    {0x0531, 0x0556, Kind::otherLetter, 2},
    {0x0561, 0x0587, Kind::otherLetter, 1},
    {0x0591, 0x05C7, Kind::hebrew, 2},
    {0x05D0, 0x05EA, Kind::hebrew},
    {0x0600, 0x060F, Kind::mark},
    {0x0610, 0x061A, Kind::arabic, 8},
    {0x061B, 0x061F, Kind::mark},
    {0x0620, 0x0652, Kind::arabic},
    {0x0660, 0x066D, Kind::mark},
    {0x066E, 0x06D3, Kind::arabic, 1},
    {0x06F0, 0x06F9, Kind::mark},
    {0x0900, 0x0DF4, Kind::indic},
    {0x0E01, 0x0EDF, Kind::southEastAsian},
    {0x1000, 0x109F, Kind::southEastAsian},
    {0x10A0, 0x10FF, Kind::otherLetter},
    {0x1200, 0x137F, Kind::otherLetter},
    {0x1780, 0x17F9, Kind::southEastAsian},
    {0x1C90, 0x1CBF, Kind::otherLetter},
    {0x1E00, 0x1EFF, Kind::latinLower, 3},
    {0x1EA0, 0x1EF9, Kind::latinLower},
    {0x1F00, 0x1FFE, Kind::greekLower, 2},
    {0x2000, 0x200F, Kind::noBreak, 1},
    {0x2010, 0x2015, Kind::dash},
    {0x2018, 0x2018, Kind::quote},
    {0x2019, 0x2019, Kind::apostrophe},
    {0x201A, 0x201A, Kind::lowQuote},
    {0x201B, 0x201D, Kind::quote},
    {0x201E, 0x201E, Kind::lowQuote},
    {0x201F, 0x201F, Kind::quote},
    {0x2020, 0x2021, Kind::symbol, 1},
    {0x2022, 0x2022, Kind::dots},
    {0x2024, 0x2026, Kind::dots},
    {0x202A, 0x202F, Kind::noBreak, 1},
    {0x2030, 0x2031, Kind::symbol, 1},
    {0x2032, 0x2033, Kind::symbol},
    {0x2039, 0x203A, Kind::quote},
    {0x203C, 0x2049, Kind::symbol, 1},
    {0x2060, 0x2069, Kind::noBreak, 1},
    {0x2070, 0x2094, Kind::superscript},
    {0x20A0, 0x20C0, Kind::currency},
    {0x20D0, 0x20F0, Kind::combining, 2},
    {0x2100, 0x214F, Kind::symbol},
    {0x2122, 0x2122, Kind::trade},
    {0x2150, 0x218B, Kind::superscript},
    {0x2190, 0x21FF, Kind::picture},
    {0x2200, 0x22FF, Kind::math},
    {0x2202, 0x2202, Kind::math, 2},
    {0x220F, 0x220F, Kind::math, 2},
    {0x221A, 0x221A, Kind::math, 2},
    {0x222B, 0x222B, Kind::math, 2},
    {0x2300, 0x23FF, Kind::picture},
    {0x2320, 0x2321, Kind::corner, 1},
    {0x2460, 0x24FF, Kind::picture},
    {0x2500, 0x259F, Kind::line},
    {0x250C, 0x254B, Kind::corner},
    {0x2552, 0x2570, Kind::corner},
    {0x25A0, 0x2BFF, Kind::picture},
    {0x25CA, 0x25CA, Kind::math, 2},
    {0x3000, 0x3004, Kind::mark},
    {0x3005, 0x3007, Kind::eastAsian},
    {0x3008, 0x303F, Kind::mark},
    {0x3041, 0x30FF, Kind::eastAsian},
    {0x3105, 0x312F, Kind::eastAsian, 2},
    {0x3131, 0x318E, Kind::eastAsian, 1},
    {0x3200, 0x33FF, Kind::eastAsian, 1},
    {0x3400, 0x4DBF, Kind::eastAsian, 6},
    {0x4E00, 0x9FFF, Kind::eastAsian},
    {0xAC00, 0xD7A3, Kind::eastAsian},
    {0xF8FF, 0xF8FF, Kind::odd, 6},
    {0xFB00, 0xFB06, Kind::latinLower, 1},
    {0xFB1D, 0xFB4F, Kind::hebrew, 3},
    {0xFB50, 0xFDFF, Kind::arabic, 2},
    {0xFE00, 0xFE0F, Kind::combining},
    {0xFE70, 0xFEFC, Kind::arabic, 1},
    {0xFEFF, 0xFEFF, Kind::noBreak},
    {0xFF01, 0xFFEF, Kind::mark},
    {0xFF66, 0xFF9F, Kind::eastAsian, 1},
    {0xFFFC, 0xFFFC, Kind::odd, 3},
    {0xFFFD, 0xFFFD, Kind::lost, 4},
};

// The letters beyond ASCII of the languages that have most of them. Two letters of different
// languages seldom meet in a word.
inline constexpr std::u16string_view alphabets[] = {
    u"äöüßÄÖÜẞ",
    u"àâæçéèêëîïôœùûüÿÀÂÆÇÉÈÊËÎÏÔŒÙÛÜŸ",
    u"áéíñóúüÁÉÍÑÓÚÜ",
    u"ãáâàçéêíõóôúüÃÁÂÀÇÉÊÍÕÓÔÚÜ",
    u"àéèìíîòóùúÀÉÈÌÍÎÒÓÙÚ",
    u"àçéèíïòóúüÀÇÉÈÍÏÒÓÚÜ",
    u"áéëíïóöúàèÁÉËÍÏÓÖÚÀÈ",
    u"åäöéüàÅÄÖÉÜÀ",
    u"åæøéèêóòôäöüÅÆØÉÈÊÓÒÔÄÖÜ",
    u"áðéíóúýþæöÁÐÉÍÓÚÝÞÆÖ",
    u"äöõüšžåÄÖÕÜŠŽÅ",
    u"áčďéěíňóřšťúůýžÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ",
    u"áäčďéíĺľňóôŕšťúýžÁÄČĎÉÍĹĽŇÓÔŔŠŤÚÝŽ",
    u"ąćęłńóśźżĄĆĘŁŃÓŚŹŻ",
    u"áéíóöőúüűÁÉÍÓÖŐÚÜŰ",
    u"ăâîșțşţĂÂÎȘȚŞŢ",
    u"čćđšžǆǉǌČĆĐŠŽ",
    u"āčēģīķļņōŗšūžĀČĒĢĪĶĻŅŌŖŠŪŽ",
    u"ąčęėįšųūžĄČĘĖĮŠŲŪŽ",
    u"çğıöşüâîûÇĞİÖŞÜÂÎÛ",
    u"çəğıöşüÇƏĞİÖŞÜ",
    u"çëÇË",
    u"ċġħżàèìòùĊĠĦŻÀÈÌÒÙ",
    u"ĉĝĥĵŝŭĈĜĤĴŜŬ",
    u"âêîôûŵŷáéíóúàèìòùäëïöüÂÊÎÔÛŴŶÁÉÍÓÚÀÈÌÒÙÄËÏÖÜ",
    u"āēīōūǖǘǚǜáéíóúǎěǐǒǔàèìòùüĀĒĪŌŪÁÉÍÓÚÀÈÌÒÙÜ",
    u"áâčđŋšŧžåäöæøÁÂČĐŊŠŦŽÅÄÖÆØ",
};
// Vietnamese puts its letters beside those of the extended block for its tones.
inline constexpr std::u16string_view vietnamese = u"àáâãèéêìíòóôõùúýăđĩũơưÀÁÂÃÈÉÊÌÍÒÓÔÕÙÚÝĂĐĨŨƠƯ";

} // namespace nerlo::engine
