#pragma once

#include "cli/zlcCommands.h"
#include "cli/zlcKeyLookup.h"
#include "cli/zlcSession.h"

namespace Zelto {

// Opens the key file and finds the key that the first argument names; on failure the
// message is given and the exit status returned.
int zlcOpenKey(zlcContext& c, zlcSession& session, zlcKeyMatch& match);

}  // namespace Zelto
