#include "app/zlFileSet.h"
#include "app/zlStartupRead.h"
#include "core/dm_system.h"
#include "dialogs/DlgSetMasterPw.h"
#include "model/zlVerify.h"
#include "zelto/zlApp.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_system;
using dunmar::dm_utf8_str;

namespace {
constexpr UINT kReadFailureFlags = MB_OK | MB_ICONINFORMATION | MB_SYSTEMMODAL;  // 0x1040
}

const dm_string& zlApp::keyFilePath() {
    if (!pathKnown_) {
        path_ = zlFileSet::ofThisProgram().keyFile;
        pathKnown_ = true;
    }
    return path_;
}

// On first use the user sets the master password and the program writes an empty key file
// with its verify value.
bool zlApp::makeFirstKeyFile() {
    const dm_string& path = keyFilePath();
    if (dm_system::file_exists(path))
        return true;
    dm_utf8_str verify;
    DlgSetMasterPw dialog(instance_, nullptr);
    if (dialog.run() == IDOK)
        verify = zlMakeVerifyValue(dialog.password().to_utf8());
    file_.setPath(path);
    // The skeleton tests once more that no file is there.
    if (verify.empty() || !file_.writeSkeleton(verify)) {
        zlShowMessage(zlCreateFailureText(path));
        return false;
    }
    return true;
}

bool zlApp::readWithConversion(const dm_utf8_str& password) {
    dm_string detail;
    const zlFileSet files = zlFileSet::ofThisProgram();
    if (zlReadKeyFileWithConversion(file_, files, password, detail))
        return true;
    zlShowMessage(zlReadFailureText(keyFilePath(), detail), kReadFailureFlags);
    return false;
}

}  // namespace Zelto
