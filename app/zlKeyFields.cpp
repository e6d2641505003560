#include "app/zlKeyFields.h"

#include <memory>

namespace Zelto {

using dunmar::dm_utf8_str;

const int zlKeyFieldTypes[zlKeyFieldCount] = {zlTypeKeyName, zlTypeKeyLabel, zlTypeKeyUser,
                                              zlTypeKeyPW,   zlTypeKeyEmail, zlTypeKeyUrl,
                                              zlTypeKeyNote};

dm_utf8_str* zlKeyFields::of(int typeCode) {
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        if (zlKeyFieldTypes[i] == typeCode)
            return &value[i];
    }
    return nullptr;
}

const dm_utf8_str* zlKeyFields::of(int typeCode) const {
    return const_cast<zlKeyFields*>(this)->of(typeCode);
}

bool zlKeyFields::equals(const zlKeyFields& other) const {
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        if (!value[i].equals(other.value[i]))
            return false;
    }
    return true;
}

bool zlReadKeyFields(const zlFileItemKey& key, zlKeyFields& plain) {
    bool all = true;
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        if (!key.plainField(zlKeyFieldTypes[i], plain.value[i]))
            all = false;
    }
    return all;
}

bool zlStoreKeyFields(zlFileItemKey& key, const zlKeyFields& plain) {
    if (!key.owner())
        return false;
    dm_utf8_str enciphered[zlKeyFieldCount];
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        if (key.owner()->encrypt(plain.value[i], enciphered[i]) != 0)
            return false;
    }
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        if (!key.setField(zlKeyFieldTypes[i], enciphered[i]))
            return false;
    }
    return true;
}

zlFileItemKey* zlAddKey(zlKeyFile& file, const zlKeyFields& plain) {
    auto key = std::make_unique<zlFileItemKey>(&file);
    if (!zlStoreKeyFields(*key, plain))
        return nullptr;
    zlFileItemKeys* list = file.keys();
    if (!list) {
        list = new zlFileItemKeys(&file);
        file.root().appendChild(list);
    }
    zlFileItemKey* added = key.get();
    list->appendChild(std::move(key));
    return added;
}

}  // namespace Zelto
