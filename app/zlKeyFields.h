#pragma once

#include <cstddef>

#include "core/dm_utf8_str.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// The seven fields of a key in their order on screen and in the file.
constexpr size_t zlKeyFieldCount = 7;
extern const int zlKeyFieldTypes[zlKeyFieldCount];  // type codes, name first

// The plain texts of one key's seven fields.
struct zlKeyFields {
    dunmar::dm_utf8_str value[zlKeyFieldCount];

    // The field of a type code (6 to 12); null for any other code.
    dunmar::dm_utf8_str* of(int typeCode);
    const dunmar::dm_utf8_str* of(int typeCode) const;
    bool equals(const zlKeyFields& other) const;
};

// Deciphers the seven fields of key; a field the key lacks is empty. False when one of
// them does not decipher.
bool zlReadKeyFields(const zlFileItemKey& key, zlKeyFields& plain);

// Enciphers all seven texts through the key's owner, then sets them in field order. False,
// with the key unchanged, when enciphering fails.
bool zlStoreKeyFields(zlFileItemKey& key, const zlKeyFields& plain);

// A new key holding the seven texts, appended to the file's key list (made when there is
// none). Null, with the tree unchanged, when the fields cannot be stored.
zlFileItemKey* zlAddKey(zlKeyFile& file, const zlKeyFields& plain);

}  // namespace Zelto
