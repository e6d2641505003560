#include <cstdlib>
#include <cstring>

#include "app/zlTexts.h"

namespace Zelto {

// The locale environment plays the system's interface language: LC_ALL, then
// LC_MESSAGES, then LANG, as the C library looks them up.
int zlSystemUiPrimaryLanguage() {
    const char* value = nullptr;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        value = std::getenv(name);
        if (value && *value)
            break;
    }
    if (!value)
        return 9;
    if (std::strncmp(value, "de", 2) == 0)
        return 7;
    if (std::strncmp(value, "fr", 2) == 0)
        return 12;
    return 9;
}

}  // namespace Zelto
