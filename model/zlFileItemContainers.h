#pragma once

#include "model/zlFileItem.h"

namespace Zelto {

// The document element: settings, key list and trash hang below it.
class zlFileItemRoot : public zlFileItem {
  public:
    explicit zlFileItemRoot(zlEncrypt* owner) : zlFileItem(owner) {}
    int typeCode() const override { return zlTypeRoot; }
    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;
    zlFileItem* clone() const override;
};

class zlFileItemKeys : public zlFileItem {
  public:
    explicit zlFileItemKeys(zlEncrypt* owner) : zlFileItem(owner) {}
    int typeCode() const override { return zlTypeKeys; }
    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;
    zlFileItem* clone() const override;

    // Re-enciphers every key of other under this item's owner and appends the copies.
    bool copyKeysFrom(const zlFileItem& other);
};

// Deleted keys, kept with all their fields.
class zlFileItemTrash : public zlFileItem {
  public:
    explicit zlFileItemTrash(zlEncrypt* owner) : zlFileItem(owner) {}
    int typeCode() const override { return zlTypeTrash; }
    bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const override;
    zlFileItem* clone() const override;

    bool copyKeysFrom(const zlFileItem& other);
};

}  // namespace Zelto
