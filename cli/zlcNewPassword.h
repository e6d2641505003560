#pragma once

#include <string>

#include "cli/zlcIo.h"

namespace Zelto {

// Asks for a new master password and its repetition, and applies the password rules.
// Exit status: zlcExitOk with password set, or zlcExitUsage with the rule's message.
int zlcAskNewPassword(zlcIo& io, std::string& password);

}  // namespace Zelto
