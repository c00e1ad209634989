#include "storage/PropertyList.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <string>

namespace nerlo::storage {
namespace {

using namespace std::string_literals;

std::string document(const std::string &element) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           element + "\n</plist>\n";
}

PropertyValue everyKind() {
    return PropertyDictionary{
        {"zero", 0},
        {"minus", -1},
        {"smallest", std::numeric_limits<std::int64_t>::min()},
        {"largest", std::numeric_limits<std::uint64_t>::max()},
        {"yes", true},
        {"no", false},
        {"real", 0.1},
        {"huge real", 1e300},
        {"text", u"<&>\"' \tl\xEDnea\n\xD83D\xDE00"},
        {"empty", u""},
        {"data", PropertyData{std::byte{0}, std::byte{255}, std::byte{7}}},
        {"no data", PropertyData{}},
        {"date", PropertyDate{1.0}},
        {"distant future", PropertyDate{63113904000.0}},
        {"distant past", PropertyDate{-63114076800.0}},
        {"reference", PropertyUid{3}},
        {"list", PropertyArray{PropertyArray{}, PropertyDictionary{}, 7}},
        {"k\xC3\xA9y & <co>", PropertyDictionary{{"", u"an empty key"}}},
    };
}

TEST(PropertyList, KeepsEveryKindInBothForms) {
    for (const std::string &bytes : {writeXml(everyKind()), writeBinary(everyKind())}) {
        const auto parsed = parsePropertyList(bytes);
        ASSERT_TRUE(parsed.value) << parsed.error;
        EXPECT_EQ(*parsed.value, everyKind()) << writeXml(*parsed.value);
    }
}

TEST(PropertyList, DecimalCommaOfTheLocaleDoesNotReachTheFile) {
    // A locale with a decimal comma is not installed everywhere.
    const test::TemporaryFolder folder;
    setenv("LOCPATH", folder.path().c_str(), 1);
    const std::string make = "localedef -i de_DE -f UTF-8 " + folder.path() + "/de_DE.UTF-8";
    if (std::system(make.c_str()) != 0 || !std::setlocale(LC_ALL, "de_DE.UTF-8")) {
        GTEST_SKIP() << "nor can it be made here";
    }
    EXPECT_NE(writeXml(1.5).find("<real>1.5</real>"), std::string::npos);
    EXPECT_EQ(parsePropertyList(document("<real>1.5</real>")).value, PropertyValue(1.5));
    std::setlocale(LC_ALL, "C");
}

TEST(PropertyList, WritesBinaryWhereXmlWouldChangeTheText) {
    for (const PropertyValue &value :
         {PropertyValue(u"a\rb"), PropertyValue(PropertyArray{u"a\x01"}),
          PropertyValue(PropertyDictionary{{"k", u"\x1B["}})}) {
        const std::string bytes = writePropertyList(value);
        EXPECT_TRUE(bytes.starts_with("bplist00"));
        EXPECT_EQ(parsePropertyList(bytes).value, value);
    }
    EXPECT_TRUE(writePropertyList(u"a\tb\n").starts_with("<?xml"));
}

TEST(PropertyList, ReplacesWhatNoFormCanHold) {
    const PropertyValue value(u"a\0b\xD800"s);
    for (const std::string &bytes : {writeXml(value), writeBinary(value)}) {
        EXPECT_EQ(parsePropertyList(bytes).value, PropertyValue(u"a\xFFFD"
                                                                u"b\xFFFD"));
    }
}

TEST(PropertyList, AcceptsWhatOtherWritersWrite) {
    struct Row {
        const char *shows;
        std::string bytes;
        PropertyValue value;
    };
    const Row rows[] = {
        {"byte order mark", "\xEF\xBB\xBF" + document("<true/>"), true},
        {"no prolog", "<plist version=\"1.0\"><integer>5</integer></plist>", 5},
        {"white space around a number", document("<integer>\n\t7 </integer>"), 7},
        {"hexadecimal", document("<integer>0x1F</integer>"), 31},
        {"signs", document("<integer>+7</integer>"), 7},
        {"open and close tags of nothing",
         document("<array><true></true><string></string><dict></dict></array>"),
         PropertyArray{true, u"", PropertyDictionary{}}},
        {"comments",
         document("<!-- a > b --><dict><!-- c --><key>k</key><!-- d --><false/></dict>"),
         PropertyDictionary{{"k", false}}},
        {"CDATA", document("<string>x<![CDATA[<&>]]>y</string>"), u"x<&>y"},
        {"character references", document("<string>&#233;&#x1F600;&quot;&apos;</string>"),
         u"\xE9\xD83D\xDE00\"'"},
        {"white space in a text stays", document("<string> \n </string>"), u" \n "},
        {"a key twice: the later value",
         document("<dict><key>k</key><true/><key>k</key><integer>2"
                  "</integer></dict>"),
         PropertyDictionary{{"k", 2}}},
        {"data on several lines", document("<data>\n\tAQ\n\tI=\n</data>"),
         PropertyData{std::byte{1}, std::byte{2}}},
        {"a reference in XML", document("<dict><key>CF$UID</key><integer>4</integer></dict>"),
         PropertyUid{4}},
    };
    for (const Row &row : rows) {
        const auto parsed = parsePropertyList(row.bytes);
        ASSERT_TRUE(parsed.value) << row.shows << ": " << parsed.error;
        EXPECT_EQ(*parsed.value, row.value) << row.shows;
    }
}

TEST(PropertyList, RefusesWithAReason) {
    struct Row {
        const char *shows;
        std::string bytes;
        const char *reason;
    };
    std::string deep;
    for (int i = 0; i < 100'000; ++i) {
        deep += "<array>";
    }
    const Row rows[] = {
        {"nothing", "", "empty"},
        {"some text", "hello", "text between elements"},
        {"digits and a letter", document("<integer>12x</integer>"), "<integer>"},
        {"no digits", document("<integer></integer>"), "<integer>"},
        {"two signs", document("<integer>--5</integer>"), "<integer>"},
        {"above 64 bits", document("<integer>18446744073709551616</integer>"), "<integer>"},
        {"below 64 bits", document("<integer>-9223372036854775809</integer>"), "<integer>"},
        {"a real with a letter", document("<real>1.5x</real>"), "<real>"},
        {"a thirteenth month", document("<date>2001-13-01T00:00:00Z</date>"), "<date>"},
        {"data cut short", document("<data>AQI</data>"), "base64"},
        {"invalid UTF-8", document("<string>\xFF</string>"), "UTF-8"},
        {"overlong UTF-8", document("<string>\xC0\x80</string>"), "UTF-8"},
        {"a zero byte", document("<string>a\0b</string>"s), "zero byte"},
        {"a reference to zero", document("<string>&#0;</string>"), "character reference"},
        {"a reference to a surrogate", document("<string>&#xD800;</string>"),
         "character reference"},
        {"an unknown entity", document("<string>&nbsp;</string>"), "character reference"},
        {"an entity bomb's first part",
         "<!DOCTYPE plist [<!ENTITY a \"b\">]>" + document("<true/>"), "declarations"},
        {"a key without a value", document("<dict><key>a</key></dict>"), ""},
        {"a value without a key", document("<dict><true/></dict>"), "without a key"},
        {"two roots", document("<true/><true/>"), "</plist> is missing"},
        {"crossed tags", document("<array><dict></array></dict>"), ""},
        {"an unknown element", document("<set/>"), "do not have"},
        {"something after the end", document("<true/>") + "<x/>", "after </plist>"},
        {"nesting to exhaust the stack", document(deep), "nested too deeply"},
        {"a binary list of another version", "bplist15" + std::string(40, '\0'), "version"},
    };
    for (const Row &row : rows) {
        const auto parsed = parsePropertyList(row.bytes);
        EXPECT_FALSE(parsed.value) << row.shows;
        EXPECT_FALSE(parsed.error.empty()) << row.shows;
        EXPECT_NE(parsed.error.find(row.reason), std::string::npos)
            << row.shows << ": " << parsed.error;
    }
}

// A binary list of one-byte offsets and references; the first object is the root.
std::string binary(const std::vector<std::string> &objects) {
    std::string bytes = "bplist00";
    std::string table;
    for (const std::string &object : objects) {
        table += static_cast<char>(bytes.size());
        bytes += object;
    }
    const auto tableAt = bytes.size();
    const auto bigEndian = [](std::uint64_t number) {
        std::string text;
        for (int shift = 56; shift >= 0; shift -= 8) {
            text += static_cast<char>(number >> shift & 0xFF);
        }
        return text;
    };
    return bytes + table + "\0\0\0\0\0\0\1\1"s + bigEndian(objects.size()) + bigEndian(0) +
           bigEndian(tableAt);
}

TEST(PropertyList, ChecksBinaryListsByHand) {
    EXPECT_EQ(parsePropertyList(binary({"\xA2\1\2", "\x51x", "\x61\0\xE9"s})).value,
              PropertyValue(PropertyArray{u"x", u"\xE9"}));

    std::vector<std::string> doubling; // each array holds the next one twice: 2^31 values
    for (char i = 1; i < 32; ++i) {
        doubling.push_back("\xA2"s + i + i);
    }
    doubling.push_back("\x09");
    struct Row {
        const char *shows;
        std::string bytes;
    };
    const Row rows[] = {
        {"an array that holds itself", binary({"\xA1\0"s})},
        {"a list that doubles 31 times", binary(doubling)},
        {"a reference to no object", binary({"\xA1\7"})},
        {"an array longer than the file", binary({"\xAF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})},
        {"a length that overflows", binary({"\x6F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})},
        {"a text past the objects", binary({"\x5F\x10\x7Fx"})},
        {"an unpaired surrogate", binary({"\x61\xD8\0"s})},
        {"surrogates in the wrong order", binary({"\x62\xDC\0\xD8\0"s})},
        {"a byte that is not ASCII", binary({"\x51\xE9"})},
        {"U+0000", binary({"\x51\0"s})},
        {"a key that is a number", binary({"\xD1\1\1", "\x10\5"})},
        {"an integer of 32 bytes", binary({"\x15" + std::string(32, '\0')})},
        {"a date that is not a number", binary({"\x33\x7F\xF8\0\0\0\0\0\0"s})},
        {"null", binary({"\0"s})},
    };
    for (const Row &row : rows) {
        const auto parsed = parsePropertyList(row.bytes);
        EXPECT_FALSE(parsed.value) << row.shows;
        EXPECT_FALSE(parsed.error.empty()) << row.shows;
    }
}

TEST(PropertyList, SurvivesEveryTruncationAndEveryFlippedByte) {
    for (const std::string &whole : {writeXml(everyKind()), writeBinary(everyKind())}) {
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const auto parsed = parsePropertyList(std::string_view(whole).substr(0, size));
            // The only thing that XML can lose at its end is white space.
            EXPECT_TRUE(!parsed.value || whole.size() - size == 1) << size;
        }
        for (std::size_t place = 0; place < whole.size(); ++place) {
            for (int bit = 0; bit < 8; ++bit) {
                std::string flipped = whole;
                flipped[place] = static_cast<char>(flipped[place] ^ 1 << bit);
                if (const auto parsed = parsePropertyList(flipped); parsed.value) {
                    EXPECT_FALSE(writeXml(*parsed.value).empty());
                }
            }
        }
    }
}

TEST(PropertyDictionary, TakesManyEntriesWithoutComparingEachWithEach) {
    PropertyDictionary::Entries entries;
    for (int i = 0; i < 200'000; ++i) {
        entries.emplace_back(std::to_string(i % 150'000), i);
    }
    const PropertyDictionary dictionary(std::move(entries));
    EXPECT_EQ(dictionary.size(), 150'000u);
    EXPECT_EQ(*dictionary.find("49999"), PropertyValue(199'999));
}

} // namespace
} // namespace nerlo::storage
