#include "model/zlFileItemKeyItem.h"

#include "crypto/zlEncrypt.h"

namespace Zelto {

using dunmar::dm_utf8_str;

const char* zlKeyFieldElement(int typeCode) {
    switch (typeCode) {
        case zlTypeKeyName:
            return "name";
        case zlTypeKeyLabel:
            return "label";
        case zlTypeKeyUser:
            return "user";
        case zlTypeKeyPW:
            return "pw";
        case zlTypeKeyEmail:
            return "email";
        case zlTypeKeyUrl:
            return "url";
        case zlTypeKeyNote:
            return "note";
        default:
            return nullptr;
    }
}

bool zlFileItemKeyItem::writeXml(const dm_utf8_str&, dm_utf8_str& out) const {
    const char* name = zlKeyFieldElement(typeCode());
    out.append("<");
    out.append(name);
    out.append(">");
    out.append(value_);
    out.append("</");
    out.append(name);
    out.append(">");
    return true;
}

zlFileItem* zlFileItemKeyName::clone() const {
    auto* copy = new zlFileItemKeyName(owner(), value_, plainName_);
    cloneChildrenInto(*copy);
    return copy;
}

const dm_utf8_str& zlFileItemKeyName::plainName() const {
    if (plainName_.empty() && !value_.empty() && owner()) {
        dm_utf8_str plain;
        if (owner()->decrypt(value_, plain) == 0)
            plainName_ = plain;
    }
    return plainName_;
}

void zlFileItemKeyName::setValue(const dm_utf8_str& value, const dm_utf8_str& plainName) {
    value_ = value;
    plainName_ = plainName;
}

void zlFileItemKeyName::setValue(const dm_utf8_str& value) {
    value_ = value;
    plainName_.clear();
}

zlFileItemKeyItem* zlMakeKeyField(int typeCode, zlEncrypt* owner, const dm_utf8_str& value) {
    switch (typeCode) {
        case zlTypeKeyName: {
            dm_utf8_str plain;
            if (owner)
                owner->decrypt(value, plain);
            return new zlFileItemKeyName(owner, value, plain);
        }
        case zlTypeKeyLabel:
            return new zlFileItemKeyLabel(owner, value);
        case zlTypeKeyUser:
            return new zlFileItemKeyUser(owner, value);
        case zlTypeKeyPW:
            return new zlFileItemKeyPW(owner, value);
        case zlTypeKeyEmail:
            return new zlFileItemKeyEmail(owner, value);
        case zlTypeKeyUrl:
            return new zlFileItemKeyUrl(owner, value);
        case zlTypeKeyNote:
            return new zlFileItemKeyNote(owner, value);
        default:
            return nullptr;
    }
}

}  // namespace Zelto
