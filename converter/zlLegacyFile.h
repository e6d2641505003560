#pragma once

#include <vector>

#include "core/dm_utf8_str.h"

namespace Zelto {

// The content of a key file of the older format, as it stands in the file.
struct zlLegacyField {
    int typeCode = 0;        // zlTypeKeyName .. zlTypeKeyNote
    bool encrypted = false;  // value is hexadecimal cipher text, else plain text
    dunmar::dm_utf8_str value;
};

struct zlLegacyKey {
    std::vector<zlLegacyField> fields;  // in file order
};

struct zlLegacyFile {
    dunmar::dm_utf8_str verify;  // the settings' <pw>: the verify text, enciphered
    bool hasAutoClearClipboard = false;
    dunmar::dm_utf8_str autoClearClipboard;
    dunmar::dm_utf8_str language;
    std::vector<zlLegacyKey> keys;
};

}  // namespace Zelto
