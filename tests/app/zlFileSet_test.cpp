// The files beside the program: their names, backups that never overwrite, and the file
// steps under them.
#include "app/zlFileSet.h"

#include <climits>

#include "app_test_util.h"

const zlLocalTime kTime{2018, 3, 9, 17, 5, 42, 815};

// Every name of a set, then why it is empty.
static std::string names(const zlFileSet& s) {
    return u8(s.folder) + "|" + u8(s.keyFile) + "|" + u8(s.backup) + "|" + u8(s.converter) + "|" +
           u8(s.workingCopy) + "|" + u8(s.detail);
}

TEST(zlFileSet, NamesAllFilesInOneFolder) {
    EXPECT_EQ(
        "F/|F/Zelto.xml|F/Zelto.backup.2018_03_09_17_05_42_0815.xml|F/ZeltoPre.exe|"
        "F/ZeltoPre.xml|",
        names(zlFileSet::in(w("F/"), kTime)));
    EXPECT_EQ("|||||dm_system::get_this_exe_path(..) failed",
              names(zlFileSet::in(dm_string(), kTime)));
    // Beside the running program: the test program's own folder, stamped now.
    const zlFileSet mine = zlFileSet::ofThisProgram();
    EXPECT_TRUE(mine.valid() && u8(mine.keyFile) == u8(mine.folder) + "Zelto.xml");
    // Whatever the clock says, a stamp stays within 63 characters.
    EXPECT_EQ(
        63u, zlTimeStamp({INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN}).length());
    const zlLocalTime now = zlNow();
    EXPECT_TRUE(now.year >= 2020 && now.month >= 1 && now.month <= 12 && now.millisecond <= 999);
}

TEST(zlFileSet, BackupNeverOverwrites) {
    TempDir dir;
    const zlFileSet set = zlFileSet::in(widePath(dir.path() / ""), kTime);
    writeBytes(dir / "Zelto.xml", "first");
    dm_string backup;
    ASSERT_EQ(1, zlMakeBackup(set.keyFile, set, backup));
    EXPECT_TRUE(backup.equals(set.backup));
    // A second backup within the same millisecond finds its name taken.
    writeBytes(dir / "Zelto.xml", "second");
    EXPECT_EQ(-19, zlMakeBackup(set.keyFile, set, backup));
    EXPECT_TRUE(backup.empty());
    EXPECT_EQ("first", readBytes(dir / "Zelto.backup.2018_03_09_17_05_42_0815.xml"));
    EXPECT_EQ(-18, zlMakeBackup(set.keyFile, zlFileSet::in(dm_string(), kTime), backup));
}
