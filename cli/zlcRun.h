#pragma once

#include <string>
#include <vector>

#include "cli/zlcIo.h"

namespace Zelto {

// Runs the command line (the arguments after the program's name, as UTF-8) and returns the
// exit status; texts go to io.
int zlcRun(const std::vector<std::string>& argv, zlcIo& io);

}  // namespace Zelto
