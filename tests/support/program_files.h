#pragma once

#include "app/zlFileSet.h"
#include "app/zlInstance.h"
#include "support/test_util.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace ztest {

// The program's files in a test folder, the backup stamped 2026-03-09 00:00:00.815; on
// Windows the test program's own module stands for the program (it carries the converter).
inline Zelto::zlFileSet programFilesIn(const TempDir& dir) {
#ifdef _WIN32
    Zelto::zlSetInstance(GetModuleHandleW(nullptr));
#endif
    Zelto::zlLocalTime t;
    t.year = 2026;
    t.month = 3;
    t.day = 9;
    t.millisecond = 815;
    return Zelto::zlFileSet::in(widePath(dir.path() / ""), t);
}

}  // namespace ztest
