#include "dialogs/DlgEditKey.h"

#include <algorithm>

#include "app/zlKeyFields.h"
#include "app/zlPasswordRules.h"
#include "app/zlTexts.h"
#include "core/dm_guid.h"
#include "dialogs/dialogText.h"
#include "res/resource.h"
#include "ui/textExtent.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int kTextNew = 9;
constexpr int kTextOk = 14;
constexpr int kTextCancel = 15;
constexpr int kTextReplace = 68;
constexpr size_t kPasswordRow = 3;
constexpr size_t kNoteRow = 6;

struct fieldKind {
    int textId;
    int labelId;
    int editId;
};

// In screen order, which is also the order of zlKeyFieldTypes.
constexpr fieldKind kFields[DlgEditKey::kFieldCount] = {
    {2, IDC_EDITKEY_NAME_LABEL, IDC_EDITKEY_NAME},
    {3, IDC_EDITKEY_LABEL_LABEL, IDC_EDITKEY_LABEL},
    {4, IDC_EDITKEY_USER_LABEL, IDC_EDITKEY_USER},
    {5, IDC_EDITKEY_PW_LABEL, IDC_EDITKEY_PW},
    {6, IDC_EDITKEY_EMAIL_LABEL, IDC_EDITKEY_EMAIL},
    {7, IDC_EDITKEY_URL_LABEL, IDC_EDITKEY_URL},
    {8, IDC_EDITKEY_NOTE_LABEL, IDC_EDITKEY_NOTE},
};

constexpr DWORD kLineEditStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;
constexpr DWORD kNoteEditStyle =
    WS_CHILD | WS_VISIBLE | WS_BORDER | ES_MULTILINE | WS_VSCROLL | ES_AUTOVSCROLL | ES_WANTRETURN;
constexpr DWORD kButtonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON;

DlgEditKey::guidSource newGuid = &dunmar::dm_new_guid_text;

}  // namespace

DlgEditKey::DlgEditKey(HINSTANCE instance, HWND parent, zlKeyFile& file, zlFileItemKey* key)
    : DlgBase(instance, parent, IDD_BASE_SIZEABLE, 480, 320), file_(file), key_(key) {}

DlgEditKey::~DlgEditKey() = default;

void DlgEditKey::setGuidSource(guidSource source) {
    newGuid = source ? source : &dunmar::dm_new_guid_text;
}

bool DlgEditKey::createControls() {
    for (size_t i = 0; i < kFieldCount; ++i) {
        fieldRow& row = rows_[i];
        addChild(row.label, L"STATIC", zlText(kFields[i].textId), row.label.style(), 0,
                 kFields[i].labelId);
        addChild(row.edit, L"EDIT", dm_string(), i == kNoteRow ? kNoteEditStyle : kLineEditStyle, 0,
                 kFields[i].editId);
        if (i == kPasswordRow) {
            addChild(propose_, L"BUTTON", zlText(kTextNew), kButtonStyle, WS_EX_APPWINDOW,
                     IDC_EDITKEY_PROPOSE);
        }
    }
    addChild(ok_, L"BUTTON", zlText(kTextOk), kButtonStyle | BS_DEFPUSHBUTTON, WS_EX_APPWINDOW,
             IDOK);
    addChild(cancel_, L"BUTTON", zlText(kTextCancel), kButtonStyle, WS_EX_APPWINDOW, IDCANCEL);
    return true;
}

bool DlgEditKey::layout(int width, int height) {
    // A column of labels as wide as the widest, the edits filling the rest; the note takes
    // what the single-line rows and the button row leave.
    int labelWidth = 0;
    int t = 0;
    for (const fieldRow& row : rows_) {
        const SIZE size = dunmar::textExtent(row.label.handle(), row.label.text());
        labelWidth = std::max(labelWidth, static_cast<int>(size.cx));
        t = std::max(t, static_cast<int>(size.cy));
    }
    const int h = t + 8;
    const int step = h + 6;
    const int editX = 8 + labelWidth + 12;
    const int editWidth = width - editX - 8;
    for (size_t i = 0; i < kNoteRow; ++i) {
        const int y = 8 + static_cast<int>(i) * step;
        rows_[i].label.place(8, y + 4, labelWidth + 4, h - 4);
        const int reserved = i == kPasswordRow ? 88 : 0;
        rows_[i].edit.place(editX, y, editWidth - reserved, h);
        if (i == kPasswordRow)
            propose_.place(width - 88, y, 80, h);
    }
    const int noteY = 8 + static_cast<int>(kNoteRow) * step;
    const int buttonY = height - h - 8;
    rows_[kNoteRow].label.place(8, noteY + 4, labelWidth + 4, h - 4);
    rows_[kNoteRow].edit.place(editX, noteY, editWidth, std::max(h, buttonY - 8 - noteY));
    ok_.place(width - 176, buttonY, 80, h);
    cancel_.place(width - 88, buttonY, 80, h);
    return true;
}

dm_string DlgEditKey::title() {
    return zlDialogTitle(key_ ? L"Edit" : L"New");
}

bool DlgEditKey::onInit() {
    if (!DlgBase::onInit())
        return false;
    fill();
    resize(640, 320);
    return true;
}

void DlgEditKey::fill() {
    if (key_) {
        zlKeyFields plain;
        // A field that does not decipher shows what came out; the rest are shown whole.
        zlReadKeyFields(*key_, plain);
        for (size_t i = 0; i < kFieldCount; ++i)
            rows_[i].edit.setText(plain.value[i].to_wide());
    }
    for (fieldRow& row : rows_)
        row.initial = row.edit.text();
}

bool DlgEditKey::onCommand(int id) {
    if (!window())
        return false;
    switch (id) {
        case IDOK:
            store();
            break;
        case IDCANCEL:
            end(IDCANCEL);
            break;
        case IDC_EDITKEY_PROPOSE:
            propose();
            break;
        default:
            break;
    }
    return true;
}

void DlgEditKey::store() {
    dm_string now[kFieldCount];
    bool changed = false;
    for (size_t i = 0; i < kFieldCount; ++i) {
        now[i] = rows_[i].edit.text();
        if (!now[i].equals(rows_[i].initial))
            changed = true;
    }
    if (!changed) {
        end(IDCANCEL);
        return;
    }
    zlKeyFields plain;
    for (size_t i = 0; i < kFieldCount; ++i)
        plain.value[i] = now[i].to_utf8();
    zlFileItemKey* stored = nullptr;
    if (key_)
        stored = zlStoreKeyFields(*key_, plain) ? key_ : nullptr;
    else
        stored = zlAddKey(file_, plain);
    // Nothing was written when enciphering failed: the caller must not save.
    if (!stored) {
        end(IDCANCEL);
        return;
    }
    storedKey_ = stored;
    storedName_ = now[0];
    end(IDOK);
}

void DlgEditKey::propose() {
    dunmar::controlEdit& password = rows_[kPasswordRow].edit;
    const dm_string current = password.text();
    dm_string guid;
    if (!newGuid(guid) || guid.empty())
        return;
    const dm_string proposal = zlPasswordProposal(guid);
    if (!current.empty()) {
        const int answer = MessageBoxW(window(), zlText(kTextReplace), zlText(zlTextAppName),
                                       MB_YESNO | MB_ICONQUESTION);
        if (answer != IDYES)
            return;
    }
    password.setText(proposal);
}

}  // namespace Zelto
