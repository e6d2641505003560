#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcFiles.h"
#include "cli/zlcNewPassword.h"
#include "core/dm_system.h"
#include "model/zlKeyFile.h"
#include "model/zlVerify.h"

namespace Zelto {

int zlcInit(zlcContext& c) {
    if (!c.files.valid())
        return zlcFail(c.io, zlcExitFile, zlcPathText(c.files.detail));
    const std::string path = zlcPathText(c.files.keyFile);
    if (dunmar::dm_system::file_exists(c.files.keyFile))
        return zlcFail(c.io, zlcExitFile, "\"" + path + "\" exists already; nothing was written");
    std::string password;
    const int asked = zlcAskNewPassword(c.io, password);
    if (asked != zlcExitOk)
        return asked;
    const dunmar::dm_utf8_str verify = zlMakeVerifyValue(dunmar::dm_utf8_str(password));
    zlKeyFile file;
    file.setPath(c.files.keyFile);
    if (verify.empty() || !file.writeSkeleton(verify))
        return zlcFail(c.io, zlcExitFile, "failed to write \"" + path + "\"");
    c.io.out += "created \"" + path + "\"\n";
    return zlcExitOk;
}

}  // namespace Zelto
