#include <windows.h>

#include "converter/zlReplaceFile.h"

namespace Zelto {

bool zlMoveFileOver(const dunmar::dm_string& from, const dunmar::dm_string& to) {
    return MoveFileExW(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

void zlRemoveFile(const dunmar::dm_string& path) {
    DeleteFileW(path.c_str());
}

}  // namespace Zelto
