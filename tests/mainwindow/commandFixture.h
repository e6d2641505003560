#pragma once

#include <string>
#include <vector>

#include "app/zlKeyFileStore.h"
#include "app/zlKeyFilter.h"
#include "mainWindowFixture.h"
#include "model/zlVerify.h"
#include "res/resource.h"
#include "ui/popupMenu.h"

namespace ztest {

// One item of a popup menu as the window built it.
struct MenuItem {
    UINT id;
    std::wstring text;
    bool checked;
};

// The main window over a key file on disk, with the seams of its commands in place: popup
// choices come from the test, the pointer stands still, a cancelled lock only records the
// exit, and the timer does nothing unless a test lets it.
class CommandTest : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        settings->verify = Zelto::zlMakeVerifyValue(dunmar::dm_utf8_str(kShortPass));
        path = dir / "Zelto.xml";
        file.setPath(widePath(path));
        Zelto::mainWindowGlobals().paused = true;
        popupChoice() = 0;
        lastPopup().clear();
        exitCodes().clear();
        cursor() = POINT{100, 100};
        dunmar::setPopupTracker(&choosePopupItem);
        Zelto::setProcessEnder(&recordExit);
        Zelto::setCursorReader(&fakeCursor);
    }
    void TearDown() override {
        MainWindowTest::TearDown();
        dunmar::setPopupTracker(nullptr);
        Zelto::setProcessEnder(nullptr);
        Zelto::setCursorReader(nullptr);
        // Exit posts the quit message; it must not end a later test's modal loop.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    }

    void save() { ASSERT_EQ(Zelto::zlSaved, Zelto::zlSaveKeyFile(file)); }
    std::string bytesOnDisk() const { return readBytes(path); }

    // The file on disk as the program would read it with password.
    std::vector<std::string> namesOnDisk(const char* password = kShortPass) const {
        Zelto::zlKeyFile again;
        EXPECT_EQ(0, again.set_pass_phrase(password));
        EXPECT_EQ(Zelto::zlReadOk, again.readFile(widePath(path)));
        std::vector<std::string> names;
        for (const Zelto::zlFileItemKey* key : Zelto::zlKeysOf(again.keys()))
            names.push_back(key->plainName().str());
        return names;
    }

    // A button or menu command as Windows sends it.
    void command(int id) { SendMessageW(main(), WM_COMMAND, MAKEWPARAM(id, 0), 0); }
    void press(int id) { SendMessageW(child(id), BM_CLICK, 0, 0); }
    // The bar item's popup, with choice picked from it.
    void menu(UINT barItem, UINT choice) {
        popupChoice() = choice;
        command(static_cast<int>(barItem));
    }
    // Runs the command with the steps acting on the dialogs and boxes it opens.
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

    TempDir dir;
    std::filesystem::path path;

  private:
    static UINT choosePopupItem(HMENU menu, HWND) {
        lastPopup().clear();
        const int count = GetMenuItemCount(menu);
        for (int i = 0; i < count; ++i) {
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

// Steps of the modal windows a command opens.
inline DialogStep answer(int id) {
    return [id](HWND modal) { SendMessageW(modal, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); };
}
inline DialogStep enter(int id, std::wstring text) {
    return [id, text](HWND modal) { setText(modal, id, text); };
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
