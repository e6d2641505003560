// Whole-file operations on wide paths, the program's own path, and new GUIDs.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
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

// Open handles of this process where the system lists them; -1 elsewhere.
long open_handles() {
    std::error_code ec;
    long n = 0;
    for (fs::directory_iterator it("/proc/self/fd", ec), end; !ec && it != end; it.increment(ec))
        ++n;
    return ec ? -1 : n;
}

// A fresh folder under the system's temporary folder, named by a new GUID.
class DmSystemFiles : public ::testing::Test {
  protected:
    void SetUp() override {
        dm_string guid;
        ASSERT_TRUE(dm_new_guid_text(guid));
        dir_ = fs::temp_directory_path() / ("zelto-core-" + guid.to_utf8().str());
        ASSERT_TRUE(fs::create_directories(dir_ / "locked"));
    }
    void TearDown() override {
        std::error_code ignored;
        fs::permissions(dir_ / "locked", fs::perms::owner_all, ignored);
        fs::remove_all(dir_, ignored);
    }
    fs::path dir_;
};

}  // namespace

// Name outside Latin-1 and beyond the BMP: the path travels as wide text. Each text replaces
// the longer one before; an empty text empties the file; reading stops at the first zero byte.
// No handle stays open.
TEST_F(DmSystemFiles, WrittenTextReadsBack) {
    const long handles = open_handles();
    const dm_string file = wide(dir_ / fs::path(u"k\u00e9y\u20ac\U0001F600.xml"));
    for (const std::string& text : {std::string("<Zelto>\xC3\xA9\xFF\r\n</Zelto>"),
                                    std::string("ab\0cd", 5), std::string("x"), std::string()}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(dm_system::write_file(file, dm_utf8_str(text.data(), text.size())));
        dm_utf8_str back("stale");
        EXPECT_TRUE(dm_system::read_file(file, back));
        EXPECT_EQ(back.str(), text.substr(0, text.find('\0')));
        unsigned long long size = 99;
        EXPECT_TRUE(dm_system::file_size(file, size));
        EXPECT_EQ(size, text.size());
        EXPECT_TRUE(dm_system::file_exists(file));
        EXPECT_TRUE(dm_system::file_readable(file));
    }
    EXPECT_EQ(handles, open_handles());
}

// No path, a missing folder, a folder: nothing to read or write. A folder counts as existing
// unless its mode is the bare directory flag, without permission bits.
TEST_F(DmSystemFiles, NoFileWhereNoneIs) {
#ifndef _WIN32
    fs::permissions(dir_ / "locked", fs::perms::none);
#endif
    const struct {
        dm_string path;
        bool exists;
    } cases[] = {{dm_string(), false},
                 {wide(dir_ / "missing" / "f.xml"), false},
                 {wide(dir_), true},
#ifndef _WIN32
                 {wide(dir_ / "locked"), false}
#endif
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.to_utf8().str());
        EXPECT_FALSE(dm_system::write_file(c.path, dm_utf8_str("x")));
        dm_utf8_str out("stale");
        EXPECT_FALSE(dm_system::read_file(c.path, out));
        EXPECT_TRUE(out.empty());
        unsigned long long size = 99;
        EXPECT_FALSE(dm_system::file_size(c.path, size));
        EXPECT_EQ(size, 0u);
        EXPECT_FALSE(dm_system::file_readable(c.path));
        EXPECT_EQ(dm_system::file_exists(c.path), c.exists);
    }
}

TEST(DmSystem, ProgramPathAndFolder) {
    dm_string exe, dir, expected;
    ASSERT_TRUE(dm_system::get_this_exe_path(exe));
    EXPECT_TRUE(dm_system::file_exists(exe));
    EXPECT_NE(exe.to_utf8().str().find("core_tests"), std::string::npos);
    ASSERT_TRUE(dm_system::get_this_exe_dir(dir));
    ASSERT_TRUE(dm_system::dir_of_path(exe, expected));
    EXPECT_TRUE(dir.equals(expected));

    // The later of the two separators wins.
    const std::pair<const dm_wchar*, const dm_wchar*> cases[] = {
        {DM_W("C:\\tools/bin\\Zelto.exe"), DM_W("C:\\tools/bin\\")},
        {DM_W("C:\\tools\\bin/Zelto.exe"), DM_W("C:\\tools\\bin/")},
        {DM_W("\\x"), DM_W("\\")},
        {DM_W("C:\\dir\\"), DM_W("C:\\dir\\")},
        {DM_W("Zelto.exe"), DM_W("")},
        {DM_W(""), DM_W("")},
    };
    for (const auto& c : cases) {
        dm_string out(DM_W("stale"));
        EXPECT_EQ(dm_system::dir_of_path(dm_string(c.first), out), *c.second != 0);
        EXPECT_EQ(out.str(), c.second);
    }
}

TEST(DmGuid, NewTextHasTheFixedLayoutAndIsNewEachTime) {
    dm_string text(DM_W("stale")), second;
    ASSERT_TRUE(dm_new_guid_text(text));
    ASSERT_TRUE(dm_new_guid_text(second));
    EXPECT_FALSE(text.equals(second));
    EXPECT_TRUE(std::regex_match(
        text.to_utf8().str(),
        std::regex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}")));
}
