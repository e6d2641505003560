// Arbitrary bytes as a key file: the format test, the parser walk, then every field of
// every key and the user fields deciphered, and the tree written out again.
#include <cstddef>
#include <cstdint>

#include "model/zlFileFormat.h"
#include "model/zlKeyFile.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

void decipherAll(const zlFileItem* list) {
    if (!list)
        return;
    for (size_t i = 0; i < list->childCount(); ++i) {
        const zlFileItem* item = list->child(i);
        if (!item || item->typeCode() != zlTypeKey)
            continue;
        const auto* key = static_cast<const zlFileItemKey*>(item);
        for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type) {
            dm_utf8_str plain;
            key->plainField(type, plain);
        }
        key->plainName();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    dm_utf8_str text(reinterpret_cast<const char*>(data), size);
    // Files are taken as zero-terminated text.
    text = dm_utf8_str(text.c_str());
    if (zlIsOlderFormat(text))
        return 0;

    zlKeyFile file;
    file.set_pass_phrase("fuzzing password");
    file.readText(std::move(text));
    decipherAll(file.keys());
    decipherAll(file.trash());
    if (zlFileItemSettings* s = file.settings()) {
        s->userFirstName(true);
        s->userEmail(true);
        dm_utf8_str verify;
        file.decrypt(s->verify, verify);
    }
    file.buildFileText(dm_utf8_str("English"));
    return 0;
}
