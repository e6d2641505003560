#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcKeyLookup.h"
#include "cli/zlcSession.h"

namespace Zelto {

int zlcRemove(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    const std::string& key = c.args.arguments[0];
    const zlcKeyMatch match = zlcFindKey(session.file().keys(), key);
    if (match.result != zlcKeyMatch::found)
        return zlcFail(c.io, zlcExitNoKey, zlcKeyMatchMessage(match, key));
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
