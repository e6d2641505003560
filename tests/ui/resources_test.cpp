#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "res/resource.h"

namespace {

HINSTANCE module() {
    return GetModuleHandleW(nullptr);
}

std::string resourceBytes(const wchar_t* type, int id) {
    HRSRC found = FindResourceW(module(), MAKEINTRESOURCEW(id), type);
    if (!found)
        return std::string();
    const auto* data = static_cast<const char*>(LockResource(LoadResource(module(), found)));
    return std::string(data, SizeofResource(module(), found));
}

}  // namespace

TEST(resources, IconsMenuAcceleratorsAndClassName) {
    for (int icon : {IDI_ZELTO, IDI_SMALL})
        EXPECT_NE(nullptr, LoadImageW(module(), MAKEINTRESOURCEW(icon), IMAGE_ICON, 0, 0, 0));

    // Four plain commands on the menu bar; their popups are built at run time.
    HMENU menu = LoadMenuW(module(), MAKEINTRESOURCEW(IDC_ZELTO));
    ASSERT_NE(nullptr, menu);
    ASSERT_EQ(4, GetMenuItemCount(menu));
    const std::pair<UINT, std::wstring> items[] = {
        {32777, L"<File>"}, {32782, L"<Settings>"}, {32780, L"<Help>"}, {32779, L"<Language>"}};
    for (int i = 0; i < 4; ++i) {
        wchar_t text[64] = {};
        GetMenuStringW(menu, i, text, 64, MF_BYPOSITION);
        EXPECT_EQ(items[i].first, GetMenuItemID(menu, i));
        EXPECT_EQ(items[i].second, text);
    }
    DestroyMenu(menu);

    // Alt+? and Alt+/ open About.
    ACCEL entries[4] = {};
    ASSERT_EQ(2, CopyAcceleratorTableW(LoadAcceleratorsW(module(), MAKEINTRESOURCEW(IDC_ZELTO)),
                                       entries, 4));
    std::set<WORD> keys;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(105, entries[i].cmd);
        EXPECT_EQ(FALT, entries[i].fVirt & ~FNOINVERT);
        keys.insert(entries[i].key);
    }
    EXPECT_EQ((std::set<WORD>{'?', '/'}), keys);

    wchar_t text[64] = {};
    LoadStringW(module(), IDS_WINDOW_CLASS, text, 64);
    EXPECT_EQ(std::wstring(L"<ZeltoWin32>"), text);
}

TEST(resources, VersionBlockAndManifest) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(path, &ignored));
    ASSERT_TRUE(GetFileVersionInfoW(path, 0, DWORD(block.size()), block.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ((std::vector<DWORD>{0x20002, 0x10000, 0x20002, 0x10000}),
              (std::vector<DWORD>{fixed->dwFileVersionMS, fixed->dwFileVersionLS,
                                  fixed->dwProductVersionMS, fixed->dwProductVersionLS}));
    wchar_t* text = nullptr;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\040904b0\\ProductVersion",
                               reinterpret_cast<void**>(&text), &length));
    EXPECT_EQ(std::wstring(L"2.2.1"), text);

    // Common controls 6, and Vista, 7, 8, 8.1 and 10 as supported systems.
    const std::string manifest = resourceBytes(RT_MANIFEST, 1);
    for (const char* part :
         {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"",
          "e2011457-1546-43c5-a5fe-008deee3d3f0", "35138b9a-5d96-4fbd-8e2d-a2440225f93a",
          "4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38", "1f676c76-80e1-4239-95bb-83d0f6d0da78",
          "8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a"}) {
        EXPECT_NE(std::string::npos, manifest.find(part)) << part;
    }
}
