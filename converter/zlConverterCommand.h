#pragma once

#include <vector>

#include "core/dm_string.h"

namespace Zelto {

// The converter program's work on its arguments (the program's name not among them):
// exactly one, the password, which must be well-formed UTF-16; it converts the file at
// workingCopy. The result is the program's exit code (see zlConvertLegacyFile); a wrong
// number of arguments or an ill-formed password gives zlConvertUsage.
int zlConverterCommand(const std::vector<dunmar::dm_string>& arguments,
                       const dunmar::dm_string& workingCopy);

}  // namespace Zelto
