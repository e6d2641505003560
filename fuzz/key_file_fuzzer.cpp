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
    if (!list) return;
    for (size_t i = 0; i < list->childCount(); ++i) {
        const zlFileItem* item = list->child(i);
        if (!item || item->typeCode() != zlTypeKey) continue;
        const auto* key = static_cast<const zlFileItemKey*>(item);
        for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type) {
            dm_utf8_str plain;
            key->plainField(type, plain);
        }
        key->plainName();
    }
}

void readAndUse(dm_utf8_str text) {
    if (zlIsOlderFormat(text)) return;
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
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const dm_utf8_str raw(reinterpret_cast<const char*>(data), size);
    // As a file is read (cut at its first zero byte), and as bytes handed over whole,
    // which reach the parser's UTF-16 and UTF-32 paths.
    readAndUse(dm_utf8_str(raw.c_str()));
    readAndUse(raw);
    return 0;
}
