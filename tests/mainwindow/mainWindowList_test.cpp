// The key list: its rows and their masking, the label filter, the partial-show bar and the
// selection with its status line.
#include <string>
#include <vector>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

const wchar_t* kLongName = L"abcdefghijklmnopqrstuvwxyz0123";  // 30 characters

// The first characters of a row, then one star for each character hidden.
std::wstring shown(const wchar_t* start, size_t hidden) {
    return std::wstring(start) + std::wstring(hidden, L'*');
}

class KeyList : public MainWindowTest {
  protected:
    // Labels as people write them: blanks after commas, a repeated label, a capital.
    void addSampleKeys() {
        addKeys({{"Bank", "money, home"},
                 {"Mail", " work, home ,work"},
                 {"Office", "Work"},
                 {"Post", ""},
                 {"abcdefghijklmnopqrstuvwxyz0123", "work"}});
    }
};

TEST_F(KeyList, RowsShowTheFirstTwoCharactersAndTheFilterBoxEveryLabelOnce) {
    addSampleKeys();
    open();
    EXPECT_EQ(5u, window->rowCount());
    // "Bank (money, home)", "Mail ( work, home ,work)", "Office (Work)", "Post" and the
    // long name with " (work)": 18, 24, 13, 4 and 37 characters.
    EXPECT_EQ((Rows{shown(L"Ba", 16), shown(L"Ma", 22), shown(L"Of", 11), shown(L"Po", 2),
                    shown(L"ab", 35)}),
              rows());
    // The empty item first, then first-met order; "home " keeps its trailing blank.
    EXPECT_EQ((Rows{L"", L"money", L"home", L"work", L"home ", L"Work"}), filterItems());
    EXPECT_EQ(std::make_pair(0, 40), barRange());
    EXPECT_EQ(2, barPosition());
    EXPECT_EQ(L"Mail", std::wstring(window->keyOfRow(1)->plainName().to_wide().c_str()));
    EXPECT_EQ(nullptr, window->keyOfRow(-1));
    EXPECT_EQ(nullptr, window->keyOfRow(5));
}

TEST_F(KeyList, MaskingFollowsThePosition) {
    addSampleKeys();
    open();
    ASSERT_TRUE(window->render(0));
    EXPECT_EQ((Rows{shown(L"", 18), shown(L"", 24), shown(L"", 13), shown(L"", 4), shown(L"", 37)}),
              rows());
    ASSERT_TRUE(window->render(4));
    EXPECT_EQ(shown(L"Bank", 14), rows()[0]);
    EXPECT_EQ(L"Post", rows()[3]);    // as long as the position: nothing left to hide
    ASSERT_TRUE(window->render(50));  // beyond the longest row
    EXPECT_EQ((Rows{L"Bank (money, home)", L"Mail ( work, home ,work)", L"Office (Work)", L"Post",
                    std::wstring(kLongName) + L" (work)"}),
              rows());
}

TEST_F(KeyList, FilterKeepsKeysWithTheExactLabel) {
    addSampleKeys();
    open();
    chooseFilter(3);  // "work"
    EXPECT_EQ(L"work", std::wstring(window->filterText().c_str()));
    ASSERT_EQ(2u, window->rowCount());
    EXPECT_EQ(L"Mail", std::wstring(window->keyOfRow(0)->plainName().to_wide().c_str()));
    EXPECT_EQ(std::wstring(kLongName),
              std::wstring(window->keyOfRow(1)->plainName().to_wide().c_str()));
    EXPECT_EQ((Rows{shown(L"Ma", 22), shown(L"ab", 35)}), rows());
    // The box still lists every label, with the choice kept.
    EXPECT_EQ((Rows{L"", L"money", L"home", L"work", L"home ", L"Work"}), filterItems());
    EXPECT_EQ(3, SendMessageW(child(idFilterBox), CB_GETCURSEL, 0, 0));

    chooseFilter(5);  // "Work" matches the capital only
    ASSERT_EQ(1u, window->rowCount());
    EXPECT_EQ(L"Office", std::wstring(window->keyOfRow(0)->plainName().to_wide().c_str()));
    chooseFilter(4);  // "home " with its blank: only the key that wrote it so
    ASSERT_EQ(1u, window->rowCount());
    EXPECT_EQ(L"Mail", std::wstring(window->keyOfRow(0)->plainName().to_wide().c_str()));

    chooseFilter(0);  // the empty item removes the filter
    EXPECT_TRUE(window->filterText().empty());
    EXPECT_EQ(5u, window->rowCount());
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

TEST_F(KeyList, EmptyFileShowsOneUnmaskedRow) {
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
    EXPECT_FALSE(enabled(idEditButton));
    EXPECT_FALSE(enabled(idDeleteButton));
    EXPECT_FALSE(enabled(idCopyPassword));
    EXPECT_FALSE(enabled(idOpenButton));
}

TEST_F(KeyList, FileWithoutKeyListShowsTheSameRow) {
    open();
    EXPECT_EQ((Rows{L"No keys found!"}), rows());
    EXPECT_EQ(std::make_pair(0, 20), barRange());
}

TEST_F(KeyList, PartialShowBarMovesByLinesPagesAndEnds) {
    addSampleKeys();
    open();
    scroll(SB_LINERIGHT);
    EXPECT_EQ(3, barPosition());
    EXPECT_EQ(shown(L"Ban", 15), rows()[0]);
    scroll(SB_PAGERIGHT);
    EXPECT_EQ(13, barPosition());
    EXPECT_EQ(shown(L"Bank (money, ", 5), rows()[0]);
    scroll(SB_PAGELEFT);
    scroll(SB_LINELEFT);
    EXPECT_EQ(2, barPosition());
    scroll(SB_RIGHT);
    EXPECT_EQ(40, barPosition());
    scroll(SB_LINERIGHT);  // held at the end of the range
    EXPECT_EQ(40, barPosition());
    EXPECT_EQ(40, mainWindowGlobals().partialPosition);
    scroll(SB_THUMBTRACK, 5);
    EXPECT_EQ(5, barPosition());
    EXPECT_EQ(shown(L"Bank ", 13), rows()[0]);
    scroll(SB_ENDSCROLL, 30);
    EXPECT_EQ(5, barPosition());
    scroll(SB_LEFT);
    scroll(SB_PAGELEFT);
    EXPECT_EQ(0, barPosition());
    EXPECT_EQ(shown(L"", 18), rows()[0]);

    // A window made anew starts where the last one was left.
    scroll(SB_THUMBPOSITION, 7);
    ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
    EXPECT_EQ(7, barPosition());
    EXPECT_EQ(shown(L"Bank (m", 11), rows()[0]);
}

TEST_F(KeyList, OtherScrollBarsOnlyReportOnTheStatusLine) {
    addSampleKeys();
    open();
    window->onScroll(77, 3);
    EXPECT_EQ(L" OnCustomScroll(77, 3)", statusText());
    EXPECT_EQ(2, barPosition());
}

TEST_F(KeyList, SelectionEnablesTheKeyButtonsAndNamesTheKey) {
    addSampleKeys();
    open();
    selectRow(4);
    EXPECT_EQ(std::wstring(L" Key \"") + kLongName + L"\" selected", statusText());
    EXPECT_EQ(2, window->status().ticksLeft());
    for (int id : {idEditButton, idDeleteButton, idCopyUser, idCopyPassword, idCopyEmail,
                   idOpenButton, idStayTop}) {
        EXPECT_TRUE(enabled(id)) << id;
    }
    // The filter takes the selected row away: nothing is selected, the buttons go off.
    chooseFilter(5);
    selectRow(-1);
    for (int id :
         {idEditButton, idDeleteButton, idCopyUser, idCopyPassword, idCopyEmail, idOpenButton}) {
        EXPECT_FALSE(enabled(id)) << id;
    }
    EXPECT_TRUE(enabled(idStayTop));
    EXPECT_TRUE(enabled(idNewButton));
}

TEST_F(KeyList, SelectionStatusFollowsTheSettingAndTheLanguage) {
    addSampleKeys();
    settings->showSelectedKey = 0;
    open();
    selectRow(1);
    EXPECT_EQ(L" Ready", statusText());
    EXPECT_TRUE(enabled(idEditButton));

    settings->showSelectedKey = 30;
    zlSetLanguage(zlLanguageGerman);
    selectRow(1);
    EXPECT_EQ(L" Key \"Mail\" selektiert", statusText());
    EXPECT_EQ(30, window->status().ticksLeft());
}

TEST_F(KeyList, TypingJumpsToTheFirstRowAtOrAfterTheLetter) {
    addSampleKeys();
    open();
    SendMessageW(main(), WM_CHAR, L'n', 1);
    EXPECT_EQ(2, SendMessageW(child(idKeyList), LB_GETCURSEL, 0, 0));  // "Of..."
    EXPECT_EQ(L" Key \"Office\" selected", statusText());
    SendMessageW(child(idKeyList), WM_CHAR, L'M', 1);
    EXPECT_EQ(1, SendMessageW(child(idKeyList), LB_GETCURSEL, 0, 0));
    SendMessageW(main(), WM_CHAR, 13, 1);  // return does not search
    EXPECT_EQ(1, SendMessageW(child(idKeyList), LB_GETCURSEL, 0, 0));
}

}  // namespace
