#pragma once

#include "model/zlKeyFile.h"

namespace Zelto {

// Result of a save whose write did not reach the disk whole.
enum : int {
    zlSaved = 1,
    zlSaveFailed = -27,
};

// Writes the whole tree to its file, with the current interface language's name.
int zlSaveKeyFile(zlKeyFile& file);

}  // namespace Zelto
