#include "model/zlVerify.h"

#include <cstring>

#include "model/zlKeyFile.h"

namespace Zelto {

using dunmar::dm_utf8_str;

const char zlVerifyText[] =
    "Zelto key file check: a master password is right exactly when this text comes back. "
    "Never change one byte of it!!";
static_assert(sizeof(zlVerifyText) == zlVerifyTextLength + 1, "the verify text is 113 bytes");

dm_utf8_str zlMakeVerifyValue(const dm_utf8_str& password) {
    if (password.empty())
        return dm_utf8_str();
    zlEncrypt cipher;
    if (password.length() >= zlEncrypt::kMinPassPhrase &&
        password.length() <= zlEncrypt::kMaxPassPhrase) {
        cipher.set_pass_phrase(password.c_str());
    }
    dm_utf8_str value;
    if (cipher.encrypt(dm_utf8_str(zlVerifyText, zlVerifyTextLength), value) != 0) {
        return dm_utf8_str();
    }
    return value;
}

int zlSetPassword(zlKeyFile& file, const char* password) {
    return file.set_pass_phrase(password);
}

const std::string& zlGetPassword(const zlKeyFile& file) {
    return file.pass_phrase();
}

int zlCheckPassword(const zlKeyFile& file) {
    const zlFileItemSettings* settings = file.settings();
    if (!settings)
        return zlPasswordNoSettings;
    dm_utf8_str plain;
    if (file.decrypt(settings->verify, plain) != 0)
        return zlPasswordWrong;
    if (plain.length() != zlVerifyTextLength ||
        std::memcmp(plain.c_str(), zlVerifyText, zlVerifyTextLength) != 0) {
        return zlPasswordWrong;
    }
    return zlPasswordRight;
}

}  // namespace Zelto
