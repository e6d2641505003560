#include "cli/zlcOpenKey.h"

#include "cli/zlcExitCodes.h"

namespace Zelto {

int zlcOpenKey(zlcContext& c, zlcSession& session, zlcKeyMatch& match) {
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    const std::string& key = c.args.arguments[0];
    match = zlcFindKey(session.file().keys(), key);
    if (match.result != zlcKeyMatch::found)
        return zlcFail(c.io, zlcExitNoKey, zlcKeyMatchMessage(match, key));
    return zlcExitOk;
}

}  // namespace Zelto
