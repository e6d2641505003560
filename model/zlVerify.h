#pragma once

#include <string>

#include "core/dm_utf8_str.h"

namespace Zelto {

class zlKeyFile;

// Results of zlCheckPassword.
enum : int {
    zlPasswordRight = 1,
    zlPasswordNoSettings = -11,
    zlPasswordWrong = -12,
};

// The fixed text whose enciphered form is a key file's verify value. Every key file
// depends on it: never change it.
extern const char zlVerifyText[];
constexpr size_t zlVerifyTextLength = 113;

// The verify value for password: empty for an empty password or one whose length is
// outside 8..128 bytes.
dunmar::dm_utf8_str zlMakeVerifyValue(const dunmar::dm_utf8_str& password);

// 0, or 1 when the password is absent or its length is outside 8..128 bytes (the old
// one then stays).
int zlSetPassword(zlKeyFile& file, const char* password);
const std::string& zlGetPassword(const zlKeyFile& file);

// 1 when the settings' verify value deciphers to the verify text under the current
// pass phrase; -11 without settings; -12 otherwise.
int zlCheckPassword(const zlKeyFile& file);

}  // namespace Zelto
