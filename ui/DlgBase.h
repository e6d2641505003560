#pragma once

#include <windows.h>

#include <cstdint>

#include "core/dm_string.h"
#include "ui/control.h"
#include "ui/controls.h"

namespace dunmar {

// Base of every modal dialog: runs a template through the one shared dialog procedure,
// which turns messages into the virtual operations below, gives each dialog the shared
// font and background and keeps it within its track sizes.
class DlgBase {
  public:
    // A maximum below its minimum (such as -1) means none; a minimum of 15 or less none.
    DlgBase(HINSTANCE instance, HWND parent, uint32_t templateId, int32_t minTrackWidth,
            int32_t minTrackHeight, int32_t maxTrackWidth = -1, int32_t maxTrackHeight = -1);
    virtual ~DlgBase();

    // The virtual operations, in the order every dialog keeps.
    virtual bool onInit();
    virtual bool onSelectionChanged2(int id);
    virtual bool onSelectionChanged(int id);
    virtual bool onCommand(int id);
    virtual bool onEditChange(int id);
    virtual bool onMove(int x, int sameX);
    virtual bool onSize(int sizeType, int width, int height);
    virtual bool createControls();
    virtual bool layout(int width, int height);
    virtual dm_string title();

    // Shows the dialog modally and returns its result: 1 accepted, anything else cancelled;
    // -1 when it could not be shown (no instance, no template, no display).
    INT_PTR run();

    // One procedure for all dialogs; it reaches the running dialog through its window.
    static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    // The dialog being run, if any.
    static DlgBase* current();

    HWND window() const { return window_; }
    HWND parent() const { return parent_; }
    HINSTANCE instance() const { return instance_; }
    uint32_t templateId() const { return templateId_; }
    int32_t minTrackWidth() const { return minTrackWidth_; }
    int32_t minTrackHeight() const { return minTrackHeight_; }
    int32_t maxTrackWidth() const { return maxTrackWidth_; }
    int32_t maxTrackHeight() const { return maxTrackHeight_; }
    const controls& controlSet() const { return controls_; }

    DlgBase(const DlgBase&) = delete;
    DlgBase& operator=(const DlgBase&) = delete;

  protected:
    // Creates a child of the dialog and lists its control object.
    bool addChild(control& item, const wchar_t* windowClass, const dm_string& text, DWORD style,
                  DWORD extendedStyle, uint32_t id);
    // Lists a control whose window was made another way (the hyperlink makes its own).
    void listControl(control& item) { controls_.add(&item); }
    // Ends the modal run with result; false without a window.
    bool end(INT_PTR result);
    // Sets the outer size of the dialog without moving it.
    bool resize(int width, int height);
    void setMinTrackWidth(int32_t width) { minTrackWidth_ = width; }
    void setMinTrackHeight(int32_t height) { minTrackHeight_ = height; }
    HBRUSH backgroundBrush();

  private:
    INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR eraseBackground(HDC dc);
    void applyTrackSizes(MINMAXINFO& info) const;

    int32_t minTrackWidth_;
    int32_t minTrackHeight_;
    int32_t maxTrackWidth_;
    int32_t maxTrackHeight_;
    HINSTANCE instance_;
    HWND parent_;
    HWND window_ = nullptr;
    uint32_t templateId_;
    HBRUSH brush_ = nullptr;
    controls controls_;
};

}  // namespace dunmar
