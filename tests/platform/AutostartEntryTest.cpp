#include "platform/linux/AutostartEntry.h"

#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

TEST(AutostartEntry, IsThereWhileTheProgramStartsAtLogin) {
    const test::TemporaryFolder folder;
    const std::string path = folder / "autostart/org.nerlo.NerloPro.desktop";
    AutostartEntry entry(folder / "autostart", "/opt/my \"own\" $dir/50%/back\\slash");
    EXPECT_FALSE(entry.enabled());
    EXPECT_EQ(entry.setEnabled(false), "");
    EXPECT_EQ(entry.setEnabled(true), "");
    EXPECT_TRUE(entry.enabled());
    const std::string bytes = test::bytesOf(path);
    EXPECT_TRUE(bytes.starts_with("[Desktop Entry]\nType=Application\n"));
    EXPECT_NE(bytes.find("\nExec=\"/opt/my \\\\\"own\\\\\" \\\\$dir/50%%/back\\\\\\\\slash\"\n"),
              std::string::npos)
        << bytes;
    // The settings of a desktop switch an entry off by hiding it, not by removing it.
    test::putBytes(path, bytes + "Hidden=true\n");
    EXPECT_FALSE(entry.enabled());
    EXPECT_EQ(entry.setEnabled(true), "");
    EXPECT_TRUE(entry.enabled());
    EXPECT_EQ(entry.setEnabled(false), "");
    EXPECT_FALSE(std::filesystem::exists(path));
    // If the folder cannot be made, the error says so.
    test::putBytes(folder / "file", "");
    EXPECT_NE(AutostartEntry(folder / "file/autostart", "/bin/true").setEnabled(true), "");
}

} // namespace
} // namespace nerlo::platform
