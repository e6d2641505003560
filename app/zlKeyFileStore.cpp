#include "app/zlKeyFileStore.h"

#include "app/zlTexts.h"
#include "core/dm_system.h"

namespace Zelto {

int zlSaveKeyFile(zlKeyFile& file) {
    const dunmar::dm_utf8_str text = file.buildFileText(zlLanguageNameForFile());
    return dunmar::dm_system::write_file(file.path(), text) ? zlSaved : zlSaveFailed;
}

}  // namespace Zelto
