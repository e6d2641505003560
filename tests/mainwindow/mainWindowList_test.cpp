// The key list: its rows and their masking, the label filter, the partial-show bar and the
// selection with its status line.
#include <algorithm>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

const wchar_t* kLongName = L"abcdefghijklmnopqrstuvwxyz0123";  // 30 characters
// Rows in full: 18, 24, 13, 4 and 37 characters.
const Rows kFull = {L"Bank (money, home)", L"Mail ( work, home ,work)", L"Office (Work)", L"Post",
                    std::wstring(kLongName) + L" (work)"};
const Rows kLabels = {L"", L"money", L"home", L"work", L"home ", L"Work"};

// The first characters of a row, then one star for each character hidden.
std::wstring shown(const std::wstring& row, size_t position) {
    return row.substr(0, position) +
           std::wstring(row.size() - std::min(position, row.size()), L'*');
}
Rows masked(const Rows& full, size_t position) {
    Rows out;
    for (const std::wstring& row : full)
        out.push_back(shown(row, position));
    return out;
}

class KeyList : public MainWindowTest {
  protected:
    // Labels as people write them: blanks after commas, a repeated label, a capital.
    void openSample() {
        addKeys({{"Bank", "money, home"},
                 {"Mail", " work, home ,work"},
                 {"Office", "Work"},
                 {"Post", ""},
                 {"abcdefghijklmnopqrstuvwxyz0123", "work"}});
        open();
    }
    std::pair<int, int> barRange() const {
        int low = -1, high = -1;
        SendMessageW(child(idPartialShow), SBM_GETRANGE, reinterpret_cast<WPARAM>(&low),
                     reinterpret_cast<LPARAM>(&high));
        return {low, high};
    }
    void expectKeyButtons(bool on) {
        for (int id :
             {idEditButton, idDeleteButton, idCopyUser, idCopyPassword, idCopyEmail, idOpenButton})
            EXPECT_EQ(on, enabled(id)) << id;
        EXPECT_TRUE(enabled(idStayTop));
        EXPECT_TRUE(enabled(idNewButton));
    }
};

TEST_F(KeyList, RowsAreMaskedFromThePositionAndTheFilterBoxListsEveryLabelOnce) {
    openSample();
    EXPECT_EQ(5u, window->rowCount());
    EXPECT_EQ(masked(kFull, 2), rows());
    // The empty item first, then first-met order; "home " keeps its trailing blank.
    EXPECT_EQ(kLabels, filterItems());
    EXPECT_EQ(std::make_pair(0, 40), barRange());
    EXPECT_EQ(2, barPosition());
    EXPECT_EQ(L"Mail", rowKey(1));
    EXPECT_EQ(nullptr, window->keyOfRow(-1));
    EXPECT_EQ(nullptr, window->keyOfRow(5));
    for (size_t position : {0, 4, 50}) {  // "Post" is as long as 4: nothing left to hide
        ASSERT_TRUE(window->render(static_cast<int32_t>(position)));
        EXPECT_EQ(masked(kFull, position), rows()) << position;
    }
    EXPECT_EQ(L"Post", rows()[3]);
    EXPECT_EQ(kFull, rows());
}

TEST_F(KeyList, FilterKeepsKeysWithTheExactLabel) {
    openSample();
    const struct {
        int item;
        const wchar_t* filter;
        std::vector<std::wstring> keys;
    } cases[] = {
        {3, L"work", {L"Mail", kLongName}},
        {5, L"Work", {L"Office"}},  // the capital only
        {4, L"home ", {L"Mail"}},   // with its blank: only the key that wrote it so
        {0, L"", {L"Bank", L"Mail", L"Office", L"Post", kLongName}},  // no filter
    };
    for (const auto& c : cases) {
        chooseFilter(c.item);
        EXPECT_EQ(c.filter, std::wstring(window->filterText().c_str()));
        ASSERT_EQ(c.keys.size(), window->rowCount()) << c.item;
        for (size_t i = 0; i < c.keys.size(); ++i)
            EXPECT_EQ(c.keys[i], rowKey(static_cast<int>(i)));
        EXPECT_EQ(kLabels, filterItems()) << "the box still lists every label";
        EXPECT_EQ(c.item, SendMessageW(child(idFilterBox), CB_GETCURSEL, 0, 0));
    }
    chooseFilter(3);
    EXPECT_EQ((Rows{shown(kFull[1], 2), shown(kFull[4], 2)}), rows());
}

TEST_F(KeyList, FilterThatNoKeyCarriesLeavesTheListEmpty) {
    zlFileItemKey* bank = addKey("Bank", "money");
    addKey("Mail", "work");
    open();
    chooseFilter(1);  // "money"
    ASSERT_EQ(1u, window->rowCount());
    zlKeyFields fields;
    ASSERT_TRUE(zlReadKeyFields(*bank, fields));
    fields.value[1] = dunmar::dm_utf8_str("cash");
    ASSERT_TRUE(zlStoreKeyFields(*bank, fields));
    EXPECT_EQ(0, window->fill());
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ((Rows{L"", L"cash", L"work"}), filterItems());
}

// A step of the bar rewrites every row, an edited label only its own: both keep the rows in
// order, the selection and (on the step) the row at the top.
TEST_F(KeyList, RewritesKeepTheSelectionAndTheTopRow) {
    std::vector<zlFileItemKey*> keys;
    Rows clear;
    for (int i = 0; i < 30; ++i) {
        const std::string name = "Key" + std::to_string(i);
        keys.push_back(addKey(name.c_str(), "a"));
        clear.push_back(std::wstring(name.begin(), name.end()) + L" (a)");
    }
    open();
    HWND list = child(idKeyList);
    selectRow(13);
    SendMessageW(list, LB_SETTOPINDEX, 12, 0);
    scroll(SB_RIGHT);
    EXPECT_EQ(clear, rows());
    EXPECT_EQ(13, SendMessageW(list, LB_GETCURSEL, 0, 0));
    EXPECT_EQ(12, SendMessageW(list, LB_GETTOPINDEX, 0, 0));

    zlKeyFields fields;
    ASSERT_TRUE(zlReadKeyFields(*keys[3], fields));
    fields.value[1] = dunmar::dm_utf8_str("b");
    ASSERT_TRUE(zlStoreKeyFields(*keys[3], fields));
    EXPECT_EQ(30, window->fill());
    clear[3] = L"Key3 (b)";
    EXPECT_EQ(clear, rows());
    EXPECT_EQ(13, SendMessageW(list, LB_GETCURSEL, 0, 0));
}

// With an empty key list, or none at all, one unmasked row that selects nothing.
TEST_F(KeyList, NoKeysShowOneUnmaskedRow) {
    for (bool keyList : {false, true}) {
        if (keyList)
            addEmptyKeyList();
        open();
        EXPECT_EQ((Rows{L"No keys found!"}), rows());
        EXPECT_EQ(0u, window->rowCount());
        EXPECT_EQ(std::make_pair(0, 20), barRange());
        scroll(SB_LEFT);
        EXPECT_EQ((Rows{L"No keys found!"}), rows());
        EXPECT_EQ(1, window->fill());
        EXPECT_EQ((Rows{L"No keys found!"}), rows());
        selectRow(0);
        expectKeyButtons(false);
    }
}

TEST_F(KeyList, PartialShowBarMovesByLinesPagesAndEnds) {
    openSample();
    const struct {
        int code, position, expected;
    } moves[] = {
        {SB_LINERIGHT, 0, 3},  {SB_PAGERIGHT, 0, 13},    {SB_PAGELEFT, 0, 3},
        {SB_LINELEFT, 0, 2},   {SB_RIGHT, 0, 40},        {SB_LINERIGHT, 0, 40},  // held at the end
        {SB_THUMBTRACK, 5, 5}, {SB_ENDSCROLL, 30, 5},    {SB_LEFT, 0, 0},
        {SB_PAGELEFT, 0, 0},   {SB_THUMBPOSITION, 7, 7},
    };
    for (const auto& m : moves) {
        scroll(m.code, m.position);
        EXPECT_EQ(m.expected, barPosition()) << m.code;
        EXPECT_EQ(m.expected, mainWindowGlobals().partialPosition) << m.code;
        EXPECT_EQ(shown(kFull[0], static_cast<size_t>(m.expected)), rows()[0]) << m.code;
    }
    // A window made anew starts where the last one was left.
    ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
    EXPECT_EQ(7, barPosition());
    EXPECT_EQ(shown(kFull[0], 7), rows()[0]);
    // Other scroll bars only report on the status line.
    window->onScroll(77, 3);
    EXPECT_EQ(L" OnCustomScroll(77, 3)", statusText());
    EXPECT_EQ(7, barPosition());
}

TEST_F(KeyList, SelectionEnablesTheKeyButtonsAndNamesTheKeyAsTheSettingSays) {
    openSample();
    selectRow(4);
    EXPECT_EQ(std::wstring(L" Key \"") + kLongName + L"\" selected", statusText());
    EXPECT_EQ(2, window->status().ticksLeft());
    expectKeyButtons(true);
    chooseFilter(5);  // the filter takes the selected row away
    selectRow(-1);
    expectKeyButtons(false);

    chooseFilter(0);
    settings->showSelectedKey = 0;
    window->status().show(0, {L"before"});
    selectRow(1);
    EXPECT_EQ(L" before", statusText()) << "the key is not named";
    EXPECT_TRUE(enabled(idEditButton));
    settings->showSelectedKey = 30;
    zlSetLanguage(zlLanguageGerman);
    selectRow(1);
    EXPECT_EQ(L" Key \"Mail\" selektiert", statusText());
    EXPECT_EQ(30, window->status().ticksLeft());
}

TEST_F(KeyList, TypingJumpsToTheFirstRowAtOrAfterTheLetter) {
    openSample();
    SendMessageW(main(), WM_CHAR, L'n', 1);
    EXPECT_EQ(2, selected());  // "Of..."
    EXPECT_EQ(L" Key \"Office\" selected", statusText());
    SendMessageW(child(idKeyList), WM_CHAR, L'M', 1);
    EXPECT_EQ(1, selected());
    SendMessageW(main(), WM_CHAR, 13, 1);  // return does not search
    EXPECT_EQ(1, selected());
}

}  // namespace
