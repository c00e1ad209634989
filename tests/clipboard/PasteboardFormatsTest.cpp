#include "clipboard/PasteboardFormats.h"
#include "platform/SpreadsheetLinks.h"

#include <gtest/gtest.h>

namespace nerlo::clipboard {
namespace {

using Names = std::vector<std::string>;

TEST(PasteboardFormats, TheBestTextIsKnownByName) {
    const std::pair<Names, const char *> rows[] = {
        {{"STRING", "UTF8_STRING"}, "UTF8_STRING"},
        {{"text/html", "TEXT", "text/plain", "text/plain;charset=utf-8"},
         "text/plain;charset=utf-8"},
        {{"STRING", "Text/Plain;Charset=UTF-8"}, "Text/Plain;Charset=UTF-8"},
        {{"text/plain;charset=utf-16"}, nullptr}, // is not read as UTF-8
        {{"image/png", "text/html"}, nullptr},
        {{}, nullptr},
    };
    for (const auto &[names, expected] : rows) {
        const auto *text = bestTextFormat(names);
        EXPECT_EQ(text ? *text : "(none)", expected ? expected : "(none)");
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
    EXPECT_TRUE(marksSecret(Names{"text/plain", "x-kde-passwordManagerHint"}));
}

TEST(PasteboardFormats, DecodeByTheFormatsEncoding) {
    const auto decoded = [](std::string format, std::string bytes) {
        return decodeText({std::move(format), {}, std::make_shared<const std::string>(bytes)});
    };
    EXPECT_EQ(decoded("UTF8_STRING", "\xc3\xa9\xf0\x9f\x99\x82"), u"é🙂");
    EXPECT_EQ(decoded("STRING", "\xe9"), u"é");
    EXPECT_EQ(decoded("text/plain", "caf\xe9"), std::nullopt);
    EXPECT_EQ(decoded("text/plain", ""), u"");
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
