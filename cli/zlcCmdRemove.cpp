#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcOpenKey.h"
#include "cli/zlcSession.h"

namespace Zelto {

int zlcRemove(zlcContext& c) {
    zlcSession session(c.io, c.files);
    zlcKeyMatch match;
    const int opened = zlcOpenKey(c, session, match);
    if (opened != zlcExitOk)
        return opened;
    const std::string name = match.key->plainName().str();
    if (!session.file().moveKeyToTrash(match.key))
        return zlcFail(c.io, zlcExitFile, "the key could not be moved to the trash");
    const int saved = session.save();
    if (saved != zlcExitOk)
        return saved;
    c.io.out += "moved #" + std::to_string(match.position) + " \"" + name + "\" to the trash\n";
    return zlcExitOk;
}

}  // namespace Zelto
