// New, edit, delete, copy and open through the real buttons of the main window, with the
// dialogs and questions they open answered as a user would, and the file checked on disk.
#include <cstring>
#include <functional>

#include "app/zlKeyFields.h"
#include "commandFixture.h"
#include "mainwindow/zlClipboard.h"
#include "ui/shellOpen.h"

using namespace ztest;
using namespace Zelto;

namespace {

using Names = std::vector<std::string>;

std::wstring clipboardText() {
    std::wstring text;
    if (!OpenClipboard(nullptr))
        return L"<clipboard busy>";
    if (HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* chars = static_cast<const wchar_t*>(GlobalLock(data))) {
            text = chars;
            GlobalUnlock(data);
        }
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

// Name and DWORD value of every registered format on the clipboard.
std::vector<std::pair<std::wstring, DWORD>> registeredFormats() {
    std::vector<std::pair<std::wstring, DWORD>> out;
    if (!OpenClipboard(nullptr))
        return out;
    for (UINT format = EnumClipboardFormats(0); format; format = EnumClipboardFormats(format)) {
        wchar_t name[128] = {};
        if (format < 0xC000 || GetClipboardFormatNameW(format, name, 128) == 0)
            continue;
        DWORD value = 0xFFFFFFFF;
        if (HANDLE data = GetClipboardData(format)) {
            if (const void* bytes = GlobalLock(data)) {
                std::memcpy(&value, bytes, sizeof(value));
                GlobalUnlock(data);
            }
        }
        out.emplace_back(name, value);
    }
    CloseClipboard();
    return out;
}

class KeyCommands : public CommandTest {
  protected:
    void threeKeys() {
        addKeys({{"Bank", "money"}, {"Mail", "work"}, {"Shop", "money"}});
        save();
        open();
    }
    int selected() const {
        return static_cast<int>(SendMessageW(child(idKeyList), LB_GETCURSEL, 0, 0));
    }
};

TEST_F(KeyCommands, NewAndEditGoThroughTheDialogAndAreSaved) {
    threeKeys();
    ASSERT_TRUE(pressWith(idNewButton, {enter(IDC_EDITKEY_NAME, L"Club"),
                                        enter(IDC_EDITKEY_PW, L"pw-Club"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Mail", "Shop", "Club"}), namesOnDisk());
    EXPECT_EQ(4u, rows().size());

    selectRow(1);
    ASSERT_TRUE(pressWith(idEditButton, {enter(IDC_EDITKEY_NAME, L"Post"), answer(IDOK)}));
    EXPECT_EQ((Names{"Bank", "Post", "Shop", "Club"}), namesOnDisk());
    EXPECT_EQ(L"Po**", rows()[1].substr(0, 4));

    // A cancelled dialog writes nothing.
    const std::string before = bytesOnDisk();
    selectRow(0);
    ASSERT_TRUE(pressWith(idEditButton, {enter(IDC_EDITKEY_NAME, L"Gone"), answer(IDCANCEL)}));
    EXPECT_EQ(before, bytesOnDisk());
}

TEST_F(KeyCommands, DeleteAsksMovesToTheTrashAndSelectsTheRowBefore) {
    threeKeys();
    selectRow(2);
    std::wstring title;
    std::vector<std::wstring> texts;
    ASSERT_TRUE(pressWith(idDeleteButton, {look(title, texts), answer(IDYES)}));
    EXPECT_EQ(L"Zelto", title);
    EXPECT_TRUE(contains(texts, L"Really delete key \"Shop\" ?"));
    EXPECT_EQ((Names{"Bank", "Mail"}), namesOnDisk());
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<trash>"));
    EXPECT_EQ(1, selected());
    EXPECT_TRUE(enabled(idEditButton));
    EXPECT_TRUE(enabled(idCopyPassword));

    // The first row has none before it: nothing is selected and the key buttons go grey.
    selectRow(0);
    ASSERT_TRUE(pressWith(idDeleteButton, {answer(IDYES)}));
    EXPECT_EQ((Names{"Mail"}), namesOnDisk());
    EXPECT_EQ(-1, selected());
    EXPECT_FALSE(enabled(idEditButton));
    EXPECT_FALSE(enabled(idDeleteButton));
    EXPECT_FALSE(enabled(idOpenButton));
}

TEST_F(KeyCommands, ANoToTheQuestionLeavesTheFileByteForByte) {
    threeKeys();
    const std::string before = bytesOnDisk();
    selectRow(1);
    ASSERT_TRUE(pressWith(idDeleteButton, {answer(IDNO)}));
    EXPECT_EQ(before, bytesOnDisk());
    EXPECT_EQ(3u, rows().size());
    // Without a selected key there is nothing to ask.
    SendMessageW(child(idKeyList), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    ASSERT_TRUE(commandWith(idDeleteButton, {}));
    EXPECT_EQ(before, bytesOnDisk());
}

TEST_F(KeyCommands, CopyPlacesThePlainTextMarkedPrivateAndSaysSo) {
    threeKeys();
    selectRow(1);
    press(idCopyPassword);
    EXPECT_EQ(L"secret", clipboardText());
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
    EXPECT_EQ(30, window->status().ticksLeft());  // the clearing time when it is 6 or more

    const auto formats = registeredFormats();
    for (const wchar_t* name : zlClipboardPrivacyFormats) {
        bool found = false;
        for (const auto& format : formats)
            if (format.first == name) {
                found = true;
                EXPECT_EQ(0u, format.second) << std::wstring(name).size();
            }
        EXPECT_TRUE(found) << "missing format " << std::wstring(name).size();
    }

    // Below 6 seconds of clearing the message stays for ten.
    settings->autoClearClipboard = 0;
    command(idCopyNote);  // the key has no note: nothing is copied, nothing said
    EXPECT_EQ(L"secret", clipboardText());
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
    press(idCopyUser);
    EXPECT_EQ(L"secret", clipboardText()) << "an empty user leaves the clipboard alone";

    Zelto::zlKeyFields fields;
    fields.value[0] = dunmar::dm_utf8_str("Noted");
    fields.value[2] = dunmar::dm_utf8_str("\xC3\xA9mile");
    fields.value[6] = dunmar::dm_utf8_str("a note");
    ASSERT_NE(nullptr, zlAddKey(file, fields));
    window->fill();
    selectRow(3);
    press(idCopyUser);
    EXPECT_EQ(L"\u00E9mile", clipboardText());
    EXPECT_EQ(10, window->status().ticksLeft());
    command(idCopyNote);
    EXPECT_EQ(L"a note", clipboardText());
    EXPECT_EQ(L" Copied 'Note' to clipboard", statusText());
}

TEST_F(KeyCommands, TheClipboardIsClearedOnlyWhileItHoldsOurText) {
    threeKeys();
    settings->autoClearClipboard = 10;
    selectRow(0);
    press(idCopyPassword);  // the press restarts the timer: the count begins at zero
    for (int i = 0; i < 9; ++i)
        window->tick();
    EXPECT_EQ(L"secret", clipboardText());
    window->tick();
    EXPECT_EQ(L"", clipboardText());

    press(idCopyPassword);
    putOnClipboard(L"from another program");
    for (int i = 0; i < 10; ++i)
        window->tick();
    EXPECT_EQ(L"from another program", clipboardText());
    // A text that merely starts like ours is not ours either.
    putOnClipboard(L"secret2");
    for (int i = 0; i < 10; ++i)
        window->tick();
    EXPECT_EQ(L"secret2", clipboardText());
}

// Exit, the close box and a cancelled lock all end the program through the window's end:
// the copied password goes with it, but another program's text stays.
TEST_F(KeyCommands, TheProgramsEndTakesOnlyItsOwnTextOffTheClipboard) {
    threeKeys();
    struct Case {
        const char* how;
        std::function<void()> end;
        const wchar_t* other;  // put there by another program after the copy
    };
    const Case cases[] = {
        {"Exit", [&] { command(IDM_EXIT); }, nullptr},
        {"close box", [&] { SendMessageW(main(), WM_CLOSE, 0, 0); }, nullptr},
        {"lock cancelled", [&] { pressWith(idLockButton, {answer(IDCANCEL)}); }, nullptr},
        {"Exit", [&] { command(IDM_EXIT); }, L"from another program"},
    };
    for (const Case& c : cases) {
        if (!main())
            open();
        selectRow(0);
        press(idCopyPassword);
        if (c.other)
            putOnClipboard(c.other);
        c.end();
        EXPECT_EQ(nullptr, main()) << c.how;
        EXPECT_EQ(c.other ? c.other : L"", clipboardText()) << c.how;
        pump();  // the quit message of the window's end
    }
    EXPECT_EQ(std::vector<UINT>{0}, exitCodes());
}

intptr_t g_shellResult = 33;
std::vector<std::wstring> g_opened;
intptr_t fakeShell(HWND, const dunmar::dm_string& target) {
    g_opened.push_back(target.str());
    return g_shellResult;
}

TEST_F(KeyCommands, OpenTellsSuccessAndEachShellErrorOnTheStatusLine) {
    Zelto::zlKeyFields fields;
    fields.value[0] = dunmar::dm_utf8_str("Site");
    fields.value[5] = dunmar::dm_utf8_str("https://bank.example/");
    ASSERT_NE(nullptr, zlAddKey(file, fields));
    addKeys({{"NoUrl", ""}});
    save();
    open();
    g_opened.clear();
    dunmar::setShellOpenFunction(&fakeShell);

    selectRow(0);
    g_shellResult = 42;
    press(idOpenButton);
    EXPECT_EQ(std::vector<std::wstring>{L"https://bank.example/"}, g_opened);
    EXPECT_EQ(L" Opened 'Url'", statusText());
    EXPECT_EQ(10, window->status().ticksLeft());

    const std::pair<intptr_t, const wchar_t*> errors[] = {
        {31, L"There is no application associated with the given file name extension."},
        {2, L"The specified file was not found."},
        {11, L"The .exe file is invalid (non-Win32\u00AE .exe or error in .exe image)."},
        {32, L"The specified dynamic-link library was not found."},
        {4, L"unspecified error while processing."},
    };
    for (const auto& error : errors) {
        g_shellResult = error.first;
        press(idOpenButton);
        EXPECT_EQ(std::wstring(L" Failed to open 'Url' (") + error.second + L")", statusText());
        EXPECT_EQ(-1, window->status().ticksLeft()) << "stays until the next message";
    }

    g_opened.clear();
    selectRow(1);
    press(idOpenButton);
    EXPECT_TRUE(g_opened.empty());
    EXPECT_EQ(L" Failed to open 'Url' (empty filepathname)", statusText());
    dunmar::setShellOpenFunction(nullptr);
}

TEST_F(KeyCommands, StayTopFlipsTheTopmostStateAndTheFlagCommandHasNoControl) {
    threeKeys();
    press(idStayTop);
    EXPECT_TRUE(window->stayOnTop());
    EXPECT_NE(0, GetWindowLongPtrW(main(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_EQ(BST_CHECKED, SendMessageW(child(idStayTop), BM_GETCHECK, 0, 0));
    press(idStayTop);
    EXPECT_EQ(BST_UNCHECKED, SendMessageW(child(idStayTop), BM_GETCHECK, 0, 0));
    EXPECT_FALSE(window->stayOnTop());
    EXPECT_EQ(0, GetWindowLongPtrW(main(), GWL_EXSTYLE) & WS_EX_TOPMOST);

    EXPECT_TRUE(window->flag());
    command(idToggleFlag);
    EXPECT_FALSE(window->flag());
}

}  // namespace
