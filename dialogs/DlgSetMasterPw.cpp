#include "dialogs/DlgSetMasterPw.h"

#include "app/zlPasswordRules.h"
#include "app/zlTexts.h"
#include "dialogs/dialogText.h"
#include "res/resource.h"
#include "ui/windowText.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int kTextOk = 14;
constexpr int kTextCancel = 15;
constexpr int kTextSetMasterPw = 33;
constexpr int kTextPassword = 34;
constexpr int kTextVerify = 35;
constexpr int kTextWarning = 36;

}  // namespace

DlgSetMasterPw::DlgSetMasterPw(HINSTANCE instance, HWND parent)
    : DlgBase(instance, parent, IDD_SET_MASTER_PW, 320, 160, -1, -1) {}

DlgSetMasterPw::~DlgSetMasterPw() = default;

bool DlgSetMasterPw::onInit() {
    HWND dialog = window();
    if (!dialog)
        return false;
    SetDlgItemTextW(dialog, IDC_SETPW_PASSWORD_LABEL, zlText(kTextPassword));
    SetDlgItemTextW(dialog, IDC_SETPW_VERIFY, L"");
    SetDlgItemTextW(dialog, IDC_SETPW_PASSWORD, L"");
    SetDlgItemTextW(dialog, IDC_SETPW_VERIFY_LABEL, zlText(kTextVerify));
    dm_string warning(L" \r\n");
    warning.append(zlText(kTextWarning));
    SetDlgItemTextW(dialog, IDC_SETPW_WARNING, warning.c_str());
    SetDlgItemTextW(dialog, IDCANCEL, zlText(kTextCancel));
    SetDlgItemTextW(dialog, IDOK, zlText(kTextOk));
    return DlgBase::onInit();
}

bool DlgSetMasterPw::onCommand(int id) {
    if (!window())
        return false;
    if (id == IDOK)
        accept();
    else if (id == IDCANCEL)
        end(IDCANCEL);
    return true;
}

dm_string DlgSetMasterPw::title() {
    return zlDialogTitle(zlText(kTextSetMasterPw));
}

void DlgSetMasterPw::accept() {
    HWND dialog = window();
    const dm_string password = dunmar::windowText(GetDlgItem(dialog, IDC_SETPW_PASSWORD));
    const dm_string verify = dunmar::windowText(GetDlgItem(dialog, IDC_SETPW_VERIFY));
    accepted_.clear();
    dm_string message = zlPasswordRuleMessage(password);
    if (message.empty() && !password.equals(verify))
        message = zlPasswordMismatchMessage();
    if (!message.empty()) {
        dunmar::setWindowText(GetDlgItem(dialog, IDC_SETPW_MESSAGE), message);
        return;
    }
    accepted_ = password;
    end(IDOK);
}

}  // namespace Zelto
