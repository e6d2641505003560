#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "core/dm_string.h"
#include "core/dm_stringlist.h"
#include "app/zlFileSet.h"
#include "mainwindow/mainWindowControls.h"
#include "mainwindow/mainWindowListRows.h"
#include "mainwindow/mainWindowStatus.h"
#include "model/zlKeyFile.h"
#include "ui/wndTimer.h"

namespace Zelto {

// The program's window once the user has logged in: the keys of the key file as a list
// that a label filters and that shows only the first characters of each row, the buttons
// for the commands and a status line.
class mainWindow {
  public:
    // titleSuffix goes in brackets after the product name in the title.
    mainWindow(zlKeyFile& file, const dunmar::dm_string& titleSuffix);
    virtual ~mainWindow();

    // Registers the window class once, destroys a window made before, then creates, shows
    // and lays out a new one and starts its timer. True when the window exists.
    bool create(HINSTANCE instance, int showCommand);
    HWND window() const { return window_; }

    // Rebuilds the filter box and the list from the key file; the number of rows (1 for
    // the single "No keys found!" row), 0 without a window.
    int fill();
    // Rewrites every key row for a partial-show position. False without window or list.
    bool render(int32_t position);
    // The key of a list row; null outside the rows.
    zlFileItemKey* keyOfRow(int index) const;
    size_t rowCount() const { return rows_.size(); }

    // WM_COMMAND: true when the command was handled. Button and menu commands restart the
    // timer around them.
    bool onCommand(int notification, int id);
    // One command of a button, menu item or accelerator; false for an unknown one.
    bool runCommand(int id);
    // The key list's selection changed: buttons and the status line follow it.
    void onSelectionChange();
    // Another filter label was chosen.
    void onFilterChange();
    // A scroll bar moved to position; only the partial-show bar is one of ours.
    void onScroll(int id, int32_t position);

    // Shrinks the window to a sliver and asks for the master password until it is right;
    // cancelling ends the program. False when a lock is already running.
    bool lock();
    // The one-second timer: pointer movement is activity, then one tick.
    void onTimer();
    // One second: the automatic lock, the clipboard clearing, the status countdown.
    void tick();
    static void CALLBACK timerProc(HWND window, UINT message, UINT_PTR id, DWORD time);

    // Texts of the controls and of the menu bar in the current language, then a new layout.
    void localise();
    // Places the controls for the last client size.
    void layout();

    const dunmar::dm_string& filterText() const { return filter_; }
    mainWindowControls& controls() { return *controls_; }
    mainWindowStatus& status() { return status_; }
    dunmar::wndTimer& timer() { return timer_; }
    zlKeyFile& keyFile() { return file_; }
    HFONT font() const { return font_; }
    bool stayOnTop() const { return stayTop_ != 0; }
    bool flag() const { return flag_ != 0; }

    // The object of a main window, also while it is being created.
    static mainWindow* fromWindow(HWND window);
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    mainWindow(const mainWindow&) = delete;
    mainWindow& operator=(const mainWindow&) = delete;

  private:
    bool registerClass(HINSTANCE instance);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void onCreate();
    void onDestroyed();
    LRESULT onColorStatic(HDC dc, HWND child) const;
    void onScrollMessage(WPARAM wParam, LPARAM lParam);
    void fillFilterBox(const dunmar::dm_stringlist& labels);
    // The masked texts of the key rows for a partial-show position.
    std::vector<dunmar::dm_string> rowTexts(int32_t position);
    int textHeight() const;

    zlFileItemKey* selectedKey() const;
    void copyField(int typeCode, int fieldText);
    void openAddress();
    void editKey(zlFileItemKey* key);
    void deleteKey();
    void toggleStayTop();
    bool showPopup(UINT barItem);
    void showSettings();
    void showAbout();
    void changeMasterPassword();
    void switchLanguage(int language);
    void backup();
    void exportToCloud();
    void showSaveFailure();
    zlFileSet fileSet() const;
    bool askToUnlock();

    HWND window_ = nullptr;
    int32_t clientWidth_ = 66;
    int32_t clientHeight_ = 99;
    dunmar::wndTimer timer_;
    uint8_t flag_ = 1;  // toggled by command 1024
    uint8_t stayTop_ = 0;
    std::unique_ptr<mainWindowControls> controls_;
    mainWindowStatus status_;
    dunmar::dm_string filter_;
    std::vector<zlFileItemKey*> rows_;
    mainWindowListRows listRows_;  // deciphered labels and written rows, for fast rewrites

    zlKeyFile& file_;
    dunmar::dm_string titleSuffix_;
    HINSTANCE instance_ = nullptr;
    HFONT font_ = nullptr;
    bool replacing_ = false;  // an old window is destroyed to make a new one
};

}  // namespace Zelto
