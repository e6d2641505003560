#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "model/zlVersion.h"
#include "res/resource.h"

namespace {

HINSTANCE module() {
    return GetModuleHandleW(nullptr);
}

std::string resourceBytes(const wchar_t* type, int id) {
    HRSRC found = FindResourceW(module(), MAKEINTRESOURCEW(id), type);
    if (!found)
        return std::string();
    HGLOBAL loaded = LoadResource(module(), found);
    const auto* data = static_cast<const char*>(LockResource(loaded));
    return std::string(data, SizeofResource(module(), found));
}

// The square sizes an icon group offers (0 in the directory stands for 256).
std::set<int> iconSizes(int id) {
    const std::string group = resourceBytes(RT_GROUP_ICON, id);
    std::set<int> sizes;
    if (group.size() < 6)
        return sizes;
    const int count = static_cast<unsigned char>(group[4]) | (group[5] << 8);
    for (int i = 0; i < count && 6 + size_t(i + 1) * 14 <= group.size(); ++i) {
        const int width = static_cast<unsigned char>(group[6 + i * 14]);
        sizes.insert(width == 0 ? 256 : width);
    }
    return sizes;
}

std::wstring menuText(HMENU menu, int position) {
    wchar_t text[64] = {};
    GetMenuStringW(menu, position, text, 64, MF_BYPOSITION);
    return text;
}

}  // namespace

TEST(resources, IconsInSeveralSizes) {
    EXPECT_EQ((std::set<int>{16, 32, 48, 256}), iconSizes(IDI_ZELTO));
    EXPECT_EQ((std::set<int>{16, 32}), iconSizes(IDI_SMALL));
    HICON big = static_cast<HICON>(
        LoadImageW(module(), MAKEINTRESOURCEW(IDI_ZELTO), IMAGE_ICON, 48, 48, 0));
    EXPECT_NE(nullptr, big);
    DestroyIcon(big);
}

TEST(resources, MenuBarHoldsFourPlainCommands) {
    HMENU menu = LoadMenuW(module(), MAKEINTRESOURCEW(IDC_ZELTO));
    ASSERT_NE(nullptr, menu);
    ASSERT_EQ(4, GetMenuItemCount(menu));
    const int ids[] = {32777, 32782, 32780, 32779};
    const wchar_t* texts[] = {L"<File>", L"<Settings>", L"<Help>", L"<Language>"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(static_cast<UINT>(ids[i]), GetMenuItemID(menu, i));
        EXPECT_EQ(nullptr, GetSubMenu(menu, i));
        EXPECT_EQ(texts[i], menuText(menu, i));
    }
    DestroyMenu(menu);
}

TEST(resources, AltQuestionMarkAndAltSlashOpenAbout) {
    HACCEL table = LoadAcceleratorsW(module(), MAKEINTRESOURCEW(IDC_ZELTO));
    ASSERT_NE(nullptr, table);
    ACCEL entries[4] = {};
    ASSERT_EQ(2, CopyAcceleratorTableW(table, entries, 4));
    std::set<WORD> keys;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(105, entries[i].cmd);
        EXPECT_EQ(FALT, entries[i].fVirt & ~FNOINVERT);
        keys.insert(entries[i].key);
    }
    EXPECT_EQ((std::set<WORD>{'?', '/'}), keys);
}

TEST(resources, WindowClassNameString) {
    wchar_t text[64] = {};
    ASSERT_GT(LoadStringW(module(), IDS_WINDOW_CLASS, text, 64), 0);
    EXPECT_EQ(std::wstring(L"<ZeltoWin32>"), text);
}

TEST(resources, DialogTemplatesArePresent) {
    for (int id : {IDD_BASE_SIZEABLE, IDD_SET_MASTER_PW, IDD_SETTINGS})
        EXPECT_FALSE(resourceBytes(RT_DIALOG, id).empty()) << id;
}

TEST(resources, VersionBlockMatchesTheProgramVersion) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(path, &ignored);
    ASSERT_GT(size, 0u);
    std::vector<char> block(size);
    ASSERT_TRUE(GetFileVersionInfoW(path, 0, size, block.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(static_cast<DWORD>((Zelto::zlVersionMajor << 16) | Zelto::zlVersionMinor),
              fixed->dwFileVersionMS);
    EXPECT_EQ(static_cast<DWORD>(Zelto::zlVersionPatch << 16), fixed->dwFileVersionLS);
    EXPECT_EQ(fixed->dwFileVersionMS, fixed->dwProductVersionMS);
    wchar_t* text = nullptr;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\040904b0\\ProductVersion",
                               reinterpret_cast<void**>(&text), &length));
    EXPECT_EQ(std::wstring(L"2.2.1"), text);
}

TEST(resources, ManifestAsksForCommonControlsSix) {
    const std::string manifest = resourceBytes(RT_MANIFEST, 1);
    EXPECT_NE(std::string::npos, manifest.find("Microsoft.Windows.Common-Controls"));
    EXPECT_NE(std::string::npos, manifest.find("version=\"6.0.0.0\""));
    // Vista, 7, 8, 8.1 and 10.
    for (const char* os :
         {"e2011457-1546-43c5-a5fe-008deee3d3f0", "35138b9a-5d96-4fbd-8e2d-a2440225f93a",
          "4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38", "1f676c76-80e1-4239-95bb-83d0f6d0da78",
          "8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a"}) {
        EXPECT_NE(std::string::npos, manifest.find(os)) << os;
    }
}
