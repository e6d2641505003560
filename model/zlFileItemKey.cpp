#include "model/zlFileItemKey.h"

#include "crypto/zlEncrypt.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {
const int kFieldOrder[] = {zlTypeKeyName,  zlTypeKeyLabel, zlTypeKeyUser, zlTypeKeyPW,
                           zlTypeKeyEmail, zlTypeKeyUrl,   zlTypeKeyNote};
}

bool zlFileItemKey::writeXml(const dm_utf8_str& indent, dm_utf8_str& out) const {
    writeContainer("key", indent, out);
    return true;
}

zlFileItem* zlFileItemKey::clone() const {
    auto* copy = new zlFileItemKey(owner());
    cloneChildrenInto(*copy);
    return copy;
}

const zlFileItemKeyItem* zlFileItemKey::field(int typeCode) const {
    if (!zlKeyFieldElement(typeCode))
        return nullptr;
    return static_cast<const zlFileItemKeyItem*>(findChild(typeCode));
}

dm_utf8_str zlFileItemKey::fieldValue(int typeCode) const {
    const zlFileItemKeyItem* item = field(typeCode);
    return item ? item->value() : dm_utf8_str();
}

bool zlFileItemKey::plainField(int typeCode, dm_utf8_str& plain) const {
    plain.clear();
    const zlFileItemKeyItem* item = field(typeCode);
    if (!item || item->value().empty())
        return true;
    if (typeCode == zlTypeKeyName) {
        const auto* name = static_cast<const zlFileItemKeyName*>(item);
        if (!name->plainName().empty()) {
            plain = name->plainName();
            return true;
        }
    }
    return owner() && owner()->decrypt(item->value(), plain) == 0;
}

dm_utf8_str zlFileItemKey::plainName() const {
    const zlFileItemKeyItem* item = field(zlTypeKeyName);
    return item ? static_cast<const zlFileItemKeyName*>(item)->plainName() : dm_utf8_str();
}

bool zlFileItemKey::setName(const dm_utf8_str& enciphered) {
    dm_utf8_str plain;
    if (!owner() || owner()->decrypt(enciphered, plain) != 0)
        return false;
    auto* name = const_cast<zlFileItemKeyItem*>(field(zlTypeKeyName));
    if (name) {
        static_cast<zlFileItemKeyName*>(name)->setValue(enciphered, plain);
    } else {
        appendChild(new zlFileItemKeyName(owner(), enciphered, plain));
    }
    return true;
}

bool zlFileItemKey::setPlainField(int typeCode, const dm_utf8_str& enciphered) {
    auto* item = const_cast<zlFileItemKeyItem*>(field(typeCode));
    if (item) {
        item->setValue(enciphered);
    } else {
        appendChild(zlMakeKeyField(typeCode, owner(), enciphered));
    }
    return true;
}

bool zlFileItemKey::setLabel(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyLabel, v);
}
bool zlFileItemKey::setUser(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyUser, v);
}
bool zlFileItemKey::setPassword(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyPW, v);
}
bool zlFileItemKey::setEmail(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyEmail, v);
}
bool zlFileItemKey::setUrl(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyUrl, v);
}
bool zlFileItemKey::setNote(const dm_utf8_str& v) {
    return setPlainField(zlTypeKeyNote, v);
}

bool zlFileItemKey::setField(int typeCode, const dm_utf8_str& enciphered) {
    if (typeCode == zlTypeKeyName)
        return setName(enciphered);
    if (!zlKeyFieldElement(typeCode))
        return false;
    return setPlainField(typeCode, enciphered);
}

bool zlFileItemKey::copyFrom(const zlFileItemKey& other) {
    if (!owner() || !other.owner())
        return false;
    for (int type : kFieldOrder) {
        dm_utf8_str plain;
        dm_utf8_str enciphered;
        if (other.owner()->decrypt(other.fieldValue(type), plain) != 0)
            return false;
        if (owner()->encrypt(plain, enciphered) != 0)
            return false;
        if (!setField(type, enciphered))
            return false;
    }
    return true;
}

}  // namespace Zelto
