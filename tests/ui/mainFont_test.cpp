#include "ui/mainFont.h"

#include <gtest/gtest.h>

#include <string>

#include "ui/messagePump.h"
#include "ui/hostWindow.h"

TEST(mainFont, IsTahomaOfHeightEighteen) {
    dunmar::mainFont font;
    EXPECT_EQ(nullptr, font.handle());
    ASSERT_TRUE(font.create());
    HFONT made = font.handle();
    EXPECT_TRUE(font.create());
    EXPECT_EQ(made, font.handle());  // made once

    LOGFONTW description = {};
    ASSERT_EQ(static_cast<int>(sizeof(description)),
              GetObjectW(made, sizeof(description), &description));
    EXPECT_EQ(std::wstring(L"Tahoma"), description.lfFaceName);
    EXPECT_EQ(18, description.lfHeight);
    EXPECT_EQ(0, description.lfWidth);
    EXPECT_EQ(400, description.lfWeight);
    EXPECT_FALSE(description.lfItalic || description.lfUnderline || description.lfStrikeOut);
    EXPECT_EQ(DEFAULT_CHARSET, description.lfCharSet);
    EXPECT_EQ(OUT_OUTLINE_PRECIS, description.lfOutPrecision);
    EXPECT_EQ(CLEARTYPE_QUALITY, description.lfQuality);
    EXPECT_EQ(VARIABLE_PITCH, description.lfPitchAndFamily);
}

namespace {

UINT seenMessage = 0;
LRESULT CALLBACK recordingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP + 1)
        seenMessage = message;
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

TEST(messagePump, HandlesTheWindowsWaitingMessages) {
    dunmar::pumpWindowMessages(nullptr);
    ztest::HostWindow host;
    SetWindowLongPtrW(host.handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordingProc));
    PostMessageW(host.handle(), WM_APP + 1, 0, 0);
    EXPECT_EQ(0u, seenMessage);
    dunmar::pumpWindowMessages(host.handle());
    EXPECT_EQ(static_cast<UINT>(WM_APP + 1), seenMessage);
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, host.handle(), 0, 0, PM_NOREMOVE));
}
