#include "dialogs/DlgLogIn.h"

#include "app/zlTexts.h"
#include "core/dm_convert.h"
#include "dialogs/dialogText.h"
#include "res/resource.h"
#include "ui/shellOpen.h"
#include "ui/textExtent.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

constexpr int kTextPrompt = 16;
constexpr int kTextOk = 14;
constexpr int kTextCancel = 15;
constexpr int kTextLogIn = 13;

POINT lastDialogPosition = {0, 0};
DlgLogIn::relabelHandler relabel = nullptr;

}  // namespace

DlgLogIn::DlgLogIn(HINSTANCE instance, HWND companion)
    : DlgBase(instance, companion, IDD_BASE_SIZEABLE, 320, 160), companion_(companion) {}

DlgLogIn::~DlgLogIn() = default;

POINT DlgLogIn::lastPosition() {
    return lastDialogPosition;
}

void DlgLogIn::setRelabelHandler(relabelHandler handler) {
    relabel = handler;
}

bool DlgLogIn::lengthAccepted(const dm_string& password) {
    return password.length() >= 8 && password.length() <= 127;
}

bool DlgLogIn::utf8Password(dm_utf8_str& out) const {
    bool whole = false;
    const std::string bytes = dunmar::utf16_to_utf8(password_.c_str(), password_.length(), &whole);
    out = whole ? dm_utf8_str(bytes) : dm_utf8_str();
    return whole;
}

bool DlgLogIn::runLengthTest() {
    password_.clear();
    password_ = edit_.text();
    return lengthAccepted(password_);
}

void DlgLogIn::labelButton() {
    button_.setText(zlText(runLengthTest() ? kTextOk : kTextCancel));
}

void DlgLogIn::glueCompanion() const {
    if (!window())
        return;
    RECT frame;
    if (!GetWindowRect(window(), &frame))
        return;
    lastDialogPosition = POINT{frame.left, frame.top};
    if (companion_ && IsWindow(companion_)) {
        MoveWindow(companion_, frame.left, frame.top, frame.right - frame.left,
                   frame.bottom - frame.top, TRUE);
    }
}

bool DlgLogIn::onInit() {
    glueCompanion();
    if (!DlgBase::onInit())
        return false;
    // The track minimum (the layout's width, 160 high) holds it larger than this.
    resize(209, 67);
    PostMessageW(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit_.handle()), TRUE);
    glueCompanion();
    return true;
}

bool DlgLogIn::createControls() {
    if (offerLanguage_) {
        addChild(language_, L"COMBOBOX", dm_string(),
                 WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL, 0,
                 IDC_LOGIN_LANGUAGE);
    }
    addChild(prompt_, L"STATIC", zlText(kTextPrompt), prompt_.style(), 0, IDC_LOGIN_PROMPT);
    addChild(edit_, L"EDIT", password_,
             WS_CHILD | WS_VISIBLE | WS_BORDER | ES_PASSWORD | ES_AUTOHSCROLL, 0,
             IDC_LOGIN_PASSWORD);
    link_.create(instance(), window(), dm_string(kMakerLinkText));
    if (link_.handle())
        listControl(link_);
    addChild(button_, L"BUTTON", zlText(kTextCancel),
             WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, WS_EX_APPWINDOW,
             IDC_LOGIN_BUTTON);
    if (offerLanguage_ && language_.handle()) {
        SendMessageW(language_.handle(), CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(zlText(zlTextEnglish)));
        SendMessageW(language_.handle(), CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(zlText(zlTextDeutsch)));
        language_.selectIndex(zlEffectiveLanguage() == zlLanguageGerman ? 1 : 0);
    }
    const LONG_PTR style = GetWindowLongPtrW(window(), GWL_STYLE);
    SetWindowLongPtrW(window(), GWL_STYLE, style | WS_MINIMIZEBOX);
    SetWindowPos(window(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return true;
}

bool DlgLogIn::layout(int width, int height) {
    // Measured in the font the prompt shows, the dialog's own font is the template's.
    const SIZE prompt = dunmar::textExtent(prompt_.handle(), dm_string(zlText(kTextPrompt)));
    const int t = prompt.cy;
    const int w = prompt.cx;
    const int h = t + 8;
    if (language_.handle()) {
        language_.place(width - 88, 8, 80, (language_.count() + 1) * h);
    }
    prompt_.place(8, 8, w + 16, h);
    edit_.place(8, t + 24, width - 16, h);
    link_.place(8, 2 * h + 24, width - 104, h);
    button_.place(width - 88, height - h - 8, 80, h);
    setMinTrackWidth(w + 16 + 96 + 32);
    return true;
}

dm_string DlgLogIn::title() {
    dm_string text(zlText(zlTextAppName));
    text.append(L" (");
    text.append(zlVersionText());
    text.append(L")");
    text.append(L" - ");
    text.append(zlText(kTextLogIn));
    return text;
}

bool DlgLogIn::onCommand(int id) {
    if (!window())
        return false;
    switch (id) {
        case IDC_LOGIN_BUTTON:
            end(runLengthTest() ? IDOK : IDCANCEL);
            break;
        case IDC_HYPERLINK:
            dunmar::shellOpen(window(), dm_string(kMakerAddress));
            break;
        case IDCANCEL:
            end(IDCANCEL);
            break;
        default:
            break;
    }
    return true;
}

bool DlgLogIn::onEditChange(int id) {
    if (id == IDC_LOGIN_PASSWORD)
        labelButton();
    return window() != nullptr;
}

bool DlgLogIn::onSelectionChanged(int id) {
    if (id != IDC_LOGIN_LANGUAGE || !language_.handle())
        return window() != nullptr;
    const int selected = static_cast<int>(SendMessageW(language_.handle(), CB_GETCURSEL, 0, 0));
    const dm_string name = language_.itemText(selected);
    const int before = zlEffectiveLanguage();
    if (!zlSetLanguageFromSettings(name.to_utf8()) || zlEffectiveLanguage() == before)
        return true;
    prompt_.setText(zlText(kTextPrompt));
    labelButton();
    if (relabel && companion_ && IsWindow(companion_))
        relabel(companion_);
    return true;
}

bool DlgLogIn::onMove(int, int) {
    glueCompanion();
    return true;
}

bool DlgLogIn::onSize(int sizeType, int width, int height) {
    const bool laidOut = DlgBase::onSize(sizeType, width, height);
    glueCompanion();
    return laidOut;
}

}  // namespace Zelto
