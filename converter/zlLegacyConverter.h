#pragma once

#include "core/dm_string.h"

namespace Zelto {

// Results of the conversion; they are also the exit codes of the converter program.
enum : int {
    zlConvertOk = 0,
    zlConvertWrongPassword = 2,
    zlConvertUsage = 3,
    zlConvertNoFile = 4,
    zlConvertNotLegacy = 5,
    zlConvertWriteFailed = 6,
};

// Rewrites the key file of the older format at path in the current format: every field
// enciphered under password, a new verify value, the clipboard time and the language kept,
// the other settings at their defaults. Usage when password is null or outside 8..128
// bytes; no file when path is missing or unreadable; not legacy also for a damaged file;
// write failed when the new text could not be made or stored. On every failure the file
// at path keeps its old content.
int zlConvertLegacyFile(const dunmar::dm_string& path, const char* password);

}  // namespace Zelto
