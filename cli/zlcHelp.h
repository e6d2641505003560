#pragma once

#include <string>

#include "cli/zlcCommandTable.h"

namespace Zelto {

// The tool's overview: usage, commands, common options, passwords and exit codes.
std::string zlcToolHelp();

// One command's usage, description, what it reads and its options.
std::string zlcCommandHelp(const zlcCommandSpec& command);

// "zelto-cli 2.2.1"
std::string zlcVersionText();

}  // namespace Zelto
