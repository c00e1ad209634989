// Spelling dictionaries: which one is taken, and what it is asked in.
#include "text/Dictionary.h"

#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace nerlo::text {
namespace {

TEST(Dictionary, IsFoundForTheLanguageAndAskedInItsEncoding) {
    const test::TemporaryFolder folder;
    const auto write = [&](const std::string &name, const char *words) {
        std::ofstream(folder / (name + ".aff")) << "SET ISO8859-1\n";
        std::ofstream(folder / (name + ".dic")) << "1\n" << words << '\n';
    };
    write("qx_AB", "caf\xE9");
    write("qx_QX", "home");
    ::setenv("DICPATH", ("/nowhere:" + folder.path()).c_str(), 1);
    EXPECT_TRUE(dictionaryFor("qx_AB")(u"caf\u00E9"));
    EXPECT_FALSE(dictionaryFor("qx_AB")(u"cafe"));
    EXPECT_FALSE(dictionaryFor("qx_AB")(u"\u4E2D")) << "not in its encoding";
    EXPECT_FALSE(dictionaryFor("qx_AB")(std::u16string(65, u'a')));
    for (const char *const locale : {"qx", "qx_ZZ", "qx_QX"}) {
        EXPECT_TRUE(dictionaryFor(locale)(u"home")) << locale;
    }
    for (const char *const locale : {"qy", "", "../qx_AB", "q"}) {
        EXPECT_FALSE(dictionaryFor(locale)) << locale;
    }
    ::unsetenv("DICPATH");
}

} // namespace
} // namespace nerlo::text
