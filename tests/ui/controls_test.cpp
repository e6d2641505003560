// The control wrappers and the link, on a hidden host.
#include <gtest/gtest.h>

#include <string>

#include "ui/childWindow.h"
#include "ui/controlComboBox.h"
#include "ui/controlEdit.h"
#include "ui/controlHyperLink.h"
#include "ui/controls.h"
#include "ui/mainFont.h"
#include "ui/windowProps.h"

using dunmar::dm_string;

TEST(Controls, TextsWholeItemsOnlyThereAndALinkUnderlinedWhileThePointerIsOverIt) {
    HWND host = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr,
                                nullptr, nullptr);
    dunmar::controls all;
    dunmar::controlEdit edit;
    dunmar::controlComboBox combo;
    dunmar::controlHyperLink link, second;
    ASSERT_TRUE(dunmar::createChild(nullptr, host, all, edit, L"EDIT", dm_string(L"x"),
                                    WS_CHILD | ES_AUTOHSCROLL, 0, 11));
    ASSERT_TRUE(dunmar::createChild(nullptr, host, all, combo, L"COMBOBOX", dm_string(),
                                    WS_CHILD | CBS_DROPDOWNLIST | CBS_HASSTRINGS, 0, 12));
    EXPECT_EQ(L"x", edit.text().str());
    for (const std::wstring& text : {std::wstring(5000, L'\x00E4'), std::wstring()}) {
        edit.setText(dm_string(text.c_str()));
        EXPECT_EQ(text, edit.text().str());
    }
    SendMessageW(combo.handle(), CB_ADDSTRING, 0, LPARAM(L"English"));
    SendMessageW(combo.handle(), CB_ADDSTRING, 0, LPARAM(L"Deutsch"));
    for (int index : {-1, 2, 1}) {  // 2 is the count
        EXPECT_EQ(index == 1, combo.selectIndex(index)) << index;
        EXPECT_EQ(index == 1 ? L"Deutsch" : L"", combo.itemText(index).str()) << index;
    }

    ASSERT_TRUE(link.create(nullptr, host, dm_string(L"https://zelto.example/")));
    const LONG_PTR hostProc = GetWindowLongPtrW(host, GWLP_WNDPROC);
    ASSERT_TRUE(second.create(nullptr, host, dm_string()));
    EXPECT_EQ(hostProc, GetWindowLongPtrW(host, GWLP_WNDPROC));  // not subclassed twice
    link.place(10, 10, 200, 24);
    HWND h = link.handle();
    dunmar::mainFont font;
    ASSERT_TRUE(font.create() && link.setFont(font.handle()));
    const auto underlined = HFONT(GetPropW(h, dunmar::kUnderlineFontProperty));
    LOGFONTW f = {};
    GetObjectW(underlined, sizeof(f), &f);
    EXPECT_EQ(L"Tahoma 18 1", std::wstring(f.lfFaceName) + L" " + std::to_wstring(f.lfHeight) +
                                  L" " + std::to_wstring(f.lfUnderline));
    // In, still in, out.
    const std::pair<LPARAM, HFONT> moves[] = {{MAKELPARAM(5, 5), underlined},
                                              {MAKELPARAM(20, 6), underlined},
                                              {MAKELPARAM(-3, 5), font.handle()}};
    for (const auto& m : moves) {
        SendMessageW(h, WM_MOUSEMOVE, 0, m.first);
        EXPECT_EQ(m.second, HFONT(SendMessageW(h, WM_GETFONT, 0, 0)));
        EXPECT_EQ(m.second == underlined, GetCapture() == h);
    }
    EXPECT_EQ(TRUE, SendMessageW(h, WM_SETCURSOR, WPARAM(h), HTCLIENT));
    EXPECT_EQ(LoadCursorW(nullptr, IDC_HAND), GetCursor());
    DestroyWindow(host);  // frees the underlined font
    EXPECT_EQ(0, GetObjectW(underlined, sizeof(f), &f));
}
