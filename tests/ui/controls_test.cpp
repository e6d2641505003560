// The edit wrapper and the link, on a hidden host; the combo box wrapper works in the
// log-in's language choice and the main window's filter.
#include <gtest/gtest.h>

#include <string>

#include "ui/childWindow.h"
#include "ui/controlEdit.h"
#include "ui/controlHyperLink.h"
#include "ui/controls.h"
#include "ui/mainFont.h"
#include "ui/windowProps.h"

using dunmar::dm_string;

TEST(Controls, TextsWholeAndALinkUnderlinedWhileThePointerIsOverIt) {
    HWND host = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr,
                                nullptr, nullptr);
    dunmar::controls all;
    dunmar::controlEdit edit;
    dunmar::controlHyperLink link;
    ASSERT_TRUE(dunmar::createChild(nullptr, host, all, edit, L"EDIT", dm_string(L"x"),
                                    WS_CHILD | ES_AUTOHSCROLL, 0, 11));
    EXPECT_EQ(L"x", edit.text().str());
    for (const std::wstring& text : {std::wstring(5000, L'\x00E4'), std::wstring()}) {
        edit.setText(dm_string(text.c_str()));
        EXPECT_EQ(text, edit.text().str());
    }

    ASSERT_TRUE(link.create(nullptr, host, dm_string(L"https://zelto.example/")));
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
