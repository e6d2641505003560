#pragma once

#include "model/zlFileItem.h"

namespace Zelto {

// Element name of a key field's type code ("name", "label", ...); null for other codes.
const char* zlKeyFieldElement(int typeCode);

// One field of a key. The value is the enciphered printable text exactly as in the file.
class zlFileItemKeyItem : public zlFileItem {
  public:
    zlFileItemKeyItem(zlEncrypt* owner, const dunmar::dm_utf8_str& value)
        : zlFileItem(owner), value_(value) {}

    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;

    const dunmar::dm_utf8_str& value() const { return value_; }
    virtual void setValue(const dunmar::dm_utf8_str& value) { value_ = value; }

  protected:
    dunmar::dm_utf8_str value_;
};

// The fields other than the name differ only in their type code.
template <int Code>
class zlFileItemKeyField : public zlFileItemKeyItem {
  public:
    zlFileItemKeyField(zlEncrypt* owner, const dunmar::dm_utf8_str& value)
        : zlFileItemKeyItem(owner, value) {}
    int typeCode() const override { return Code; }
    zlFileItem* clone() const override {
        auto* copy = new zlFileItemKeyField<Code>(owner(), value_);
        cloneChildrenInto(*copy);
        return copy;
    }
};

using zlFileItemKeyLabel = zlFileItemKeyField<zlTypeKeyLabel>;
using zlFileItemKeyUser = zlFileItemKeyField<zlTypeKeyUser>;
using zlFileItemKeyPW = zlFileItemKeyField<zlTypeKeyPW>;
using zlFileItemKeyEmail = zlFileItemKeyField<zlTypeKeyEmail>;
using zlFileItemKeyUrl = zlFileItemKeyField<zlTypeKeyUrl>;
using zlFileItemKeyNote = zlFileItemKeyField<zlTypeKeyNote>;

// The name is the one field also kept deciphered, for the key list.
class zlFileItemKeyName : public zlFileItemKeyItem {
  public:
    zlFileItemKeyName(zlEncrypt* owner, const dunmar::dm_utf8_str& value,
                      const dunmar::dm_utf8_str& plainName)
        : zlFileItemKeyItem(owner, value), plainName_(plainName) {}

    int typeCode() const override { return zlTypeKeyName; }
    zlFileItem* clone() const override;

    // Deciphers the value on first request when no plain name is cached yet.
    const dunmar::dm_utf8_str& plainName() const;
    void setValue(const dunmar::dm_utf8_str& value, const dunmar::dm_utf8_str& plainName);
    // Without the plain form at hand it is deciphered again on the next request.
    void setValue(const dunmar::dm_utf8_str& value) override;

  private:
    mutable dunmar::dm_utf8_str plainName_;
};

// Makes the field item of the given type code (6 to 12); null for other codes.
zlFileItemKeyItem* zlMakeKeyField(int typeCode, zlEncrypt* owner, const dunmar::dm_utf8_str& value);

}  // namespace Zelto
