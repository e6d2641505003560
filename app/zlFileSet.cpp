#include "app/zlFileSet.h"

#include <cstdio>

#include "core/dm_system.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

dm_string join(const dm_string& folder, const char* name) {
    dm_string path(folder);
    path.append(dm_utf8_str(name).to_wide());
    return path;
}

}  // namespace

dm_string zlTimeStamp(const zlLocalTime& t) {
    char text[64] = {};
    std::snprintf(text, sizeof text, "%04d_%02d_%02d_%02d_%02d_%02d_%04d", t.year, t.month, t.day,
                  t.hour, t.minute, t.second, t.millisecond);
    return dm_utf8_str(text).to_wide();
}

zlFileSet zlFileSet::in(const dm_string& folder, const zlLocalTime& now) {
    zlFileSet set;
    if (folder.empty()) {
        set.detail = dm_utf8_str("dm_system::get_this_exe_path(..) failed").to_wide();
        return set;
    }
    set.folder = folder;
    set.keyFile = join(folder, "Zelto.xml");
    set.backup = join(folder, "Zelto.backup.");
    set.backup.append(zlTimeStamp(now));
    set.backup.append(dm_utf8_str(".xml").to_wide());
    set.converter = join(folder, "ZeltoPre.exe");
    set.workingCopy = join(folder, "ZeltoPre.xml");
    return set;
}

zlFileSet zlFileSet::ofThisProgram() {
    dm_string folder;
    if (!dunmar::dm_system::get_this_exe_dir(folder))
        folder.clear();
    return in(folder, zlNow());
}

int zlMakeBackup(const dm_string& keyFile, const zlFileSet& files, dm_string& backupPath) {
    backupPath.clear();
    if (!files.valid())
        return zlBackupNoFolder;
    if (!zlCopyFile(keyFile, files.backup, false))
        return zlBackupCopyFailed;
    backupPath = files.backup;
    return zlBackupDone;
}

}  // namespace Zelto
