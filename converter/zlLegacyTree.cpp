#include "converter/zlLegacyTree.h"

#include <cstring>
#include <string>

#include "converter/zlLegacyConverter.h"
#include "converter/zlLegacyValue.h"
#include "crypto/secure_wipe.h"
#include "model/zlKeyFileReader.h"
#include "model/zlVerify.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

void wipe(dm_utf8_str& text) {
    std::string bytes;
    text.swap_bytes(bytes);
    secure_wipe(&bytes[0], bytes.size());
}

// The field's value enciphered under out's pass phrase.
int convertValue(const zlLegacyField& field, const zlHexCipher& legacy, const zlKeyFile& out,
                 dm_utf8_str& enciphered) {
    dm_utf8_str plain;
    if (field.encrypted) {
        if (!zlIsLegacyValue(field.value, legacy.pass_phrase().size()))
            return zlConvertNotLegacy;
        if (legacy.decrypt(field.value, plain) != 0)
            return zlConvertWriteFailed;
    } else {
        plain = field.value;
    }
    const int result = out.encrypt(plain, enciphered);
    wipe(plain);
    return result == 0 ? zlConvertOk : zlConvertWriteFailed;
}

int convertKey(const zlLegacyKey& key, const zlHexCipher& legacy, zlKeyFile& out,
               zlFileItemKeys& list) {
    auto* item = new zlFileItemKey(&out);
    list.appendChild(item);
    for (const zlLegacyField& field : key.fields) {
        dm_utf8_str enciphered;
        const int result = convertValue(field, legacy, out, enciphered);
        if (result != zlConvertOk)
            return result;
        if (!item->setField(field.typeCode, enciphered))
            return zlConvertWriteFailed;
    }
    return zlConvertOk;
}

}  // namespace

bool zlLegacyPasswordRight(const zlLegacyFile& file, const zlHexCipher& legacy) {
    dm_utf8_str plain;
    const bool right = legacy.decrypt(file.verify, plain) == 0 &&
                       plain.length() == zlVerifyTextLength &&
                       std::memcmp(plain.c_str(), zlVerifyText, zlVerifyTextLength) == 0;
    wipe(plain);
    return right;
}

int zlBuildConvertedTree(const zlLegacyFile& file, const zlHexCipher& legacy, zlKeyFile& out) {
    auto* settings = new zlFileItemSettings(&out);
    out.root().appendChild(settings);
    settings->verify = zlMakeVerifyValue(dm_utf8_str(out.pass_phrase()));
    if (settings->verify.empty())
        return zlConvertWriteFailed;
    if (file.hasAutoClearClipboard)
        settings->autoClearClipboard = zlClampSetting(file.autoClearClipboard.c_str(), 5, 600);
    settings->language = file.language;

    auto* keys = new zlFileItemKeys(&out);
    out.root().appendChild(keys);
    for (const zlLegacyKey& key : file.keys) {
        const int result = convertKey(key, legacy, out, *keys);
        if (result != zlConvertOk)
            return result;
    }
    return zlConvertOk;
}

}  // namespace Zelto
