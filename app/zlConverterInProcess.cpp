#include "app/zlConverterRun.h"
#include "converter/zlLegacyConverter.h"

namespace Zelto {

bool zlRunConverterInProcess(const zlFileSet& files, const dunmar::dm_utf8_str& password,
                             dunmar::dm_string& detail, unsigned long& exitCode) {
    detail.clear();
    exitCode = 0;
    if (files.folder.empty()) {
        detail = dunmar::dm_utf8_str("GetThisPathName(..) returned \"\"").to_wide();
        return false;
    }
    exitCode = static_cast<unsigned long>(zlConvertLegacyFile(files.workingCopy, password.c_str()));
    return exitCode == 0;
}

}  // namespace Zelto
