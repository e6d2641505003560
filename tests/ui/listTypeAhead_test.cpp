#include "ui/listTypeAhead.h"

#include <gtest/gtest.h>

#include <vector>

#include "ui/controlList.h"
#include "ui/hostWindow.h"
#include "ui/windowProps.h"

using dunmar::dm_string;

namespace {

std::vector<dm_string> texts(std::initializer_list<const wchar_t*> items) {
    std::vector<dm_string> out;
    for (const wchar_t* item : items)
        out.emplace_back(item);
    return out;
}

std::vector<WPARAM> parentCommands;
LRESULT CALLBACK recordCommands(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        parentCommands.push_back(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

// A key list as the main window has it: notify, strings, type-ahead installed.
class TypedList : public ::testing::Test {
  protected:
    void SetUp() override {
        SetWindowLongPtrW(host.handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordCommands));
        list.attach(host.child(L"LISTBOX", WS_VSCROLL | LBS_NOTIFY | LBS_HASSTRINGS, 121), 121);
        for (const wchar_t* item : {L"alpha", L"  Mail", L"zulu"})
            SendMessageW(list.handle(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        ASSERT_TRUE(list.installTypeAhead());
        parentCommands.clear();
    }

    LRESULT typed(wchar_t c) {
        SendMessageW(list.handle(), WM_CHAR, c, 1);
        return SendMessageW(list.handle(), LB_GETCURSEL, 0, 0);
    }

    ztest::HostWindow host;
    dunmar::controlList list;
};

}  // namespace

TEST(typeAheadIndex, LandsOnTheFirstItemAtOrAfterTheTypedCharacter) {
    const auto items = texts({L"alpha", L"  Mail", L"zulu"});
    EXPECT_EQ(1, dunmar::typeAheadIndex(items, L'm'));
    EXPECT_EQ(1, dunmar::typeAheadIndex(items, L'M'));  // case does not count
    EXPECT_EQ(2, dunmar::typeAheadIndex(items, L'n'));  // no item starts with n
    EXPECT_EQ(0, dunmar::typeAheadIndex(items, L'a'));
    EXPECT_EQ(0, dunmar::typeAheadIndex(items, L' '));
    EXPECT_EQ(-1, dunmar::typeAheadIndex(items, L'~'));  // after every letter
    // Empty and all-blank texts are never landed on.
    EXPECT_EQ(2, dunmar::typeAheadIndex(texts({L"", L"   ", L"beta"}), L'a'));
    EXPECT_EQ(-1, dunmar::typeAheadIndex(texts({L"", L"  "}), L' '));
    EXPECT_EQ(-1, dunmar::typeAheadIndex({}, L'a'));
    // The list order decides, not the alphabet.
    EXPECT_EQ(0, dunmar::typeAheadIndex(texts({L"zebra", L"apple"}), L'b'));
}

TEST(typeAheadIndex, ControlCharactersDoNotTakePart) {
    for (WPARAM c : {0x08, 0x09, 0x0A, 0x0D, 0x1B})
        EXPECT_FALSE(dunmar::isTypeAheadCharacter(c)) << c;
    for (WPARAM c : {0x20, 0x61, 0x7E, 0xE4})
        EXPECT_TRUE(dunmar::isTypeAheadCharacter(c)) << c;
}

TEST_F(TypedList, TypedLettersSelectAsTheKeyListExpects) {
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(&dunmar::listTypeAheadProc),
              GetWindowLongPtrW(list.handle(), GWLP_WNDPROC));
    EXPECT_NE(nullptr, GetPropW(list.handle(), dunmar::kOriginalProcProperty));
    EXPECT_EQ(1, typed(L'm'));
    EXPECT_EQ(2, typed(L'n'));
    EXPECT_EQ(1, typed(L'M'));
    EXPECT_EQ(1, typed(L'~'));  // nothing found: the selection stays
    EXPECT_EQ(0, typed(L' '));
}

TEST_F(TypedList, ControlKeysLeaveTheSelection) {
    ASSERT_TRUE(list.selectIndex(1));
    for (wchar_t c : {L'\r', L'\x1b', L'\t', L'\b', L'\n'})
        EXPECT_EQ(1, typed(c)) << static_cast<int>(c);
    EXPECT_TRUE(parentCommands.empty());
}

TEST_F(TypedList, ParentHearsOfAChangedSelection) {
    typed(L'z');
    ASSERT_EQ(1u, parentCommands.size());
    EXPECT_EQ(MAKEWPARAM(121, LBN_SELCHANGE), parentCommands[0]);
    typed(L'z');  // already there
    EXPECT_EQ(1u, parentCommands.size());
}

TEST_F(TypedList, EmptyOrMissingListDoesNothing) {
    EXPECT_FALSE(dunmar::listTypeAhead(nullptr, L'a'));
    SendMessageW(list.handle(), LB_RESETCONTENT, 0, 0);
    EXPECT_FALSE(list.typeAhead(L'a'));
    EXPECT_EQ(LB_ERR, typed(L'a'));
}
