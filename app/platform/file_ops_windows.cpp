#include <windows.h>

#include "app/zlFileOps.h"

namespace Zelto {

using dunmar::dm_string;

bool zlCopyFile(const dm_string& source, const dm_string& destination, bool overwrite) {
    if (source.equals(destination))
        return true;
    if (source.empty() || destination.empty())
        return false;
    return CopyFileW(source.c_str(), destination.c_str(), overwrite ? FALSE : TRUE) != FALSE;
}

bool zlDeleteFile(const dm_string& path) {
    if (path.empty())
        return false;
    if (DeleteFileW(path.c_str()))
        return true;
    return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES;
}

zlLocalTime zlNow() {
    SYSTEMTIME st;
    GetLocalTime(&st);
    zlLocalTime t;
    t.year = st.wYear;
    t.month = st.wMonth;
    t.day = st.wDay;
    t.hour = st.wHour;
    t.minute = st.wMinute;
    t.second = st.wSecond;
    t.millisecond = st.wMilliseconds;
    return t;
}

}  // namespace Zelto
