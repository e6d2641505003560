#include "app/zlConversion.h"

#include <string>

#include "app/zlConverterRun.h"
#include "app/zlFileOps.h"
#include "app/zlKeyFileStore.h"
#include "app/zlTexts.h"
#include "core/dm_file_layer.h"
#include "core/dm_system.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

dm_string wide(const char* text) {
    return dm_utf8_str(text).to_wide();
}

bool fail(dm_string& detail, const char* text) {
    detail = wide(text);
    return false;
}

void completeTree(zlKeyFile& file) {
    if (!file.settings())
        file.root().appendChild(new zlFileItemSettings(&file));
    if (!file.keys())
        file.root().appendChild(new zlFileItemKeys(&file));
}

// The same save as every other, but under the language name the file holds, so that the
// language the converter kept is not replaced by the current interface language.
int writeBack(zlKeyFile& file) {
    const dm_utf8_str language = file.settings()->language;
    return zlSaveKeyFileAs(file, language.empty() ? zlLanguageNameForFile() : language);
}

// The converted text takes the key file's place in one step, like every save.
bool replaceKeyFile(const zlFileSet& files) {
    dm_utf8_str text;
    return dunmar::dm_system::read_file(files.workingCopy, text) &&
           dunmar::dm_save_file(files.keyFile, text);
}

}  // namespace

bool zlConvertKeyFile(const zlFileSet& files, const dm_utf8_str& password, dm_string& detail,
                      zlConverterRunner run) {
    detail.clear();
    if (!files.valid()) {
        detail = files.detail;
        return false;
    }
    if (!zlCopyFile(files.keyFile, files.workingCopy, true))
        return fail(detail, "failed to copy file \"Zelto.xml\" to \"ZeltoPre.xml\"");

    dm_string runDetail;
    unsigned long exitCode = 0;
    if (!run(files, password, runDetail, exitCode)) {
        detail = wide("failed to run ZeltoPre.exe (");
        detail.append(runDetail);
        detail.append(wide(") - ("));
        detail.append(exitCode == 2 ? wide("Incorrect password")
                                    : dm_utf8_str(std::to_string(exitCode)).to_wide());
        detail.append(wide(")"));
        return false;
    }
    if (!zlCopyFile(files.keyFile, files.backup, true))
        return fail(detail, "failed to copy file \"Zelto.xml\" to \"Zelto.backup.xml\"");
    if (!replaceKeyFile(files))
        return fail(detail, "failed to copy file \"ZeltoPre.xml\" to \"Zelto.xml\"");
    return true;
}

int zlReadWithConversion(zlKeyFile& file, const zlFileSet& files, const dm_utf8_str& password,
                         dm_string& detail, zlConverterRunner run) {
    detail.clear();
    int result = zlReadFailed;
    if (zlConvertKeyFile(files, password, detail, run)) {
        result = file.readFile(files.keyFile);
        if (result == zlReadOk) {
            completeTree(file);
            // The converted file is already whole on disk: a failed rewrite loses nothing.
            static_cast<void>(writeBack(file));
        } else {
            detail = wide("conversion to new xml format failed");
        }
    } else if (detail.empty()) {
        detail = wide("failed to convert xml file to new format");
    }
    // Whatever the converter left, also when it did not end by itself.
    zlDeleteFile(files.converter);
    zlDeleteFile(files.workingCopy);
    zlDeleteFile(dunmar::dm_save_file_temp(files.workingCopy));
    return result;
}

}  // namespace Zelto
