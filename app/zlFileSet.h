#pragma once

#include "app/zlFileOps.h"
#include "core/dm_string.h"

namespace Zelto {

// The files of the program, all in one folder: the key file, a time-stamped backup name,
// and the converter with its working copy. Made together; empty when there is no folder.
struct zlFileSet {
    dunmar::dm_string folder;  // ends in its separator
    dunmar::dm_string keyFile;
    dunmar::dm_string backup;
    dunmar::dm_string converter;
    dunmar::dm_string workingCopy;
    dunmar::dm_string detail;  // why the set is empty

    bool valid() const { return !folder.empty(); }

    // The set in folder (which must end in a separator), the backup stamped with now.
    static zlFileSet in(const dunmar::dm_string& folder, const zlLocalTime& now);
    // The set beside the running program, stamped with the current local time.
    static zlFileSet ofThisProgram();
};

// "2018_03_09_17_05_42_0815": year, month, day, hour, minute, second, millisecond.
dunmar::dm_string zlTimeStamp(const zlLocalTime& time);

// Results of zlMakeBackup.
enum : int {
    zlBackupDone = 1,
    zlBackupNoFolder = -18,
    zlBackupCopyFailed = -19,
};

// Copies keyFile to the set's backup name, never over an existing file.
int zlMakeBackup(const dunmar::dm_string& keyFile, const zlFileSet& files,
                 dunmar::dm_string& backupPath);

}  // namespace Zelto
