#include "app/zlMasterPassword.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcFiles.h"
#include "cli/zlcNewPassword.h"
#include "cli/zlcSession.h"
#include "model/zlVerify.h"

namespace Zelto {

using dunmar::dm_utf8_str;

int zlcPasswd(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    std::string password;
    const int asked = zlcAskNewPassword(c.io, password);
    if (asked != zlcExitOk)
        return asked;
    if (password == session.password()) {
        c.io.out += "the new master password is the current one; nothing was written\n";
        return zlcExitOk;
    }
    const dm_utf8_str verify = zlMakeVerifyValue(dm_utf8_str(password));
    const int unchanged = session.checkUnchanged();
    if (unchanged != zlcExitOk)
        return unchanged;

    const int result =
        zlChangeMasterPassword(session.file(), dm_utf8_str(password), verify, session.files());
    if (result == zlChangeNoFolder || result == zlChangeBackupFailed)
        return zlcFail(c.io, zlcExitFile,
                       "failed to make the backup \"" + zlcPathText(session.files().backup) +
                           "\"; the master password was not changed");
    if (result != zlChangeDone)
        return zlcFail(c.io, zlcExitFile,
                       "failed to change the master password (" + std::to_string(result) + ")");
    c.io.out += "master password changed; the old file is kept as \"" +
                zlcPathText(session.files().backup) + "\"\n";
    return zlcExitOk;
}

int zlcBackup(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    dunmar::dm_string backup;
    if (zlMakeBackup(session.file().path(), session.files(), backup) != zlBackupDone)
        return zlcFail(
            c.io, zlcExitFile,
            "failed to copy the key file to \"" + zlcPathText(session.files().backup) + "\"");
    c.io.out += zlcPathText(backup) + "\n";
    return zlcExitOk;
}

}  // namespace Zelto
