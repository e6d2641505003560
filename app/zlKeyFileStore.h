#pragma once

#include "model/zlKeyFile.h"

namespace Zelto {

// Results of a save: the write did not reach the disk whole (the file keeps its old
// bytes), or another program had changed the file, so the tree went to a conflict file.
enum : int {
    zlSaved = 1,
    zlSaveFailed = -27,
    zlSaveConflict = -28,
};

// Writes the whole tree with the current interface language's name over its file in one
// step (dm_save_file). When another program changed the file since the tree last read or
// wrote it, the file stays theirs and the tree goes to "Zelto.conflict." + time stamp +
// ".xml" beside it, named by file.conflictFile().
int zlSaveKeyFile(zlKeyFile& file);
// The same under the given language name.
int zlSaveKeyFileAs(zlKeyFile& file, const dunmar::dm_utf8_str& languageName);

// zlSaved when the file on disk holds what the tree last read or wrote, or is gone (a save
// writes it anew), or the tree never knew it; zlSaveConflict when another program changed
// it; zlSaveFailed when it cannot be read.
int zlCheckKeyFileOnDisk(const zlKeyFile& file);

}  // namespace Zelto
