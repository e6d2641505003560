#include "dialogs/DlgSettings.h"

#include <algorithm>

#include "app/zlKeyFileStore.h"
#include "app/zlSettingsRules.h"
#include "app/zlTexts.h"
#include "core/dm_format.h"
#include "dialogs/dialogText.h"
#include "res/resource.h"
#include "ui/textExtent.h"
#include "ui/windowText.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int kTextOk = 14;
constexpr int kTextCancel = 15;
constexpr int kTextSettings = 24;
constexpr int kTextAutoLock = 40;
constexpr int kTextAutoClear = 41;
constexpr int kTextSeconds = 42;
constexpr int kTextShowSelected = 63;

DlgSettings::keyFileSaver saveFile = &zlSaveKeyFile;

dm_string caption(int textId) {
    dm_string text(zlText(textId));
    text.append(L" (");
    text.append(zlText(kTextSeconds));
    text.append(L"):");
    return text;
}

dm_string number(int32_t value) {
    return dunmar::dm_utf8_str(dunmar::dm_format_long(value)).to_wide();
}

}  // namespace

DlgSettings::DlgSettings(HINSTANCE instance, HWND parent, zlKeyFile& file)
    : DlgBase(instance, parent, IDD_SETTINGS, 320, 160, -1, -1), file_(file) {}

DlgSettings::~DlgSettings() = default;

void DlgSettings::setKeyFileSaver(keyFileSaver saver) {
    saveFile = saver ? saver : &zlSaveKeyFile;
}

bool DlgSettings::onInit() {
    HWND dialog = window();
    if (!dialog)
        return false;
    SetDlgItemTextW(dialog, IDC_SETTINGS_AUTOLOCK_LABEL, caption(kTextAutoLock).c_str());
    SetDlgItemTextW(dialog, IDC_SETTINGS_CLIPBOARD_LABEL, caption(kTextAutoClear).c_str());
    SetDlgItemTextW(dialog, IDC_SETTINGS_SHOWKEY_LABEL, caption(kTextShowSelected).c_str());
    if (const zlFileItemSettings* settings = file_.settings()) {
        SetDlgItemTextW(dialog, IDC_SETTINGS_AUTOLOCK, number(settings->autolock).c_str());
        SetDlgItemTextW(dialog, IDC_SETTINGS_CLIPBOARD,
                        number(settings->autoClearClipboard).c_str());
        SetDlgItemTextW(dialog, IDC_SETTINGS_SHOWKEY, number(settings->showSelectedKey).c_str());
    }
    SetDlgItemTextW(dialog, IDCANCEL, zlText(kTextCancel));
    SetDlgItemTextW(dialog, IDOK, zlText(kTextOk));
    if (!DlgBase::onInit())
        return false;
    fitCaptions();
    return true;
}

bool DlgSettings::onCommand(int id) {
    if (!window())
        return false;
    if (id == IDOK) {
        store();
        end(IDOK);
    } else if (id == IDCANCEL) {
        end(IDCANCEL);
    }
    return true;
}

dm_string DlgSettings::title() {
    return zlDialogTitle(zlText(kTextSettings));
}

void DlgSettings::fitCaptions() {
    // The template's caption column is too narrow for the shared font in some languages:
    // widen it by what the longest caption lacks and move the edits and buttons along.
    static const int captions[] = {IDC_SETTINGS_AUTOLOCK_LABEL, IDC_SETTINGS_CLIPBOARD_LABEL,
                                   IDC_SETTINGS_SHOWKEY_LABEL};
    static const int followers[] = {IDC_SETTINGS_AUTOLOCK, IDC_SETTINGS_CLIPBOARD,
                                    IDC_SETTINGS_SHOWKEY, IDOK, IDCANCEL};
    HWND dialog = window();
    int lacking = 0;
    for (int id : captions) {
        HWND label = GetDlgItem(dialog, id);
        RECT inside;
        if (!label || !GetClientRect(label, &inside))
            continue;
        const SIZE need = dunmar::textExtent(label, dunmar::windowText(label));
        lacking = std::max(lacking, static_cast<int>(need.cx - inside.right));
    }
    if (lacking <= 0)
        return;
    auto shift = [dialog](int id, int dx, int grow) {
        HWND child = GetDlgItem(dialog, id);
        RECT place;
        if (!child || !GetWindowRect(child, &place))
            return;
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
        SetWindowPos(child, nullptr, place.left + dx, place.top, place.right - place.left + grow,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    };
    for (int id : captions)
        shift(id, 0, lacking);
    for (int id : followers)
        shift(id, lacking, 0);
    RECT frame;
    if (GetWindowRect(dialog, &frame))
        resize(frame.right - frame.left + lacking, frame.bottom - frame.top);
}

void DlgSettings::store() {
    struct setting {
        int editId;
        int32_t (*clamp)(long);
        int32_t zlFileItemSettings::*field;
    };
    static const setting order[] = {
        {IDC_SETTINGS_AUTOLOCK, &zlClampAutoSeconds, &zlFileItemSettings::autolock},
        {IDC_SETTINGS_CLIPBOARD, &zlClampAutoSeconds, &zlFileItemSettings::autoClearClipboard},
        {IDC_SETTINGS_SHOWKEY, &zlClampShowSelectedSeconds, &zlFileItemSettings::showSelectedKey},
    };
    failedSaves_ = 0;
    // Each value is written and saved before the next edit is read.
    for (const setting& item : order) {
        const dm_string text = dunmar::windowText(GetDlgItem(window(), item.editId));
        const int32_t value = item.clamp(zlSecondsFromText(text));
        zlFileItemSettings* settings = file_.settings();
        if (!settings)
            continue;
        settings->*item.field = value;
        if (saveFile(file_) != zlSaved)
            ++failedSaves_;
    }
}

}  // namespace Zelto
