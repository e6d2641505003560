#include "dialogs/DlgFileCreated.h"

#include <algorithm>

#include "app/zlTexts.h"
#include "dialogs/dialogText.h"
#include "res/resource.h"
#include "ui/shellOpen.h"
#include "ui/textExtent.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int kTextOk = 14;
constexpr int kTextFileCreated = 66;
constexpr int kTextOpenFolder = 67;
constexpr DWORD kButtonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON;
// A very long path is cut rather than making the dialog wider than a screen.
constexpr int kWidestPath = 900;

}  // namespace

DlgFileCreated::DlgFileCreated(HINSTANCE instance, HWND parent, const dm_string& path)
    : DlgBase(instance, parent, IDD_BASE_SIZEABLE, 240, 120), path_(path) {}

DlgFileCreated::~DlgFileCreated() = default;

dm_string DlgFileCreated::folderOf(const dm_string& path) {
    const long p = std::max(path.find_last(L'/'), path.find_last(L'\\'));
    return p > 0 ? path.substring(0, p) : dm_string();
}

bool DlgFileCreated::createControls() {
    addChild(heading_, L"STATIC", zlText(kTextFileCreated), heading_.style(), 0,
             IDC_FILECREATED_HEADING);
    addChild(pathLabel_, L"STATIC", path_, pathLabel_.style(), 0, IDC_FILECREATED_PATH);
    addChild(openFolder_, L"BUTTON", zlText(kTextOpenFolder), kButtonStyle, WS_EX_APPWINDOW,
             IDC_FILECREATED_OPEN_FOLDER);
    addChild(ok_, L"BUTTON", zlText(kTextOk), kButtonStyle | BS_DEFPUSHBUTTON, WS_EX_APPWINDOW,
             IDOK);
    return true;
}

bool DlgFileCreated::layout(int width, int height) {
    (void)height;
    const SIZE pathSize = dunmar::textExtent(pathLabel_.handle(), path_);
    const SIZE heading = dunmar::textExtent(heading_.handle(), heading_.text());
    const int h = static_cast<int>(std::max(pathSize.cy, heading.cy)) + 8;
    const int w = width - 16;
    heading_.place(8, 8, w, h);
    pathLabel_.place(8, h + 16, w, h);
    const int y = 2 * h + 24;
    ok_.place(8, y, 120, h);
    openFolder_.place(144, y, 120, h);
    // Keep the path and both buttons in sight: the frame comes on top of the client area.
    RECT frame;
    RECT client;
    if (GetWindowRect(window(), &frame) && GetClientRect(window(), &client)) {
        const int frameWidth = (frame.right - frame.left) - client.right;
        const int frameHeight = (frame.bottom - frame.top) - client.bottom;
        const int text = std::min(kWidestPath, static_cast<int>(pathSize.cx));
        setMinTrackWidth(std::max(272, text + 16) + frameWidth);
        setMinTrackHeight(y + h + 8 + frameHeight);
    }
    return true;
}

dm_string DlgFileCreated::title() {
    return zlDialogTitle(zlText(kTextFileCreated));
}

bool DlgFileCreated::onInit() {
    if (!DlgBase::onInit())
        return false;
    resize(240, 120);
    return true;
}

bool DlgFileCreated::onCommand(int id) {
    if (!window())
        return false;
    if (id == IDC_FILECREATED_OPEN_FOLDER)
        dunmar::shellOpen(window(), folderOf(path_));
    else if (id == IDOK || id == IDCANCEL)
        end(id);
    return true;
}

}  // namespace Zelto
