#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "app/zlKeyFileStore.h"
#include "app/zlKeyFilter.h"
#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowState.h"
#include "model/zlVerify.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/popupMenu.h"
#include "ui/support/dialogDriver.h"

namespace ztest {

using Rows = std::vector<std::wstring>;
using Names = std::vector<std::string>;

// The real main window over a key file in memory and on disk, driven through its controls'
// messages. Popup choices come from the test, the pointer stands still, the end of the
// program is only recorded and the timer is paused unless a test lets it run.
class MainWindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
        Zelto::mainWindowGlobals() = Zelto::mainWindowState();
        Zelto::mainWindowGlobals().paused = true;
        ASSERT_EQ(0, file.set_pass_phrase(kShortPass));
        settings = new Zelto::zlFileItemSettings(&file);
        file.root().appendChild(settings);
        settings->verify = Zelto::zlMakeVerifyValue(dunmar::dm_utf8_str(kShortPass));
        path = dir / "Zelto.xml";
        file.setPath(widePath(path));
        popupChoice() = 0;
        lastPopup().clear();
        exitCodes().clear();
        cursor() = POINT{100, 100};
        dunmar::setPopupTracker(&choosePopupItem);
        Zelto::setProcessEnder(&recordExit);
        Zelto::setCursorReader(&fakeCursor);
    }
    void TearDown() override {
        window.reset();
        Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
        dunmar::setPopupTracker(nullptr);
        Zelto::setProcessEnder(nullptr);
        Zelto::setCursorReader(nullptr);
        pump();  // the quit message of an exit must not end a later test's modal loop
    }

    Zelto::zlFileItemKey* addKey(const char* name, const char* label, const char* user = "",
                                 const char* email = "", const char* url = "",
                                 const char* note = "") {
        Zelto::zlKeyFields fields;
        fields.value[0] = dunmar::dm_utf8_str(name);
        fields.value[1] = dunmar::dm_utf8_str(label);
        fields.value[2] = dunmar::dm_utf8_str(user);
        fields.value[3] = dunmar::dm_utf8_str("secret");
        fields.value[4] = dunmar::dm_utf8_str(email);
        fields.value[5] = dunmar::dm_utf8_str(url);
        fields.value[6] = dunmar::dm_utf8_str(note);
        return Zelto::zlAddKey(file, fields);
    }
    void addKeys(std::initializer_list<std::pair<const char*, const char*>> keys) {
        for (const auto& key : keys)
            ASSERT_NE(nullptr, addKey(key.first, key.second)) << key.first;
    }
    void addEmptyKeyList() { file.root().appendChild(new Zelto::zlFileItemKeys(&file)); }
    // Saves the keys given, then opens the window over them.
    void openSaved(std::initializer_list<std::pair<const char*, const char*>> keys) {
        addKeys(keys);
        ASSERT_EQ(Zelto::zlSaved, Zelto::zlSaveKeyFile(file));
        open();
    }
    void open() {
        window = std::make_unique<Zelto::mainWindow>(file, dunmar::dm_string(L"2.2.1"));
        ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
        pump();
    }
    HWND main() const { return window->window(); }
    HWND child(int id) const { return GetDlgItem(window->window(), id); }
    static void pump() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    std::string bytesOnDisk() const { return readBytes(path); }
    // The file on disk as the program reads it with password.
    Names namesOnDisk(const char* password = kShortPass) const {
        Zelto::zlKeyFile again;
        EXPECT_EQ(0, again.set_pass_phrase(password));
        EXPECT_EQ(Zelto::zlReadOk, again.readFile(widePath(path)));
        Names names;
        for (const Zelto::zlFileItemKey* key : Zelto::zlKeysOf(again.keys()))
            names.push_back(key->plainName().str());
        return names;
    }
    std::vector<std::filesystem::path> filesIn(const char* prefix) const {
        std::vector<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::directory_iterator(dir.path()))
            if (entry.path().filename().string().rfind(prefix, 0) == 0)
                found.push_back(entry.path());
        return found;
    }

    Rows rows() const {
        return itemTexts(child(Zelto::idKeyList), LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
    }
    Rows filterItems() const {
        return itemTexts(child(Zelto::idFilterBox), CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
    }
    static Rows itemTexts(HWND box, UINT count, UINT length, UINT text) {
        Rows out;
        const LRESULT n = SendMessageW(box, count, 0, 0);
        for (LRESULT i = 0; i < n; ++i) {
            std::wstring item(static_cast<size_t>(SendMessageW(box, length, i, 0)) + 1, L'\0');
            const LRESULT got = SendMessageW(box, text, i, reinterpret_cast<LPARAM>(item.data()));
            item.resize(got > 0 ? static_cast<size_t>(got) : 0);
            out.push_back(item);
        }
        return out;
    }
    std::wstring rowKey(int row) const {
        const Zelto::zlFileItemKey* key = window->keyOfRow(row);
        return key ? key->plainName().to_wide().c_str() : L"<none>";
    }
    int selected() const {
        return static_cast<int>(SendMessageW(child(Zelto::idKeyList), LB_GETCURSEL, 0, 0));
    }
    int barPosition() const {
        return static_cast<int>(SendMessageW(child(Zelto::idPartialShow), SBM_GETPOS, 0, 0));
    }
    std::wstring statusText() const { return textOf(child(Zelto::idStatusLabel)); }
    bool enabled(int id) const { return IsWindowEnabled(child(id)) != FALSE; }

    // What the user's actions send to the window.
    void chooseFilter(int index) {
        HWND box = child(Zelto::idFilterBox);
        SendMessageW(box, CB_SETCURSEL, index, 0);
        SendMessageW(main(), WM_COMMAND, MAKEWPARAM(Zelto::idFilterBox, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(box));
    }
    void selectRow(int index) {
        HWND list = child(Zelto::idKeyList);
        SendMessageW(list, LB_SETCURSEL, index, 0);
        SendMessageW(main(), WM_COMMAND, MAKEWPARAM(Zelto::idKeyList, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    void scroll(int code, int position = 0) {
        SendMessageW(main(), WM_HSCROLL, MAKEWPARAM(code, position),
                     reinterpret_cast<LPARAM>(child(Zelto::idPartialShow)));
    }
    void command(int id) { SendMessageW(main(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }
    void press(int id) { SendMessageW(child(id), BM_CLICK, 0, 0); }
    // The bar item's popup with choice picked from it (0: looked at, nothing chosen).
    void menu(UINT barItem, UINT choice) {
        popupChoice() = choice;
        command(static_cast<int>(barItem));
    }
    // Runs the command with the steps acting on the modal windows it opens.
    bool commandWith(int id, std::vector<DialogStep> steps) {
        return runWithModals([&] { command(id); }, std::move(steps));
    }
    bool pressWith(int id, std::vector<DialogStep> steps) {
        return runWithModals([&] { press(id); }, std::move(steps));
    }
    bool menuWith(UINT barItem, UINT choice, std::vector<DialogStep> steps) {
        popupChoice() = choice;
        return commandWith(static_cast<int>(barItem), std::move(steps));
    }

    static UINT& popupChoice() {
        static UINT choice = 0;
        return choice;
    }
    struct MenuItem {
        UINT id;
        std::wstring text;
        bool checked;
    };
    static std::vector<MenuItem>& lastPopup() {
        static std::vector<MenuItem> items;
        return items;
    }
    static std::vector<UINT>& exitCodes() {
        static std::vector<UINT> codes;
        return codes;
    }
    static POINT& cursor() {
        static POINT at = {100, 100};
        return at;
    }

    Zelto::zlKeyFile file;
    Zelto::zlFileItemSettings* settings = nullptr;
    std::unique_ptr<Zelto::mainWindow> window;
    TempDir dir;
    std::filesystem::path path;

  private:
    static UINT choosePopupItem(HMENU menu, HWND) {
        lastPopup().clear();
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            wchar_t text[128] = {};
            GetMenuStringW(menu, static_cast<UINT>(i), text, 128, MF_BYPOSITION);
            const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
            lastPopup().push_back({GetMenuItemID(menu, i), text, (state & MF_CHECKED) != 0});
        }
        return popupChoice();
    }
    static void WINAPI recordExit(UINT code) { exitCodes().push_back(code); }
    static BOOL WINAPI fakeCursor(LPPOINT at) {
        *at = cursor();
        return TRUE;
    }
};

// Steps on the modal windows a command opens.
inline DialogStep answer(int id) {
    return [id](HWND modal) { SendMessageW(modal, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); };
}
inline DialogStep enter(int id, std::wstring text) {
    return [id, text](HWND modal) { setText(modal, id, text); };
}
// The password typed into the login in front and its button pressed.
inline DialogStep login(const wchar_t* password) {
    return [password](HWND dialog) {
        setText(dialog, IDC_LOGIN_PASSWORD, password);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_LOGIN_BUTTON, BN_CLICKED), 0);
    };
}
// Records the front window's title and static texts (a message box's text is one of them).
inline DialogStep look(std::wstring& title, std::vector<std::wstring>& texts) {
    return [&title, &texts](HWND modal) {
        title = textOf(modal);
        texts = staticTexts(modal);
    };
}
inline bool contains(const std::vector<std::wstring>& texts, const std::wstring& text) {
    for (const std::wstring& t : texts)
        if (t == text)
            return true;
    return false;
}

}  // namespace ztest
