#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/childWindow.h"
#include "ui/controlComboBox.h"
#include "ui/controlEdit.h"
#include "ui/controlHyperLink.h"
#include "ui/controlList.h"
#include "ui/controls.h"
#include "ui/hostWindow.h"
#include "ui/listTypeAhead.h"
#include "ui/mainFont.h"
#include "ui/textExtent.h"
#include "ui/windowProps.h"

using dunmar::dm_string;
using ztest::HostWindow;

namespace {

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

std::vector<WPARAM> hostCommands;
LRESULT CALLBACK recordCommands(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        hostCommands.push_back(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

// A host whose commands are recorded, and the shared font.
class Controls : public ::testing::Test {
  protected:
    void SetUp() override {
        hostCommands.clear();
        SetWindowLongPtrW(host.handle(), GWLP_WNDPROC, LONG_PTR(&recordCommands));
        ASSERT_TRUE(font.create());
    }
    HostWindow host;
    dunmar::mainFont font;
};

}  // namespace

TEST_F(Controls, FontsGoOnlyToCreatedControlsWhichAreEnabledAndReadWhole) {
    dunmar::controls all;
    EXPECT_TRUE(all.setFont(font.handle()));  // empty
    dunmar::controlEdit edit;
    dunmar::controlList list;
    dunmar::controlEdit notCreated;
    EXPECT_FALSE(edit.setFont(font.handle()));  // no window yet
    ASSERT_TRUE(dunmar::createChild(nullptr, host.handle(), all, edit, L"EDIT", dm_string(L"x"),
                                    WS_CHILD | ES_AUTOHSCROLL, 0, 11));
    ASSERT_TRUE(dunmar::createChild(nullptr, host.handle(), all, list, L"LISTBOX", dm_string(),
                                    WS_CHILD, 0, 12));
    all.add(&notCreated);
    all.add(nullptr);
    EXPECT_EQ(12, GetDlgCtrlID(list.handle()));
    EXPECT_FALSE(all.setFont(nullptr));
    EXPECT_FALSE(edit.setFont(nullptr));
    EXPECT_EQ(nullptr, fontOf(edit.handle()));
    EXPECT_TRUE(all.setFont(font.handle()));
    EXPECT_EQ(font.handle(), fontOf(edit.handle()));
    EXPECT_EQ(font.handle(), fontOf(list.handle()));

    edit.enable(false);
    EXPECT_FALSE(IsWindowEnabled(edit.handle()));
    edit.enable(true);
    EXPECT_TRUE(IsWindowEnabled(edit.handle()));
    EXPECT_EQ(L"x", edit.text().str());
    const std::wstring longText(5000, L'\x00E4');
    edit.setText(dm_string(longText.c_str()));
    EXPECT_EQ(longText, edit.text().str());
    edit.setText(dm_string());
    EXPECT_TRUE(edit.text().empty());
    EXPECT_EQ(0, dunmar::textExtent(nullptr, dm_string(L"abc")).cx);
    const SIZE one = dunmar::textExtent(edit.handle(), dm_string(L"WWWW"));
    EXPECT_EQ(2 * one.cx, dunmar::textExtent(edit.handle(), dm_string(L"WWWWWWWW")).cx);
    EXPECT_GE(one.cy, 15);  // Tahoma of height 18 cells
    EXPECT_LE(one.cy, 24);
}

TEST_F(Controls, ListAndComboSelectOnlyExistingItems) {
    dunmar::controlList list;
    dunmar::controlComboBox combo;
    EXPECT_FALSE(list.selectIndex(0));  // no window
    EXPECT_TRUE(combo.itemText(0).empty());
    list.attach(host.child(L"LISTBOX", LBS_HASSTRINGS, 6), 6);
    combo.attach(host.child(L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS, 5), 5);
    EXPECT_FALSE(combo.selectText(dm_string(L"")));  // empty box
    for (const wchar_t* item : {L"English", L"Deutsch", L"Deutsch"}) {
        SendMessageW(list.handle(), LB_ADDSTRING, 0, LPARAM(item));
        SendMessageW(combo.handle(), CB_ADDSTRING, 0, LPARAM(item));
    }
    for (int index : {-1, 3, 2}) {  // 3 is the count
        EXPECT_EQ(index == 2, list.selectIndex(index)) << index;
        EXPECT_EQ(index == 2, combo.selectIndex(index)) << index;
        EXPECT_EQ(index == 2 ? L"Deutsch" : L"", combo.itemText(index).str()) << index;
    }
    EXPECT_EQ(2, SendMessageW(list.handle(), LB_GETCURSEL, 0, 0));
    EXPECT_FALSE(combo.selectText(dm_string(L"deutsch")));  // case counts
    EXPECT_TRUE(combo.selectText(dm_string(L"Deutsch")));   // the first of equal items
    EXPECT_EQ(1, SendMessageW(combo.handle(), CB_GETCURSEL, 0, 0));
}

TEST_F(Controls, HyperLinkUnderlinedWhileThePointerIsOver) {
    dunmar::controlHyperLink link;
    ASSERT_TRUE(link.create(nullptr, host.handle(), dm_string(L"https://zelto.example/")));
    link.place(10, 10, 200, 24);
    HWND h = link.handle();
    auto underline = [h] {
        return static_cast<HFONT>(GetPropW(h, dunmar::kUnderlineFontProperty));
    };
    EXPECT_EQ(1010, GetDlgCtrlID(h));
    EXPECT_TRUE(GetWindowLongPtrW(h, GWL_STYLE) & SS_NOTIFY);
    EXPECT_EQ(nullptr, underline());  // the new static has no font to underline
    EXPECT_FALSE(link.setFont(nullptr));
    // A second link on the same window does not stack the parent procedure.
    dunmar::controlHyperLink second;
    ASSERT_TRUE(second.create(nullptr, host.handle(), dm_string()));
    EXPECT_EQ(HANDLE(&recordCommands), GetPropW(host.handle(), dunmar::kOriginalProcProperty));

    ASSERT_TRUE(link.setFont(font.handle()));
    HFONT first = underline();
    LOGFONTW normal = {};
    LOGFONTW underlined = {};
    GetObjectW(font.handle(), sizeof(normal), &normal);
    ASSERT_TRUE(GetObjectW(first, sizeof(underlined), &underlined));
    EXPECT_EQ(1, underlined.lfUnderline);
    EXPECT_EQ(normal.lfHeight, underlined.lfHeight);
    EXPECT_EQ(std::wstring(normal.lfFaceName), underlined.lfFaceName);

    // Pointer in, still in, out: underlined exactly while it is over the link.
    const std::pair<LPARAM, HFONT> moves[] = {
        {MAKELPARAM(5, 5), first}, {MAKELPARAM(20, 6), first}, {MAKELPARAM(-3, 5), font.handle()}};
    for (const auto& m : moves) {
        SendMessageW(h, WM_MOUSEMOVE, 0, m.first);
        EXPECT_EQ(m.second, fontOf(h));
        EXPECT_EQ(m.second == first, GetCapture() == h);
    }
    EXPECT_EQ(TRUE, SendMessageW(h, WM_SETCURSOR, WPARAM(h), HTCLIENT));
    EXPECT_EQ(LoadCursorW(nullptr, IDC_HAND), GetCursor());

    // Another font replaces the underlined one; destroying the link frees it.
    dunmar::mainFont other;
    ASSERT_TRUE(other.create() && link.setFont(other.handle()));
    EXPECT_EQ(0, GetObjectW(first, sizeof(underlined), &underlined));
    HFONT replaced = underline();
    DestroyWindow(h);
    EXPECT_EQ(0, GetObjectW(replaced, sizeof(underlined), &underlined));
    EXPECT_NE(0, GetObjectW(other.handle(), sizeof(underlined), &underlined));
}

TEST_F(Controls, TypingInTheKeyListSelectsAndTellsTheParent) {
    dunmar::controlList list;
    list.attach(host.child(L"LISTBOX", LBS_NOTIFY | LBS_HASSTRINGS, 121), 121);
    EXPECT_FALSE(list.typeAhead(L'a'));  // empty
    for (const wchar_t* item : {L"", L"   ", L"alpha", L"  Mail", L"zulu"})
        SendMessageW(list.handle(), LB_ADDSTRING, 0, LPARAM(item));
    ASSERT_TRUE(list.installTypeAhead());
    // Typed, then the selection: the first item at or after the typed character, whatever
    // its case, past leading blanks and empty items. Control keys and a character after all
    // items keep the selection.
    const std::pair<wchar_t, int> typed[] = {{L'm', 3},  {L'\r', 3}, {L'\x1b', 3}, {L'\t', 3},
                                             {L'\b', 3}, {L'\n', 3}, {L'N', 4},    {L'~', 4},
                                             {L'z', 4},  {L' ', 2},  {L'M', 3}};
    for (const auto& t : typed) {
        SendMessageW(list.handle(), WM_CHAR, t.first, 1);
        EXPECT_EQ(t.second, SendMessageW(list.handle(), LB_GETCURSEL, 0, 0)) << int(t.first);
    }
    // One notification for each change, none when the selection stays.
    const WPARAM changed = MAKEWPARAM(121, LBN_SELCHANGE);
    EXPECT_EQ(std::vector<WPARAM>(4, changed), hostCommands);
    EXPECT_FALSE(dunmar::listTypeAhead(nullptr, L'a'));
}
