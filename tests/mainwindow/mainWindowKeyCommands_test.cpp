// New, edit and delete through the real buttons and dialogs with the file checked on disk;
// the copy buttons and the copied text's life until the tick or the program's end.
#include <algorithm>
#include <cstring>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

std::wstring clipboardText() {
    std::wstring text;
    OpenClipboard(nullptr);
    if (HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t*>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

void putOnClipboard(const std::wstring& text) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::memcpy(GlobalLock(memory), text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

TEST_F(MainWindowTest, NewEditAndDeleteAreSavedAndDeleteMovesTheKeyToTheTrash) {
    openWith({{"Bank", "money"}, {"Mail", "work"}, {"Shop", "money"}});
    ASSERT_TRUE(pressWith(idNewButton, {enter(IDC_EDITKEY_NAME, L"Club"),
                                        enter(IDC_EDITKEY_PW, L"pw-Club"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Mail", "Shop", "Club"}), namesOnDisk());
    selectRow(1);
    ASSERT_TRUE(pressWith(idEditButton, {enter(IDC_EDITKEY_NAME, L"Post"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Post", "Shop", "Club"}), namesOnDisk());
    EXPECT_EQ(L"Po*", rows()[1].substr(0, 3));
    EXPECT_EQ(1, selected()) << "the edited key stays selected";

    selectRow(2);
    Rows box;
    ASSERT_TRUE(pressWith(idDeleteButton, {look(box), answer(IDYES)}));
    EXPECT_EQ(1, std::count(box.begin(), box.end(), L"Really delete key \"Shop\" ?"));
    EXPECT_EQ((Names{"Bank", "Post", "Club"}), namesOnDisk());
    EXPECT_EQ(Names{"Shop"}, namesOnDisk(kShortPass, true));
    EXPECT_EQ(1, selected()) << "the row before";
}

// Each copy button puts the plain field there and says so for the clearing time (ten seconds
// below 6); the tick clears only our own text after that time, and so does the program's end.
TEST_F(MainWindowTest, CopiedFieldsLeaveTheClipboardAfterTheirTimeAndWithTheProgram) {
    addKey("Noted", "", "\xC3\xA9mile", "e@example.org");
    openWith({{"Bank", "money"}});
    settings->autoClearClipboard = 0;
    selectRow(0);
    const struct {
        int button;
        const wchar_t *text, *field;
    } copies[] = {{idCopyUser, L"\u00E9mile", L"User"},
                  {idCopyEmail, L"e@example.org", L"Email"},
                  {idCopyPassword, L"secret", L"Password"}};
    for (const auto& c : copies) {
        press(c.button);
        EXPECT_EQ(c.text, clipboardText());
        EXPECT_EQ(std::wstring(L" Copied '") + c.field + L"' to clipboard", statusText());
        EXPECT_EQ(10, window->status().ticksLeft());
    }

    settings->autoClearClipboard = 12;
    for (const wchar_t* other : {L"", L"from another program"}) {
        press(idCopyPassword);  // the press starts the count afresh
        EXPECT_EQ(12, window->status().ticksLeft());
        if (*other)
            putOnClipboard(other);
        for (int i = 0; i < 11; ++i)
            window->tick();
        EXPECT_EQ(*other ? other : L"secret", clipboardText());
        EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
        window->tick();
        EXPECT_EQ(other, clipboardText());
        EXPECT_EQ(L" Ready", statusText());
    }

    // The end of the program takes our text along.
    press(idCopyPassword);
    command(IDM_EXIT);
    EXPECT_EQ(nullptr, main());
    EXPECT_EQ(L"", clipboardText());
}

}  // namespace
