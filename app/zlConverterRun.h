#pragma once

#include "app/zlFileSet.h"
#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

namespace Zelto {

// Runs the converter on the set's working copy with password and waits for it, however
// long it takes. True exactly when it ended with exit code 0. exitCode is the converter's
// (0 when it never ran); detail names the step that failed before it could run.
//
// On Windows the converter is the program's own resource 137, written to the set's folder
// as files.converter and started there with the password on its command line. Elsewhere
// there is no such program: the same conversion runs in this process, with the same codes.
bool zlRunConverter(const zlFileSet& files, const dunmar::dm_utf8_str& password,
                    dunmar::dm_string& detail, unsigned long& exitCode);

// The same conversion in this process on every platform, with the same codes: for front
// ends that carry the converter's code rather than its program.
bool zlRunConverterInProcess(const zlFileSet& files, const dunmar::dm_utf8_str& password,
                             dunmar::dm_string& detail, unsigned long& exitCode);

using zlConverterRunner = bool (*)(const zlFileSet&, const dunmar::dm_utf8_str&, dunmar::dm_string&,
                                   unsigned long&);

}  // namespace Zelto
