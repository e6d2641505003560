#include "converter/zlConverterCommand.h"

#include <string>

#include "converter/zlLegacyConverter.h"
#include "core/dm_convert.h"
#include "crypto/secure_wipe.h"

namespace Zelto {

int zlConverterCommand(const std::vector<dunmar::dm_string>& arguments,
                       const dunmar::dm_string& workingCopy) {
    if (arguments.size() != 1)
        return zlConvertUsage;
    const dunmar::dm_string& wide = arguments[0];
    bool complete = false;
    std::string password = dunmar::utf16_to_utf8(wide.c_str(), wide.length(), &complete);
    const int result =
        complete ? zlConvertLegacyFile(workingCopy, password.c_str()) : zlConvertUsage;
    secure_wipe(&password[0], password.size());
    return result;
}

}  // namespace Zelto
