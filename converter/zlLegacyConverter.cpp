#include "converter/zlLegacyConverter.h"

#include "converter/zlLegacyReader.h"
#include "converter/zlLegacyTree.h"
#include "converter/zlLegacyValue.h"
#include "core/dm_file_layer.h"
#include "core/dm_system.h"
#include "model/zlFileFormat.h"

namespace Zelto {

using dunmar::dm_system;
using dunmar::dm_utf8_str;

namespace {

int convert(const dunmar::dm_string& path, const char* password) {
    zlKeyFile out;
    zlHexCipher legacy;
    if (out.set_pass_phrase(password) != 0 || legacy.set_pass_phrase(password) != 0)
        return zlConvertUsage;

    dm_utf8_str text;
    if (!dm_system::file_exists(path) || !dm_system::read_file(path, text))
        return zlConvertNoFile;
    zlLegacyFile file;
    if (!zlIsOlderFormat(text) || !zlReadLegacyText(text, file))
        return zlConvertNotLegacy;

    // A verify value that is empty or no hexadecimal text cannot match any password: the
    // file is damaged. Its length is not checked here, since that depends on the password's.
    if (file.verify.empty() || !zlIsHexText(file.verify))
        return zlConvertNotLegacy;
    if (!zlLegacyPasswordRight(file, legacy))
        return zlConvertWrongPassword;

    const int built = zlBuildConvertedTree(file, legacy, out);
    if (built != zlConvertOk)
        return built;
    // The writer stamps the language it is given: the file's own.
    const dm_utf8_str converted = out.buildFileText(file.language);
    return dunmar::dm_save_file(path, converted) ? zlConvertOk : zlConvertWriteFailed;
}

}  // namespace

int zlConvertLegacyFile(const dunmar::dm_string& path, const char* password) {
    const int result = convert(path, password);
    // A new file left by an earlier run that did not end goes too.
    if (result != zlConvertOk && !path.empty())
        dunmar::dm_file_layer::current().remove(dunmar::dm_save_file_temp(path));
    return result;
}

}  // namespace Zelto
