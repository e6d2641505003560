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

// What the window asks the system for comes from the test: the popup's choice and the
// pointer; the popup shown last (a checked item's text ends in " *") and the end of the
// program are recorded.
struct Hooks {
    UINT choice = 0;
    std::vector<UINT> ids;
    Rows popup;
    std::vector<UINT> exits;
    POINT cursor = {};  // where a new window's timer saw it last
};
inline Hooks& hooks() {
    static Hooks h;
    return h;
}
inline UINT choosePopupItem(HMENU menu, HWND) {
    hooks().ids.clear();
    hooks().popup.clear();
    for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(menu)); ++i) {
        wchar_t text[128] = {};
        GetMenuStringW(menu, i, text, 128, MF_BYPOSITION);
        const bool checked = GetMenuState(menu, i, MF_BYPOSITION) & MF_CHECKED;
        hooks().ids.push_back(GetMenuItemID(menu, static_cast<int>(i)));
        hooks().popup.push_back(text + std::wstring(checked ? L" *" : L""));
    }
    return hooks().choice;
}
// The real main window over a key file in memory and on disk, driven through its controls'
// messages. The timer is paused unless a test lets it run.
class MainWindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
        Zelto::mainWindowGlobals() = Zelto::mainWindowState();
        Zelto::mainWindowGlobals().paused = true;
        hooks() = Hooks();
        ASSERT_EQ(0, file.set_pass_phrase(kShortPass));
        settings = new Zelto::zlFileItemSettings(&file);
        file.root().appendChild(settings);
        settings->verify = Zelto::zlMakeVerifyValue(dunmar::dm_utf8_str(kShortPass));
        path = dir / "Zelto.xml";
        file.setPath(widePath(path));
        dunmar::setPopupTracker(&choosePopupItem);
        Zelto::setProcessEnder([](UINT code) { hooks().exits.push_back(code); });
        Zelto::setCursorReader([](LPPOINT at) { return *at = hooks().cursor, TRUE; });
    }
    void TearDown() override {
        window.reset();
        pump();  // the quit message of an exit must not end a later test's modal loop
    }

    Zelto::zlFileItemKey* addKey(const char* name, const char* label, const char* user = "",
                                 const char* email = "") {
        const char* values[] = {name, label, user, "secret", email, "", ""};
        Zelto::zlKeyFields fields;
        for (int i = 0; i < 7; ++i)
            fields.value[i] = dunmar::dm_utf8_str(values[i]);
        return Zelto::zlAddKey(file, fields);
    }
    // Saves the keys given after any added before, then opens the window over them.
    void openWith(std::initializer_list<std::pair<const char*, const char*>> keys) {
        for (const auto& key : keys)
            ASSERT_NE(nullptr, addKey(key.first, key.second)) << key.first;
        ASSERT_EQ(Zelto::zlSaved, Zelto::zlSaveKeyFile(file));
        open();
    }
    void open() {
        window = std::make_unique<Zelto::mainWindow>(file, dunmar::dm_string(L"2.2.1"));
        ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
        pump();
    }
    HWND main() const { return window->window(); }
    HWND child(int id) const { return GetDlgItem(main(), id); }
    static void pump() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    std::string bytesOnDisk() const { return readBytes(path); }
    // The names of the keys (or of the trash) in the file on disk, read with password.
    Names namesOnDisk(const char* password = kShortPass, bool trash = false) const {
        Zelto::zlKeyFile again;
        EXPECT_EQ(0, again.set_pass_phrase(password));
        EXPECT_EQ(Zelto::zlReadOk, again.readFile(widePath(path)));
        Names names;
        const Zelto::zlFileItem* from =
            trash ? static_cast<const Zelto::zlFileItem*>(again.trash()) : again.keys();
        for (const Zelto::zlFileItemKey* key : Zelto::zlKeysOf(from))
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
    Rows rows() const {
        return itemTexts(child(Zelto::idKeyList), LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
    }
    int selected() const {
        return static_cast<int>(SendMessageW(child(Zelto::idKeyList), LB_GETCURSEL, 0, 0));
    }
    std::wstring statusText() const { return textOf(child(Zelto::idStatusLabel)); }

    // What the user's actions send to the window.
    void selectRow(int index) {
        HWND list = child(Zelto::idKeyList);
        SendMessageW(list, LB_SETCURSEL, index, 0);
        SendMessageW(main(), WM_COMMAND, MAKEWPARAM(Zelto::idKeyList, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    void command(int id) { SendMessageW(main(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }
    void press(int id) { SendMessageW(child(id), BM_CLICK, 0, 0); }
    // The bar item's popup with choice picked from it (0: looked at, nothing chosen).
    void menu(UINT barItem, UINT choice) {
        hooks().choice = choice;
        command(static_cast<int>(barItem));
    }
    // The same with the steps acting on the modal windows that it opens.
    bool pressWith(int id, std::vector<DialogStep> steps) {
        return runWithModals([&] { press(id); }, std::move(steps));
    }

    Zelto::zlKeyFile file;
    Zelto::zlFileItemSettings* settings = nullptr;
    std::unique_ptr<Zelto::mainWindow> window;
    TempDir dir;
    std::filesystem::path path;
};

// Steps on the modal windows a command opens.
inline DialogStep answer(int id) {
    return [id](HWND modal) { SendMessageW(modal, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); };
}
inline DialogStep enter(int id, std::wstring text) {
    return [id, text](HWND modal) { setText(modal, id, text); };
}
// Records the front window's title, then its static texts (a message box's text is one).
inline DialogStep look(Rows& seen) {
    return [&seen](HWND modal) {
        seen = staticTexts(modal);
        seen.insert(seen.begin(), textOf(modal));
    };
}

}  // namespace ztest
