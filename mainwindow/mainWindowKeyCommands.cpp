#include <string>

#include "app/zlKeyFileStore.h"
#include "app/zlTexts.h"
#include "dialogs/DlgEditKey.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowTexts.h"
#include "mainwindow/zlClipboard.h"
#include "model/zlTypeCodes.h"
#include "ui/shellOpen.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr size_t kCopiedCapacity = 5000;
constexpr int32_t kShortMessageTicks = 10;
constexpr int32_t kMinimumClearSeconds = 6;

const wchar_t* shellErrorText(intptr_t result) {
    switch (result) {
        case 0:
            return L"The operating system is out of memory or resources.";
        case 2:
            return L"The specified file was not found.";
        case 3:
            return L"The specified path was not found.";
        case 5:
            return L"The operating system denied access to the specified file.";
        case 8:
            return L"There was not enough memory to complete the operation.";
        case 11:
            return L"The .exe file is invalid (non-Win32\u00AE .exe or error in .exe image).";
        case 26:
            return L"A sharing violation occurred.";
        case 27:
            return L"The file name association is incomplete or invalid.";
        case 28:
            return L"The DDE transaction could not be completed because the request timed out.";
        case 29:
            return L"The DDE transaction failed.";
        case 30:
            return L"The DDE transaction could not be completed because other DDE transactions "
                   L"were being processed.";
        case 31:
            return L"There is no application associated with the given file name extension.";
        case 32:
            return L"The specified dynamic-link library was not found.";
        default:
            return L"unspecified error while processing.";
    }
}

// The localised pattern with its "%s" replaced by the field's name, cut to the size of the
// message buffer. Done by hand: the pattern comes from a table and is no format string.
dm_string copiedMessage(const wchar_t* pattern, const wchar_t* field) {
    std::wstring text(pattern);
    const size_t at = text.find(L"%s");
    if (at != std::wstring::npos)
        text.replace(at, 2, field);
    if (text.size() >= kCopiedCapacity)
        text.resize(kCopiedCapacity - 1);
    return dm_string(text);
}

}  // namespace

zlFileItemKey* mainWindow::selectedKey() const {
    if (!window_)
        return nullptr;
    return keyOfRow(
        static_cast<int>(SendMessageW(controls_->keyList.handle(), LB_GETCURSEL, 0, 0)));
}

void mainWindow::copyField(int typeCode, int fieldText) {
    const zlFileItemKey* key = selectedKey();
    if (!key || !zlClipboard::instance().copy(window_, key->field(typeCode)))
        return;
    const dm_string message = copiedMessage(zlText(textCopied), zlText(fieldText));
    const zlFileItemSettings* settings = file_.settings();
    const int32_t clear = settings ? settings->autoClearClipboard : 0;
    status_.show(clear >= kMinimumClearSeconds ? clear : kShortMessageTicks, {message.c_str()});
}

void mainWindow::openAddress() {
    const zlFileItemKey* key = selectedKey();
    if (!key)
        return;
    dunmar::dm_utf8_str address;
    key->plainField(zlTypeKeyUrl, address);
    if (address.empty()) {
        status_.show(0, {zlText(textOpenFailed), L" (", L"empty filepathname", L")"});
        return;
    }
    const intptr_t result = dunmar::shellOpen(window_, address.to_wide());
    if (result > 32)
        status_.show(kShortMessageTicks, {zlText(textOpened)});
    else
        status_.show(0, {zlText(textOpenFailed), L" (", shellErrorText(result), L")"});
}

void mainWindow::editKey(zlFileItemKey* key) {
    DlgEditKey dialog(instance_, window_, file_, key);
    if (dialog.run() != IDOK)
        return;
    if (zlSaveKeyFile(file_) == zlSaved)
        fill();
    else
        showSaveFailure();
}

void mainWindow::deleteKey() {
    zlFileItemKey* key = selectedKey();
    if (!key)
        return;
    const int row = static_cast<int>(SendMessageW(controls_->keyList.handle(), LB_GETCURSEL, 0, 0));
    dm_string question(L"Really delete key \"");
    question.append(key->plainName().to_wide());
    question.append(L"\" ?");
    if (MessageBoxW(nullptr, question.c_str(), zlText(zlTextAppName), MB_YESNO) != IDYES)
        return;
    if (!file_.moveKeyToTrash(key))
        return;
    if (zlSaveKeyFile(file_) != zlSaved) {
        showSaveFailure();
        return;
    }
    fill();
    // Index -1 for the first row clears the selection.
    SendMessageW(controls_->keyList.handle(), LB_SETCURSEL, static_cast<WPARAM>(row - 1), 0);
    onSelectionChange();
}

void mainWindow::toggleStayTop() {
    stayTop_ = stayTop_ ? 0 : 1;
    // The box is no automatic check box: it shows the state only when told.
    SendMessageW(controls_->stayTop.handle(), BM_SETCHECK, stayTop_ ? BST_CHECKED : BST_UNCHECKED,
                 0);
    SetWindowPos(window_, stayTop_ ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
}

}  // namespace Zelto
