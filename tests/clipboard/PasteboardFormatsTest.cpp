#include "clipboard/PasteboardFormats.h"
#include "platform/SpreadsheetLinks.h"

#include <gtest/gtest.h>

namespace nerlo::clipboard {
namespace {

using Names = std::vector<std::string>;

TEST(PasteboardFormats, TextsAreKnownByName) {
    const std::pair<Names, Names> rows[] = {
        {{"STRING", "text/plain;charset=utf-8", "UTF8_STRING"},
         {"UTF8_STRING", "text/plain;charset=utf-8", "STRING"}},
        {{"text/html", "TEXT", "text/plain", "text/plain;charset=utf-8"},
         {"text/plain;charset=utf-8", "text/plain", "TEXT"}},
        {{"STRING", R"(Text/Plain ; x=y; Charset = "UTF-8")"},
         {R"(Text/Plain ; x=y; Charset = "UTF-8")", "STRING"}},
        {{"STRING", "text/plain;charset=utf-16", "text/plain;charset=nonsense",
          "text/plain;charset=utf-16,swaplfnl"},
         {"text/plain;charset=utf-16", "STRING"}},
        {{"image/png", "text/html", "text/plainer", "C_STRING"}, {}},
    };
    for (const auto &[names, expected] : rows) {
        EXPECT_EQ(textFormats(names), expected);
    }
    EXPECT_TRUE(onlyPlainText({"COMPOUND_TEXT", "text/plain;charset=nonsense", "TEXT"}));
    EXPECT_FALSE(onlyPlainText({"text/plain", "x-own"}));
    EXPECT_EQ(readingOrder({"image/png", "x-own", "application/x-openoffice-emf", "TEXT",
                            "application/rtf", "text/html"}),
              Names({"TEXT", "application/rtf", "text/html", "x-own", "image/png",
                     "application/x-openoffice-emf"}));
}

TEST(PasteboardFormats, AnAddressAloneIsALink) {
    for (const auto *link : {u"https://example.org/a?b=c#d", u"a+1.b-c://x", u"file:///a%20b"}) {
        EXPECT_TRUE(isUrl(link));
    }
    for (const auto *other : {u"https://", u"://x", u"1a://x", u"see https://x", u"https://x y",
                              u"https://x\n", u"https://x\u2003", u"mailto:a@b", u"a b://c", u""}) {
        EXPECT_FALSE(isUrl(other));
    }
}

TEST(PasteboardFormats, AddressesAndSecretsAreKnownByName) {
    for (const char *address : {"text/x-moz-url", "text/uri-list;charset=utf-8",
                                "application/x-kde-cutselection", "x-special/gnome-copied-files"}) {
        EXPECT_TRUE(offersUrl(Names{address, "UTF8_STRING"})) << address;
        EXPECT_FALSE(marksSecret(Names{address, "UTF8_STRING"})) << address;
    }
    // As Firefox offers ordinary text, and KeePassXC a password.
    EXPECT_FALSE(offersUrl(Names{"text/html", "text/x-moz-url-priv", "UTF8_STRING"}));
    EXPECT_FALSE(offersUrl(Names{}));
    for (const char *hint : {"x-kde-passwordManagerHint", "Clipboard Viewer Ignore",
                             "ExcludeClipboardContentFromMonitorProcessing",
                             R"(application/x-own;name="Clipboard Viewer Ignore")"}) {
        EXPECT_TRUE(marksSecret(Names{"text/plain", hint})) << hint;
    }
}

TEST(PasteboardFormats, DecodeByTheDeclaredTypeOrElseTheFormat) {
    const struct {
        const char *format;
        const char *type;
        std::string bytes;
        std::optional<std::u16string> text;
    } rows[] = {
        {"UTF8_STRING", "", "\xc3\xa9\xf0\x9f\x99\x82", u"é🙂"},
        {"STRING", "", "\xe9", u"é"},
        {"text/plain", "", "caf\xe9", std::nullopt},
        {"text/plain", "", "", u""},
        {"text/plain; charset=\"ISO-8859-15\"", "", "\xa4", u"€"},
        {"text/plain;charset=utf-16le", "", std::string("a\0=\xd8", 4), std::nullopt},
        {"text/plain;charset=utf-16", "", std::string("\xff\xfe\xac\x20", 4), u"€"},
        {"text/plain;charset=shift_jis", "", "\x82\xa0", u"あ"},
        // What owners say of an X11 property.
        {"UTF8_STRING", "STRING", "\xe9", u"é"},
        {"STRING", "UTF8_STRING", "\xc3\xa9", u"é"},
        {"TEXT", "text/plain;charset=koi8-r", "\xc1", u"а"},
        {"TEXT", "COMPOUND_TEXT", "\x1b-L\xd6", u"ж"},
        {"UTF8_STRING", "x-own", "\xc3\xa9", u"é"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(
            decodeText({row.format, row.type, std::make_shared<const std::string>(row.bytes)}),
            row.text)
            << row.format << " as " << row.type;
    }
}

TEST(PasteboardFormats, OurTextIsOfferedAsPlainTextOnly) {
    const auto formats = [](const PasteboardContent &content) {
        std::vector<std::string> names;
        for (const auto &data : content) {
            EXPECT_EQ(decodeText(data), decodeText(content.front())) << data.format;
            names.push_back(data.format);
        }
        return names;
    };
    const std::vector<std::string> other{"text/plain;charset=utf-8", "UTF8_STRING", "text/plain",
                                         "TEXT"};
    EXPECT_EQ(formats(plainTextContent("\xc3\xa9")), other);
    // STRING is Latin-1 and is offered only where that makes no difference.
    const std::vector<std::string> ascii{"text/plain;charset=utf-8", "UTF8_STRING", "text/plain",
                                         "STRING", "TEXT"};
    EXPECT_EQ(formats(plainTextContent("e")), ascii);
}

TEST(SpreadsheetLinks, MapWindowsAndFormats) {
    EXPECT_EQ(platform::spreadsheetOfWindow("EXCEL.EXE"), "com.microsoft.Excel");
    EXPECT_EQ(platform::spreadsheetOfWindow("libreoffice-calc"), "org.libreoffice.Calc");
    EXPECT_EQ(platform::spreadsheetOfWindow("libreoffice-writer"), "");
    EXPECT_EQ(platform::spreadsheetOfWindow(""), "");
    EXPECT_TRUE(platform::offersLink({"UTF8_STRING", "Link"}, "com.microsoft.Link"));
    EXPECT_FALSE(platform::offersLink({"UTF8_STRING", "HTML Format"}, "com.microsoft.Link"));
    const std::vector<std::string> calc{
        R"(application/x-openoffice-link;windows_formatname="Link")"};
    EXPECT_TRUE(platform::offersLink(calc, "org.libreoffice.Link"));
    EXPECT_FALSE(platform::offersLink(calc, "com.microsoft.Link"));
    EXPECT_EQ(platform::spreadsheetOfWindow("libreoffice-startcenter"), "org.libreoffice");
    EXPECT_FALSE(platform::offersLink(calc, "org.libreoffice.Cells")); // a text may be linked too
    EXPECT_TRUE(platform::offersLink({R"(application/x-openoffice-sylk;windows_formatname="Sylk")"},
                                     "org.libreoffice.Cells"));
}

} // namespace
} // namespace nerlo::clipboard
