#pragma once

#include "model/zlFileItemKeyItem.h"

namespace Zelto {

// One account. Its fields are found by type code; the setters take enciphered text.
class zlFileItemKey : public zlFileItem {
  public:
    explicit zlFileItemKey(zlEncrypt* owner) : zlFileItem(owner) { reserveChildren(7); }
    int typeCode() const override { return zlTypeKey; }
    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;
    zlFileItem* clone() const override;

    // The first field item of the type, or null.
    const zlFileItemKeyItem* field(int typeCode) const;
    // The enciphered value of the field; empty when the key has none.
    dunmar::dm_utf8_str fieldValue(int typeCode) const;
    // Deciphers the field through the owner; false when that fails. A missing field is empty.
    bool plainField(int typeCode, dunmar::dm_utf8_str& plain) const;
    // The deciphered name (empty when there is no name).
    dunmar::dm_utf8_str plainName() const;

    // Refuses (false, nothing changed) a name that cannot be deciphered.
    bool setName(const dunmar::dm_utf8_str& enciphered);
    bool setLabel(const dunmar::dm_utf8_str& enciphered);
    bool setUser(const dunmar::dm_utf8_str& enciphered);
    bool setPassword(const dunmar::dm_utf8_str& enciphered);
    bool setEmail(const dunmar::dm_utf8_str& enciphered);
    bool setUrl(const dunmar::dm_utf8_str& enciphered);
    bool setNote(const dunmar::dm_utf8_str& enciphered);
    // Dispatches to the setter of the type code; false for a code that is no key field.
    bool setField(int typeCode, const dunmar::dm_utf8_str& enciphered);

    // Takes other's seven fields, deciphered through its owner and enciphered through ours.
    bool copyFrom(const zlFileItemKey& other);

  private:
    bool setPlainField(int typeCode, const dunmar::dm_utf8_str& enciphered);
};

}  // namespace Zelto
