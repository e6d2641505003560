#pragma once

#include "app/zlFileSet.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// Results of zlChangeMasterPassword; a failed save or re-read gives its own code, and so
// does a key file that another program changed or that cannot be read (zlSaveConflict,
// zlSaveFailed), found before the backup.
enum : int {
    zlChangeDone = 1,
    zlChangeEmpty = -12,
    zlChangeNoFolder = -18,
    zlChangeBackupFailed = -19,
    zlChangeNoSettings = -20,
    zlChangeSettingsNotMade = -21,
    zlChangeSettingsNotCopied = -22,
    zlChangeKeysNotMade = -23,
    zlChangeKeyNotCopied = -24,
    zlChangeTrashNotMade = -25,
    zlChangeTrashedKeyNotCopied = -26,
};

// Re-enciphers the whole tree under newPassword into a second tree, backs the key file up
// (backup name from files), writes the new tree over it and reads it back into file.
// A key file changed by another program is left as it is, without a backup.
// Nothing is touched unless every copy succeeded; the same password changes nothing.
int zlChangeMasterPassword(zlKeyFile& file, const dunmar::dm_utf8_str& newPassword,
                           const dunmar::dm_utf8_str& newVerify, const zlFileSet& files);

}  // namespace Zelto
