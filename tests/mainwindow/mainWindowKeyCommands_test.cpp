// New, edit, delete, copy, open and stay-top through the real buttons, with the dialogs and
// questions answered as a user would and the file checked on disk; the clipboard's life.
#include <cstring>
#include <functional>

#include "mainWindowFixture.h"
#include "mainwindow/zlClipboard.h"
#include "ui/shellOpen.h"

using namespace ztest;
using namespace Zelto;

namespace {

std::wstring clipboardText() {
    std::wstring text;
    if (!OpenClipboard(nullptr))
        return L"<clipboard busy>";
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

// The DWORD value of the registered clipboard format of that name; -1 when it is missing.
int64_t formatValue(const wchar_t* name) {
    int64_t value = -1;
    if (!OpenClipboard(nullptr))
        return value;
    if (HANDLE data = GetClipboardData(RegisterClipboardFormatW(name))) {
        value = *static_cast<const DWORD*>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return value;
}

class KeyCommands : public MainWindowTest {
  protected:
    void threeKeys() { openSaved({{"Bank", "money"}, {"Mail", "work"}, {"Shop", "money"}}); }
};

TEST_F(KeyCommands, NewEditAndDeleteGoThroughTheirDialogsAndAreSaved) {
    threeKeys();
    ASSERT_TRUE(pressWith(idNewButton, {enter(IDC_EDITKEY_NAME, L"Club"),
                                        enter(IDC_EDITKEY_PW, L"pw-Club"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Mail", "Shop", "Club"}), namesOnDisk());
    selectRow(1);
    ASSERT_TRUE(pressWith(idEditButton, {enter(IDC_EDITKEY_NAME, L"Post"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Post", "Shop", "Club"}), namesOnDisk());
    EXPECT_EQ(L"Po**", rows()[1].substr(0, 4));

    // Cancel, No and a delete without a selected key write nothing.
    const std::string before = bytesOnDisk();
    selectRow(0);
    ASSERT_TRUE(pressWith(idEditButton, {enter(IDC_EDITKEY_NAME, L"Gone"), answer(IDCANCEL)}));
    ASSERT_TRUE(pressWith(idDeleteButton, {answer(IDNO)}));
    SendMessageW(child(idKeyList), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    ASSERT_TRUE(commandWith(idDeleteButton, {}));
    EXPECT_EQ(before, bytesOnDisk());
    EXPECT_EQ(4u, rows().size());

    // Delete asks, moves to the trash and selects the row before.
    selectRow(2);
    std::wstring title;
    std::vector<std::wstring> texts;
    ASSERT_TRUE(pressWith(idDeleteButton, {look(title, texts), answer(IDYES)}));
    EXPECT_EQ(L"Zelto", title);
    EXPECT_TRUE(contains(texts, L"Really delete key \"Shop\" ?"));
    EXPECT_EQ((Names{"Bank", "Post", "Club"}), namesOnDisk());
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<trash>"));
    EXPECT_EQ(1, selected());
    EXPECT_TRUE(enabled(idCopyPassword));
    // The first row has none before it: nothing is selected and the key buttons go grey.
    selectRow(0);
    ASSERT_TRUE(pressWith(idDeleteButton, {answer(IDYES)}));
    EXPECT_EQ((Names{"Post", "Club"}), namesOnDisk());
    EXPECT_EQ(-1, selected());
    EXPECT_FALSE(enabled(idEditButton));
    EXPECT_FALSE(enabled(idOpenButton));
}

// Each copy button puts the plain field there marked private, and says so for as long as the
// clipboard keeps it (ten seconds below a clearing time of 6). An empty field copies nothing.
TEST_F(KeyCommands, CopyPlacesThePlainTextMarkedPrivateAndSaysSo) {
    addKeys({{"Bank", "money"}});
    addKey("Noted", "", "\xC3\xA9mile", "e@example.org", "", "a note");
    open();
    selectRow(0);
    press(idCopyPassword);
    EXPECT_EQ(L"secret", clipboardText());
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
    EXPECT_EQ(30, window->status().ticksLeft());
    for (const wchar_t* name : zlClipboardPrivacyFormats)
        EXPECT_EQ(0, formatValue(name)) << std::wstring(name).size();
    command(idCopyNote);
    press(idCopyUser);
    EXPECT_EQ(L"secret", clipboardText()) << "empty note and user leave the clipboard alone";
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());

    settings->autoClearClipboard = 0;
    selectRow(1);
    press(idCopyUser);
    EXPECT_EQ(L"\u00E9mile", clipboardText());
    EXPECT_EQ(L" Copied 'User' to clipboard", statusText());
    EXPECT_EQ(10, window->status().ticksLeft());
    press(idCopyEmail);
    EXPECT_EQ(L"e@example.org", clipboardText());
    EXPECT_EQ(L" Copied 'Email' to clipboard", statusText());
    command(idCopyNote);
    EXPECT_EQ(L"a note", clipboardText());
    EXPECT_EQ(L" Copied 'Note' to clipboard", statusText());
}

TEST_F(KeyCommands, TheClipboardIsClearedAfterItsTimeOnlyWhileItHoldsOurText) {
    threeKeys();
    settings->autoClearClipboard = 10;
    selectRow(0);
    const wchar_t* others[] = {nullptr, L"from another program", L"secret2"};
    for (const wchar_t* other : others) {
        press(idCopyPassword);  // the press restarts the count
        if (other)
            putOnClipboard(other);
        for (int i = 0; i < 9; ++i)
            window->tick();
        EXPECT_EQ(other ? other : L"secret", clipboardText());
        window->tick();
        EXPECT_EQ(other ? other : L"", clipboardText());
    }
}

// Exit, the close box and a cancelled lock all end the program: the copied password goes
// with it, another program's text stays.
TEST_F(KeyCommands, TheProgramsEndTakesOnlyItsOwnTextOffTheClipboard) {
    threeKeys();
    const std::pair<std::function<void()>, const wchar_t*> cases[] = {
        {[&] { command(IDM_EXIT); }, nullptr},
        {[&] { SendMessageW(main(), WM_CLOSE, 0, 0); }, nullptr},
        {[&] { pressWith(idLockButton, {answer(IDCANCEL)}); }, nullptr},
        {[&] { command(IDM_EXIT); }, L"from another program"},
    };
    int n = 0;
    for (const auto& [end, other] : cases) {
        if (!main())
            open();
        selectRow(0);
        press(idCopyPassword);
        if (other)
            putOnClipboard(other);
        end();
        EXPECT_EQ(nullptr, main()) << n;
        EXPECT_EQ(other ? other : L"", clipboardText()) << n++;
        pump();
    }
    EXPECT_EQ(std::vector<UINT>{0}, exitCodes()) << "only the cancelled lock ends the process";
}

intptr_t g_shellResult = 33;
std::vector<std::wstring> g_opened;
intptr_t fakeShell(HWND, const dunmar::dm_string& target) {
    g_opened.push_back(target.str());
    return g_shellResult;
}

TEST_F(KeyCommands, OpenTellsSuccessAndEachShellErrorOnTheStatusLine) {
    addKey("Site", "", "", "", "https://bank.example/");
    addKeys({{"NoUrl", ""}});
    open();
    dunmar::setShellOpenFunction(&fakeShell);
    const std::pair<intptr_t, const wchar_t*> results[] = {
        {42, L" Opened 'Url'"},
        {31,
         L" Failed to open 'Url' (There is no application associated with the given file name "
         L"extension.)"},
        {2, L" Failed to open 'Url' (The specified file was not found.)"},
        {11,
         L" Failed to open 'Url' (The .exe file is invalid (non-Win32\u00AE .exe or error in "
         L".exe image).)"},
        {32, L" Failed to open 'Url' (The specified dynamic-link library was not found.)"},
        {4, L" Failed to open 'Url' (unspecified error while processing.)"},
    };
    selectRow(0);
    for (const auto& [result, text] : results) {
        g_shellResult = result;
        press(idOpenButton);
        EXPECT_EQ(text, statusText());
        EXPECT_EQ(result > 32 ? 10 : -1, window->status().ticksLeft()) << result;
    }
    EXPECT_EQ(std::vector<std::wstring>(6, L"https://bank.example/"), g_opened);
    selectRow(1);
    press(idOpenButton);
    EXPECT_EQ(6u, g_opened.size());
    EXPECT_EQ(L" Failed to open 'Url' (empty filepathname)", statusText());
    dunmar::setShellOpenFunction(nullptr);
}

TEST_F(KeyCommands, StayTopFlipsTheTopmostStateAndTheFlagCommandHasNoControl) {
    threeKeys();
    for (bool on : {true, false}) {
        press(idStayTop);
        EXPECT_EQ(on, window->stayOnTop());
        EXPECT_EQ(on, (GetWindowLongPtrW(main(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0);
        EXPECT_EQ(on ? BST_CHECKED : BST_UNCHECKED,
                  SendMessageW(child(idStayTop), BM_GETCHECK, 0, 0));
    }
    EXPECT_TRUE(window->flag());
    command(idToggleFlag);
    EXPECT_FALSE(window->flag());
}

}  // namespace
