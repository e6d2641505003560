#include <gtest/gtest.h>

#include <string>

#include "ui/childWindow.h"
#include "ui/controlComboBox.h"
#include "ui/controlEdit.h"
#include "ui/controlList.h"
#include "ui/controls.h"
#include "ui/hostWindow.h"
#include "ui/mainFont.h"
#include "ui/textExtent.h"
#include "ui/windowText.h"

using dunmar::dm_string;
using ztest::HostWindow;

namespace {

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

void addItems(HWND window, UINT message, std::initializer_list<const wchar_t*> items) {
    for (const wchar_t* item : items)
        SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(item));
}

}  // namespace

TEST(control, SetFontNeedsWindowAndFont) {
    HostWindow host;
    dunmar::mainFont font;
    ASSERT_TRUE(font.create());
    dunmar::controlEdit edit;
    EXPECT_FALSE(edit.setFont(font.handle()));  // no window yet
    edit.attach(host.child(L"EDIT", WS_BORDER, 7), 7);
    EXPECT_EQ(7u, edit.id());
    EXPECT_FALSE(edit.setFont(nullptr));
    EXPECT_EQ(nullptr, fontOf(edit.handle()));
    EXPECT_TRUE(edit.setFont(font.handle()));
    EXPECT_EQ(font.handle(), fontOf(edit.handle()));
}

TEST(controls, GiveOneFontToEveryListedControl) {
    HostWindow host;
    dunmar::mainFont font;
    ASSERT_TRUE(font.create());
    dunmar::controls all;
    EXPECT_TRUE(all.setFont(font.handle()));  // empty
    dunmar::controlEdit first;
    dunmar::controlList second;
    dunmar::controlEdit notCreated;
    ASSERT_TRUE(dunmar::createChild(nullptr, host.handle(), all, first, L"EDIT", dm_string(L"x"),
                                    WS_CHILD, 0, 11));
    ASSERT_TRUE(dunmar::createChild(nullptr, host.handle(), all, second, L"LISTBOX", dm_string(),
                                    WS_CHILD, 0, 12));
    all.add(&notCreated);
    all.add(nullptr);
    ASSERT_EQ(4u, all.count());
    EXPECT_EQ(&first, all.at(0));
    EXPECT_EQ(12, GetDlgCtrlID(second.handle()));
    EXPECT_EQ(L"x", dunmar::windowText(first.handle()).str());

    EXPECT_FALSE(all.setFont(nullptr));
    EXPECT_EQ(nullptr, fontOf(first.handle()));
    EXPECT_TRUE(all.setFont(font.handle()));
    EXPECT_EQ(font.handle(), fontOf(first.handle()));
    EXPECT_EQ(font.handle(), fontOf(second.handle()));
}

TEST(controlComboBox, ItemsBySelectionIndexAndText) {
    HostWindow host;
    dunmar::controlComboBox combo;
    EXPECT_TRUE(combo.itemText(0).empty());
    EXPECT_FALSE(combo.selectIndex(0));
    combo.attach(host.child(L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS, 5), 5);
    EXPECT_FALSE(combo.selectText(dm_string(L"")));  // empty box
    addItems(combo.handle(), CB_ADDSTRING, {L"English", L"Deutsch", L"Deutsch"});

    EXPECT_EQ(L"Deutsch", combo.itemText(1).str());
    EXPECT_TRUE(combo.itemText(3).empty());
    EXPECT_TRUE(combo.itemText(-1).empty());

    EXPECT_FALSE(combo.selectIndex(3));  // equal to the count
    EXPECT_FALSE(combo.selectIndex(-1));
    EXPECT_TRUE(combo.selectIndex(2));
    EXPECT_EQ(2, SendMessageW(combo.handle(), CB_GETCURSEL, 0, 0));

    EXPECT_FALSE(combo.selectText(dm_string(L"deutsch")));  // case counts
    EXPECT_EQ(2, SendMessageW(combo.handle(), CB_GETCURSEL, 0, 0));
    EXPECT_TRUE(combo.selectText(dm_string(L"Deutsch")));  // the first of equal items
    EXPECT_EQ(1, SendMessageW(combo.handle(), CB_GETCURSEL, 0, 0));
}

TEST(controlList, SelectIndexWithinTheItems) {
    HostWindow host;
    dunmar::controlList list;
    EXPECT_FALSE(list.selectIndex(0));
    list.attach(host.child(L"LISTBOX", LBS_HASSTRINGS, 6), 6);
    EXPECT_FALSE(list.selectIndex(0));  // no items
    addItems(list.handle(), LB_ADDSTRING, {L"a", L"b"});
    EXPECT_FALSE(list.selectIndex(2));
    EXPECT_TRUE(list.selectIndex(1));
    EXPECT_EQ(1, SendMessageW(list.handle(), LB_GETCURSEL, 0, 0));
}

TEST(windowText, ReadsAndWritesWholeTexts) {
    HostWindow host;
    HWND edit = host.child(L"EDIT", ES_AUTOHSCROLL, 8);
    EXPECT_TRUE(dunmar::windowText(nullptr).empty());
    EXPECT_TRUE(dunmar::windowText(edit).empty());
    const std::wstring longText(5000, L'\x00E4');
    dunmar::setWindowText(edit, dm_string(longText.c_str()));
    EXPECT_EQ(longText, dunmar::windowText(edit).str());
    dunmar::setWindowText(edit, dm_string());
    EXPECT_EQ(0, GetWindowTextLengthW(edit));
    dunmar::setWindowText(nullptr, dm_string(L"ignored"));
}

TEST(textExtent, MeasuresInTheWindowsFont) {
    HostWindow host;
    HWND label = host.child(L"STATIC", 0, 9);
    EXPECT_EQ(0, dunmar::textExtent(nullptr, dm_string(L"abc")).cx);
    dunmar::mainFont font;
    ASSERT_TRUE(font.create());
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(font.handle()), 0);
    const SIZE one = dunmar::textExtent(label, dm_string(L"WWWW"));
    const SIZE two = dunmar::textExtent(label, dm_string(L"WWWWWWWW"));
    EXPECT_GE(one.cy, 15);  // height 18 cells
    EXPECT_LE(one.cy, 24);
    EXPECT_EQ(2 * one.cx, two.cx);
}
