#include "dialogs/DlgAbout.h"

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
constexpr int kTextAbout = 17;
}  // namespace

DlgAbout::DlgAbout(HINSTANCE instance, HWND parent)
    : DlgBase(instance, parent, IDD_BASE_SIZEABLE, 400, 180) {}

DlgAbout::~DlgAbout() = default;

dm_string DlgAbout::versionLine() {
    dm_string line(zlText(zlTextAppName));
    line.append(L" - ");
    line.append(L"Version ");
    line.append(zlVersionText());
    line.append(L" (Build: ");
    line.append(zlBuildDate());
    line.append(L")");
    return line;
}

dm_string DlgAbout::notice() {
    return dm_string(L"Made by the Zelto makers. All rights reserved.");
}

bool DlgAbout::createControls() {
    addChild(version_, L"STATIC", versionLine(), version_.style(), 0, IDC_ABOUT_VERSION);
    addChild(notice_, L"STATIC", notice(), notice_.style(), 0, IDC_ABOUT_NOTICE);
    if (link_.create(instance(), window(), dm_string(kMakerAddress)))
        listControl(link_);
    addChild(ok_, L"BUTTON", zlText(kTextOk), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
             WS_EX_APPWINDOW, IDOK);
    return true;
}

bool DlgAbout::layout(int width, int height) {
    const SIZE line = dunmar::textExtent(version_.handle(), versionLine());
    const SIZE address = dunmar::textExtent(link_.handle(), link_.text());
    const int h = line.cy + 8;
    const int w = width - 16;
    version_.place(8, 8, w, h);
    notice_.place(8, h + 16, w, h);
    // Only the text itself is the link, not the empty space beside it.
    link_.place(8, 2 * h + 24, std::min(w, static_cast<int>(address.cx) + 4), h);
    ok_.place(width - 88, height - h - 8, 80, h);
    return true;
}

dm_string DlgAbout::title() {
    return zlDialogTitle(zlText(kTextAbout));
}

bool DlgAbout::onInit() {
    if (!DlgBase::onInit())
        return false;
    resize(480, 200);
    return true;
}

bool DlgAbout::onCommand(int id) {
    if (!window())
        return false;
    if (id == IDC_HYPERLINK)
        dunmar::shellOpen(window(), dm_string(kMakerAddress));
    else if (id == IDOK || id == IDCANCEL)
        end(id);
    return true;
}

}  // namespace Zelto
