#include <windows.h>

#include "app/zlTexts.h"

namespace Zelto {

int zlSystemUiPrimaryLanguage() {
    return GetSystemDefaultUILanguage() & 0x3ff;
}

}  // namespace Zelto
