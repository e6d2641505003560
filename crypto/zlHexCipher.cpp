#include "crypto/zlHexCipher.h"

#include <string>

#include "crypto/code_table.h"
#include "crypto/secure_wipe.h"
#include "crypto/value_decipher.h"

namespace Zelto {

int zlHexCipher::decrypt(const dunmar::dm_utf8_str& text, dunmar::dm_utf8_str& out) const {
    out.clear();
    const std::string& phrase = phrase_.pass_phrase();
    if (phrase.size() < zlEncrypt::kMinPassPhrase || phrase.size() > zlEncrypt::kMaxPassPhrase)
        return kCipherPassPhraseUnusable;
    std::string plain;
    if (!decipher_value(phrase, hex_index(), text.c_str(), text.length(), plain))
        return kCipherFailed;
    out.swap_bytes(plain);
    secure_wipe(&plain[0], plain.size());  // what out held before
    return kCipherOk;
}

}  // namespace Zelto
