#include "app/zlConverterRun.h"

namespace Zelto {

// There is no converter program on this platform: the conversion runs in this process.
bool zlRunConverter(const zlFileSet& files, const dunmar::dm_utf8_str& password,
                    dunmar::dm_string& detail, unsigned long& exitCode) {
    return zlRunConverterInProcess(files, password, detail, exitCode);
}

}  // namespace Zelto
