#include "cli/zlcSession.h"

#include "app/zlConversion.h"
#include "app/zlKeyFileStore.h"
#include "app/zlTexts.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcFiles.h"
#include "core/dm_system.h"
#include "model/zlVerify.h"

namespace Zelto {

using dunmar::dm_system;
using dunmar::dm_utf8_str;

namespace {

const char* readReason(int result) {
    switch (result) {
        case zlReadEmptyPath:
            return "no path";
        case zlReadNoFile:
            return "no such file";
        case zlReadNotReadable:
            return "not readable";
        case zlReadEmptyFile:
            return "the file is empty";
        case zlReadFailed:
            return "it could not be read into memory";
        case zlReadNoParser:
            return "the XML parser could not be created";
        default:
            return "unknown reason";
    }
}

}  // namespace

std::string zlcSession::readFailure(const std::string& reason) const {
    return "failed to read \"" + zlcPathText(files_.keyFile) + "\" (" + reason + ")";
}

int zlcSession::open() {
    if (!files_.valid())
        return zlcFail(io_, zlcExitFile, zlcPathText(files_.detail));
    if (!dm_system::file_exists(files_.keyFile))
        return zlcFail(io_, zlcExitFile, readFailure("no such file; 'zelto-cli init' creates one"));
    if (!io_.readSecret("Master password: ", password_))
        return zlcFail(io_, zlcExitUsage, "no master password was given");
    if (file_.set_pass_phrase(password_.c_str()) != 0)
        return zlcFail(io_, zlcExitWrongPassword, "wrong master password");
    const int read = this->read();
    if (read != zlcExitOk)
        return read;

    const int check = zlCheckPassword(file_);
    if (check == zlPasswordNoSettings)
        return zlcFail(io_, zlcExitFile, readFailure("<settings> section not found"));
    if (check != zlPasswordRight)
        return zlcFail(io_, zlcExitWrongPassword, "wrong master password");
    if (!file_.keys())
        return zlcFail(io_, zlcExitFile, readFailure("KeyList not found"));
    // Saving writes the current language's name: keep the file's.
    zlSetLanguageFromSettings(file_.settings()->language);
    return zlcExitOk;
}

int zlcSession::read() {
    const int result = file_.readFile(files_.keyFile);
    if (result == zlReadOlderFormat)
        return readOlderFormat();
    if (result != zlReadOk)
        return zlcFail(io_, zlcExitFile, readFailure(readReason(result)));
    return zlcExitOk;
}

int zlcSession::readOlderFormat() {
    dunmar::dm_string detail;
    const int result = zlReadWithConversion(file_, files_, dm_utf8_str(password_), detail,
                                            zlRunConverterInProcess);
    if (result != zlReadOk) {
        // The converter's own answer to a wrong password ends the detail text.
        const std::string reason = zlcPathText(detail);
        const std::string wrong = "(Incorrect password)";
        const bool wrongPassword =
            reason.size() >= wrong.size() &&
            reason.compare(reason.size() - wrong.size(), wrong.size(), wrong) == 0;
        return zlcFail(io_, wrongPassword ? zlcExitWrongPassword : zlcExitFile,
                       readFailure(reason));
    }
    return zlcExitOk;
}

// The same check as every save makes; here a change writes nothing at all, not even aside.
int zlcSession::checkUnchanged() {
    if (zlCheckKeyFileOnDisk(file_) != zlSaved)
        return zlcFail(io_, zlcExitFile,
                       "\"" + zlcPathText(files_.keyFile) +
                           "\" was changed by another program since it was read; nothing "
                           "was written");
    return zlcExitOk;
}

int zlcSession::save() {
    const int unchanged = checkUnchanged();
    if (unchanged != zlcExitOk)
        return unchanged;
    if (zlSaveKeyFile(file_) != zlSaved)
        return zlcFail(io_, zlcExitFile, "failed to write \"" + zlcPathText(files_.keyFile) + "\"");
    return zlcExitOk;
}

}  // namespace Zelto
