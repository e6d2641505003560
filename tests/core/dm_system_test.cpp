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
    const fs::path full = dir_ / "full.xml";
    put_bytes(full, "old content");
    for (const fs::path& file : {fresh, full}) {
        EXPECT_TRUE(dm_system::write_file(wide(file), dm_utf8_str())) << file;
        ASSERT_TRUE(fs::exists(file)) << file;
        EXPECT_EQ(fs::file_size(file), 0u) << file;
    }
}

TEST_F(DmSystemFiles, WriteAndReadFailWhereNoFileIs) {
    const dm_string bad[] = {dm_string(), wide(dir_ / "missing" / "f.xml"), wide(dir_)};
    for (const dm_string& path : bad) {
        const std::string name = path.to_utf8().str();
        EXPECT_FALSE(dm_system::write_file(path, dm_utf8_str("x"))) << name;
        dm_utf8_str out("stale");
        EXPECT_FALSE(dm_system::read_file(path, out)) << name;
        EXPECT_TRUE(out.empty()) << name;
    }
}

// Reading stops at the first zero byte; an empty file is empty text, not a failure.
TEST_F(DmSystemFiles, ReadStopsAtTheFirstZeroByte) {
    const std::pair<std::string, std::string> cases[] = {{"", ""},
                                                         {std::string("ab\0cd", 5), "ab"}};
    for (const auto& c : cases) {
        put_bytes(dir_ / "f.bin", c.first);
        dm_utf8_str out("stale");
        EXPECT_TRUE(dm_system::read_file(wide(dir_ / "f.bin"), out)) << c.second;
        EXPECT_EQ(out.str(), c.second);
    }
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
