// The key list: rows masked after their first characters until the bar reveals more, the
// label filter, and the selection with its buttons and status line.
#include <algorithm>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

// The first characters of each row, then one star for each character hidden.
Rows masked(const Rows& full, int position) {
    Rows out;
    for (const std::wstring& row : full) {
        const size_t shown = std::min(static_cast<size_t>(position), row.size());
        out.push_back(row.substr(0, shown) + std::wstring(row.size() - shown, L'*'));
    }
    return out;
}

// Enough keys for the list to scroll, then labels as people write them: blanks after
// commas, a repeated label, a capital.
TEST_F(MainWindowTest, TheBarRevealsRowsTheFilterKeepsExactLabelsASelectionNamesItsKey) {
    Rows full;
    for (int i = 0; i < 25; ++i) {
        ASSERT_NE(nullptr, addKey(("Key" + std::to_string(i)).c_str(), "x"));
        full.push_back(L"Key" + std::to_wstring(i) + L" (x)");
    }
    openWith({{"Bank", "money, home"},
              {"Mail", " work, home ,work"},
              {"Office", "Work"},
              {"Post", ""},
              {"abcdefghijklmnopqrstuvwxyz0123", "work"}});
    full.insert(full.end(), {L"Bank (money, home)", L"Mail ( work, home ,work)", L"Office (Work)",
                             L"Post", L"abcdefghijklmnopqrstuvwxyz0123 (work)"});
    HWND list = child(idKeyList), bar = child(idPartialShow);
    selectRow(13);
    SendMessageW(list, LB_SETTOPINDEX, 12, 0);
    EXPECT_EQ(masked(full, 2), rows());
    const struct {
        int code, position, expected;
    } moves[] = {
        {SB_LINERIGHT, 0, 3},  {SB_PAGERIGHT, 0, 13},    {SB_PAGELEFT, 0, 3},
        {SB_LINELEFT, 0, 2},   {SB_RIGHT, 0, 40},        {SB_LINERIGHT, 0, 40},  // held at the end
        {SB_THUMBTRACK, 5, 5}, {SB_ENDSCROLL, 30, 5},    {SB_LEFT, 0, 0},
        {SB_PAGELEFT, 0, 0},   {SB_THUMBPOSITION, 2, 2},
    };
    for (const auto& m : moves) {
        SendMessageW(main(), WM_HSCROLL, MAKEWPARAM(m.code, m.position),
                     reinterpret_cast<LPARAM>(bar));
        EXPECT_EQ(m.expected, SendMessageW(bar, SBM_GETPOS, 0, 0)) << m.code;
        EXPECT_EQ(masked(full, m.expected), rows()) << m.code;
        EXPECT_EQ(13, selected()) << m.code;
        EXPECT_EQ(12, SendMessageW(list, LB_GETTOPINDEX, 0, 0)) << m.code;
    }

    // Every label once after the empty "no filter" item; "home " keeps its blank.
    HWND box = child(idFilterBox);
    EXPECT_EQ((Rows{L"", L"x", L"money", L"home", L"work", L"home ", L"Work"}),
              itemTexts(box, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT));
    const struct {
        int item;
        Rows rows;
    } filters[] = {{4, {full[26], full[29]}}, {6, {full[27]}}, {5, {full[26]}}, {0, full}};
    for (const auto& f : filters) {
        SendMessageW(box, CB_SETCURSEL, f.item, 0);
        SendMessageW(main(), WM_COMMAND, MAKEWPARAM(idFilterBox, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(box));
        EXPECT_EQ(masked(f.rows, 2), rows()) << f.item;
    }

    for (int row : {29, -1}) {
        selectRow(row);
        for (int button : {idEditButton, idDeleteButton, idCopyUser, idCopyPassword, idCopyEmail})
            EXPECT_EQ(row >= 0, IsWindowEnabled(child(button)) != FALSE) << button;
    }
    selectRow(29);
    EXPECT_EQ(L" Key \"abcdefghijklmnopqrstuvwxyz0123\" selected", statusText());
    EXPECT_EQ(2, window->status().ticksLeft());
}

}  // namespace
