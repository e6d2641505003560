#include "app/zlKeyFileStore.h"

#include "app/zlFileSet.h"
#include "app/zlTexts.h"
#include "core/dm_file_layer.h"
#include "core/dm_system.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_system;
using dunmar::dm_utf8_str;

namespace {

dm_string conflictPath(const dm_string& keyFile) {
    dm_string path;
    dm_system::dir_of_path(keyFile, path);
    path.append(dm_utf8_str("Zelto.conflict.").to_wide());
    path.append(zlTimeStamp(zlNow()));
    path.append(dm_utf8_str(".xml").to_wide());
    return path;
}

}  // namespace

int zlCheckKeyFileOnDisk(const zlKeyFile& file) {
    const std::string* known = file.diskBytes();
    if (!known || !dm_system::file_exists(file.path()))
        return zlSaved;
    dm_utf8_str now;
    if (!dm_system::read_file(file.path(), now))
        return zlSaveFailed;
    return now.str() == *known ? zlSaved : zlSaveConflict;
}

int zlSaveKeyFile(zlKeyFile& file) {
    return zlSaveKeyFileAs(file, zlLanguageNameForFile());
}

int zlSaveKeyFileAs(zlKeyFile& file, const dm_utf8_str& languageName) {
    file.setConflictFile(dm_string());
    const dm_utf8_str text = file.buildFileText(languageName);
    const int disk = zlCheckKeyFileOnDisk(file);
    if (disk == zlSaveConflict) {
        // What the disk holds stays remembered: every later save goes aside as well.
        const dm_string aside = conflictPath(file.path());
        if (!dunmar::dm_save_file(aside, text))
            return zlSaveFailed;
        file.setConflictFile(aside);
        return zlSaveConflict;
    }
    if (disk != zlSaved || !dunmar::dm_save_file(file.path(), text))
        return zlSaveFailed;
    file.rememberDiskBytes(text.str());
    return zlSaved;
}

}  // namespace Zelto
