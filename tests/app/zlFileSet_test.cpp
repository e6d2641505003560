#include "app/zlFileSet.h"

#include <gtest/gtest.h>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

std::string utf8(const dm_string& s) {
    return s.to_utf8().str();
}

zlLocalTime fixedTime() {
    zlLocalTime t;
    t.year = 2018;
    t.month = 3;
    t.day = 9;
    t.hour = 17;
    t.minute = 5;
    t.second = 42;
    t.millisecond = 815;
    return t;
}

TEST(zlFileSet, NamesAllFilesInOneFolder) {
    EXPECT_EQ("2018_03_09_17_05_42_0815", utf8(zlTimeStamp(fixedTime())));
    const zlFileSet set = zlFileSet::in(dm_utf8_str("C:\\Apps\\Zelto\\").to_wide(), fixedTime());
    ASSERT_TRUE(set.valid());
    EXPECT_EQ("C:\\Apps\\Zelto\\Zelto.xml", utf8(set.keyFile));
    EXPECT_EQ("C:\\Apps\\Zelto\\Zelto.backup.2018_03_09_17_05_42_0815.xml", utf8(set.backup));
    EXPECT_EQ("C:\\Apps\\Zelto\\ZeltoPre.exe", utf8(set.converter));
    EXPECT_EQ("C:\\Apps\\Zelto\\ZeltoPre.xml", utf8(set.workingCopy));

    const zlFileSet none = zlFileSet::in(dm_string(), fixedTime());
    EXPECT_FALSE(none.valid());
    EXPECT_TRUE(none.keyFile.empty());
    EXPECT_EQ("dm_system::get_this_exe_path(..) failed", utf8(none.detail));

    // Beside the running program: the test program's own folder.
    const zlFileSet mine = zlFileSet::ofThisProgram();
    ASSERT_TRUE(mine.valid());
    EXPECT_EQ(0u, utf8(mine.keyFile).find(utf8(mine.folder)));
}

TEST(zlFileSet, BackupNeverOverwrites) {
    ztest::TempDir dir;
    const zlFileSet set = zlFileSet::in(ztest::widePath(dir.path() / ""), fixedTime());
    ztest::writeBytes(dir / "Zelto.xml", "first");

    dm_string backup;
    ASSERT_EQ(1, zlMakeBackup(set.keyFile, set, backup));
    EXPECT_TRUE(backup.equals(set.backup));
    EXPECT_EQ("first", ztest::readBytes(dir / "Zelto.backup.2018_03_09_17_05_42_0815.xml"));

    // A second backup within the same millisecond finds its name taken.
    ztest::writeBytes(dir / "Zelto.xml", "second");
    EXPECT_EQ(-19, zlMakeBackup(set.keyFile, set, backup));
    EXPECT_TRUE(backup.empty());
    EXPECT_EQ("first", ztest::readBytes(dir / "Zelto.backup.2018_03_09_17_05_42_0815.xml"));

    EXPECT_EQ(-18, zlMakeBackup(set.keyFile, zlFileSet::in(dm_string(), fixedTime()), backup));
    const zlFileSet missing = zlFileSet::in(ztest::widePath(dir.path() / "gone" / ""), fixedTime());
    EXPECT_EQ(-19, zlMakeBackup(missing.keyFile, missing, backup));
}

TEST(zlFileOps, CopyAndDelete) {
    ztest::TempDir dir;
    const dm_string a = ztest::widePath(dir / "a.xml");
    const dm_string b = ztest::widePath(dir / "b.xml");
    ztest::writeBytes(dir / "a.xml", std::string("a\0b", 3));

    // Onto itself: success without opening anything, even for a file that is not there.
    EXPECT_TRUE(zlCopyFile(a, a, false));
    EXPECT_TRUE(zlCopyFile(b, b, true));
    EXPECT_FALSE(std::filesystem::exists(dir / "b.xml"));

    EXPECT_FALSE(zlCopyFile(dm_string(), b, true));
    EXPECT_FALSE(zlCopyFile(a, dm_string(), true));
    EXPECT_TRUE(zlCopyFile(a, b, false));
    EXPECT_EQ(std::string("a\0b", 3), ztest::readBytes(dir / "b.xml"));

    ztest::writeBytes(dir / "a.xml", "newer");
    EXPECT_FALSE(zlCopyFile(a, b, false));
    EXPECT_EQ(3u, ztest::readBytes(dir / "b.xml").size());
    EXPECT_TRUE(zlCopyFile(a, b, true));
    EXPECT_EQ("newer", ztest::readBytes(dir / "b.xml"));
    EXPECT_FALSE(zlCopyFile(ztest::widePath(dir / "missing"), b, true));

    EXPECT_TRUE(zlDeleteFile(b));
    EXPECT_FALSE(std::filesystem::exists(dir / "b.xml"));
    EXPECT_TRUE(zlDeleteFile(b));  // already gone
}

TEST(zlFileOps, NowIsAPlausibleLocalTime) {
    const zlLocalTime t = zlNow();
    EXPECT_GE(t.year, 2020);
    EXPECT_TRUE(t.month >= 1 && t.month <= 12);
    EXPECT_TRUE(t.day >= 1 && t.day <= 31);
    EXPECT_TRUE(t.hour >= 0 && t.hour <= 23);
    EXPECT_TRUE(t.millisecond >= 0 && t.millisecond <= 999);
}

}  // namespace
