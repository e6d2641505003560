#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "core/dm_guid.h"
#include "core/dm_system.h"

using namespace dunmar;
namespace fs = std::filesystem;

namespace {

dm_string wide(const fs::path& p) {
    const std::u16string units = p.u16string();
    return dm_string(dm_wstring(units.begin(), units.end()));
}

void put_bytes(const fs::path& p, const std::string& bytes) {
    std::ofstream out(p, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// A fresh folder under the system's temporary folder, removed afterwards.
class DmSystemFiles : public ::testing::Test {
  protected:
    void SetUp() override {
        dm_string guid;
        ASSERT_TRUE(dm_new_guid_text(guid));
        dir_ = fs::temp_directory_path() / ("zelto-core-" + guid.to_utf8().str());
        ASSERT_TRUE(fs::create_directories(dir_));
    }
    void TearDown() override {
        std::error_code ignored;
        fs::permissions(dir_ / "locked", fs::perms::owner_all, ignored);
        fs::remove_all(dir_, ignored);
    }
    fs::path dir_;
};

}  // namespace

TEST_F(DmSystemFiles, WriteThenReadRoundTripsUnderAWideName) {
    // Name outside Latin-1 and beyond the BMP: the path must travel as wide text.
    const fs::path file = dir_ / fs::path(u"k\u00e9y\u20ac\U0001F600.xml");
    const dm_utf8_str text("<Zelto>\xC3\xA9\xFF\r\n</Zelto>");
    ASSERT_TRUE(dm_system::write_file(wide(file), text));
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(fs::file_size(file), text.length());

    dm_utf8_str back;
    ASSERT_TRUE(dm_system::read_file(wide(file), back));
    EXPECT_TRUE(back.equals(text));
}

TEST_F(DmSystemFiles, WritingEmptyTextCreatesOrEmptiesTheFile) {
    const fs::path fresh = dir_ / "fresh.xml";
    EXPECT_TRUE(dm_system::write_file(wide(fresh), dm_utf8_str()));
    ASSERT_TRUE(fs::exists(fresh));
    EXPECT_EQ(fs::file_size(fresh), 0u);

    const fs::path full = dir_ / "full.xml";
    put_bytes(full, "old content");
    EXPECT_TRUE(dm_system::write_file(wide(full), dm_utf8_str("")));
    EXPECT_EQ(fs::file_size(full), 0u);
}

TEST_F(DmSystemFiles, WriteFailsWhereNoFileCanBeMade) {
    const dm_utf8_str text("x");
    EXPECT_FALSE(dm_system::write_file(dm_string(), text));
    EXPECT_FALSE(dm_system::write_file(wide(dir_ / "missing" / "f.xml"), text));
    EXPECT_FALSE(dm_system::write_file(wide(dir_), text));
}

TEST_F(DmSystemFiles, ReadEmptiesTheOutputAndFailsWithoutAFile) {
    dm_utf8_str out("stale");
    EXPECT_FALSE(dm_system::read_file(wide(dir_ / "missing.xml"), out));
    EXPECT_TRUE(out.empty());
    out = dm_utf8_str("stale");
    EXPECT_FALSE(dm_system::read_file(dm_string(), out));
    EXPECT_TRUE(out.empty());
    out = dm_utf8_str("stale");
    EXPECT_FALSE(dm_system::read_file(wide(dir_), out));
    EXPECT_TRUE(out.empty());
}

TEST_F(DmSystemFiles, ReadOfAnEmptyFileSucceedsWithEmptyText) {
    const fs::path file = dir_ / "empty.xml";
    put_bytes(file, "");
    dm_utf8_str out("stale");
    EXPECT_TRUE(dm_system::read_file(wide(file), out));
    EXPECT_TRUE(out.empty());
}

TEST_F(DmSystemFiles, ReadStopsAtTheFirstZeroByte) {
    const fs::path file = dir_ / "zero.bin";
    put_bytes(file, std::string("ab\0cd", 5));
    dm_utf8_str out;
    EXPECT_TRUE(dm_system::read_file(wide(file), out));
    EXPECT_EQ(out.str(), "ab");
}

TEST_F(DmSystemFiles, FileExistsForFilesAndOrdinaryDirectories) {
    const fs::path file = dir_ / "there.xml";
    put_bytes(file, "x");
    EXPECT_TRUE(dm_system::file_exists(wide(file)));
    EXPECT_FALSE(dm_system::file_exists(wide(dir_ / "missing.xml")));
    EXPECT_FALSE(dm_system::file_exists(dm_string()));
    // A directory's mode carries permission bits besides the directory flag.
    EXPECT_TRUE(dm_system::file_exists(wide(dir_)));
}

TEST_F(DmSystemFiles, DirectoryWithoutPermissionBitsDoesNotExist) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows directories always report permission bits";
#else
    const fs::path locked = dir_ / "locked";
    ASSERT_TRUE(fs::create_directory(locked));
    fs::permissions(locked, fs::perms::none);
    EXPECT_FALSE(dm_system::file_exists(wide(locked)));
#endif
}

TEST(DmSystem, ExePathAndDirNameTheRunningProgram) {
    dm_string exe;
    ASSERT_TRUE(dm_system::get_this_exe_path(exe));
    EXPECT_TRUE(dm_system::file_exists(exe));
    const std::string exe_utf8 = exe.to_utf8().str();
    EXPECT_NE(exe_utf8.find("core_tests"), std::string::npos) << exe_utf8;

    dm_string dir;
    ASSERT_TRUE(dm_system::get_this_exe_dir(dir));
    ASSERT_GT(dir.length(), 0u);
    ASSERT_LT(dir.length(), exe.length());
    EXPECT_TRUE(dir.equals(exe.substring(0, static_cast<long>(dir.length()))));
    const dm_wchar last = dir.c_str()[dir.length() - 1];
    EXPECT_TRUE(last == DM_W('\\') || last == DM_W('/'));
    // Nothing but the file name follows the folder.
    const dm_string name = exe.substring(static_cast<long>(dir.length()), 5200);
    EXPECT_EQ(name.find_first(DM_W('\\')), -1);
    EXPECT_EQ(name.find_first(DM_W('/')), -1);
}

TEST(DmSystem, DirOfPathCutsAfterTheLaterSeparator) {
    struct Case {
        const dm_wchar* path;
        const dm_wchar* dir;
    };
    const Case cases[] = {
        {DM_W("C:/Program Files\\Zelto\\Zelto.exe"), DM_W("C:/Program Files\\Zelto\\")},
        {DM_W("C:\\tools/bin\\Zelto.exe"), DM_W("C:\\tools/bin\\")},
        {DM_W("C:\\tools\\bin/Zelto.exe"), DM_W("C:\\tools\\bin/")},
        {DM_W("/usr/bin/zelto"), DM_W("/usr/bin/")},
        {DM_W("\\x"), DM_W("\\")},
        {DM_W("C:\\dir\\"), DM_W("C:\\dir\\")},
    };
    for (const Case& c : cases) {
        dm_string dir(DM_W("stale"));
        EXPECT_TRUE(dm_system::dir_of_path(dm_string(c.path), dir));
        EXPECT_EQ(dir.str(), c.dir);
    }
    dm_string dir(DM_W("stale"));
    EXPECT_FALSE(dm_system::dir_of_path(dm_string(DM_W("Zelto.exe")), dir));
    EXPECT_TRUE(dir.empty());
    EXPECT_FALSE(dm_system::dir_of_path(dm_string(), dir));
}
