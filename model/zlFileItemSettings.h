#pragma once

#include <cstdint>

#include "model/zlFileItem.h"

namespace Zelto {

// The settings element. Numbers are plain; the three user fields are held enciphered.
class zlFileItemSettings : public zlFileItem {
  public:
    explicit zlFileItemSettings(zlEncrypt* owner);
    int typeCode() const override { return zlTypeSettings; }
    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;
    zlFileItem* clone() const override;

    // Stored text, or (decipher) the plain text; empty when deciphering fails.
    dunmar::dm_utf8_str userFirstName(bool decipher) const;
    dunmar::dm_utf8_str userLastName(bool decipher) const;
    dunmar::dm_utf8_str userEmail(bool decipher) const;
    // Empties the field first; with encipher the text goes through the owner, and a failure
    // leaves the field empty and returns false.
    bool setUserFirstName(const dunmar::dm_utf8_str& text, bool encipher);
    bool setUserLastName(const dunmar::dm_utf8_str& text, bool encipher);
    bool setUserEmail(const dunmar::dm_utf8_str& text, bool encipher);

    // Copies everything; the user fields are re-enciphered under this item's owner.
    bool assignFrom(const zlFileItemSettings& other);

    // The version text "2.2.1" of this program.
    static dunmar::dm_utf8_str programVersion();

    dunmar::dm_utf8_str verify;
    dunmar::dm_utf8_str version;
    int32_t autolock = 30;
    int32_t autoClearClipboard = 30;
    int32_t showSelectedKey = 2;
    dunmar::dm_utf8_str language;

  private:
    dunmar::dm_utf8_str userField(const dunmar::dm_utf8_str& stored, bool decipher) const;
    bool setUserField(dunmar::dm_utf8_str& field, const dunmar::dm_utf8_str& text, bool encipher);

    dunmar::dm_utf8_str userFirstName_;
    dunmar::dm_utf8_str userLastName_;
    dunmar::dm_utf8_str userEmail_;
};

}  // namespace Zelto
