#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowState.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"

namespace ztest {

struct KeySpec {
    const char* name;
    const char* label;
};

// A key file in memory and the real main window over it, as the program makes them.
class MainWindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
        Zelto::mainWindowGlobals() = Zelto::mainWindowState();
        ASSERT_EQ(0, file.set_pass_phrase(kShortPass));
        settings = new Zelto::zlFileItemSettings(&file);
        file.root().appendChild(settings);
    }
    void TearDown() override {
        window.reset();
        Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
    }

    Zelto::zlFileItemKey* addKey(const char* name, const char* label) {
        Zelto::zlKeyFields fields;
        fields.value[0] = dunmar::dm_utf8_str(name);
        fields.value[1] = dunmar::dm_utf8_str(label);
        fields.value[3] = dunmar::dm_utf8_str("secret");
        return Zelto::zlAddKey(file, fields);
    }
    void addKeys(std::initializer_list<KeySpec> keys) {
        for (const KeySpec& key : keys)
            ASSERT_NE(nullptr, addKey(key.name, key.label)) << key.name;
    }
    // An empty key list, as a new key file has.
    void addEmptyKeyList() { file.root().appendChild(new Zelto::zlFileItemKeys(&file)); }

    void open() {
        window = std::make_unique<Zelto::mainWindow>(file, dunmar::dm_string(L"2.2.1"));
        ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
        pump();
    }
    HWND main() const { return window->window(); }
    HWND child(int id) const { return GetDlgItem(window->window(), id); }

    // Lets queued messages (painting, posted notifications) run.
    static void pump() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    std::vector<std::wstring> rows() const {
        return itemTexts(child(Zelto::idKeyList), LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
    }
    std::vector<std::wstring> filterItems() const {
        return itemTexts(child(Zelto::idFilterBox), CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
    }
    // The item texts of a list or combo box, through its own count, length and text messages.
    static std::vector<std::wstring> itemTexts(HWND box, UINT count, UINT length, UINT text) {
        std::vector<std::wstring> out;
        const LRESULT n = SendMessageW(box, count, 0, 0);
        for (LRESULT i = 0; i < n; ++i) {
            std::wstring item(static_cast<size_t>(SendMessageW(box, length, i, 0)) + 1, L'\0');
            const LRESULT got = SendMessageW(box, text, i, reinterpret_cast<LPARAM>(item.data()));
            item.resize(got > 0 ? static_cast<size_t>(got) : 0);
            out.push_back(item);
        }
        return out;
    }
    // Range of the partial-show bar as the control itself reports it.
    std::pair<int, int> barRange() const {
        int low = -1;
        int high = -1;
        SendMessageW(child(Zelto::idPartialShow), SBM_GETRANGE, reinterpret_cast<WPARAM>(&low),
                     reinterpret_cast<LPARAM>(&high));
        return {low, high};
    }
    int barPosition() const {
        return static_cast<int>(SendMessageW(child(Zelto::idPartialShow), SBM_GETPOS, 0, 0));
    }

    // What a user's choice in the control sends to the window.
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
    std::wstring statusText() const { return textOf(child(Zelto::idStatusLabel)); }
    bool enabled(int id) const { return IsWindowEnabled(child(id)) != FALSE; }

    Zelto::zlKeyFile file;
    Zelto::zlFileItemSettings* settings = nullptr;
    std::unique_ptr<Zelto::mainWindow> window;
};

using Rows = std::vector<std::wstring>;

}  // namespace ztest
