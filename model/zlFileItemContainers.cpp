#include "model/zlFileItemContainers.h"

#include "model/zlFileItemKey.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

// Appends to target a copy of every key of source, re-enciphered under target's owner.
// Stops at the first key that cannot be copied.
bool copyKeys(zlFileItem& target, const zlFileItem& source) {
    for (size_t i = 0; i < source.childCount(); ++i) {
        const zlFileItem* c = source.child(i);
        if (!c || c->typeCode() != zlTypeKey)
            continue;
        auto key = std::make_unique<zlFileItemKey>(target.owner());
        if (!key->copyFrom(static_cast<const zlFileItemKey&>(*c)))
            return false;
        target.appendChild(std::move(key));
    }
    return true;
}

}  // namespace

bool zlFileItemRoot::writeXml(const dm_utf8_str& indent, dm_utf8_str& out) const {
    writeContainer("Zelto", indent, out);
    return true;
}

zlFileItem* zlFileItemRoot::clone() const {
    auto* copy = new zlFileItemRoot(owner());
    cloneChildrenInto(*copy);
    return copy;
}

bool zlFileItemKeys::writeXml(const dm_utf8_str& indent, dm_utf8_str& out) const {
    writeContainer("keys", indent, out);
    return true;
}

zlFileItem* zlFileItemKeys::clone() const {
    auto* copy = new zlFileItemKeys(owner());
    cloneChildrenInto(*copy);
    return copy;
}

bool zlFileItemKeys::copyKeysFrom(const zlFileItem& other) {
    return copyKeys(*this, other);
}

bool zlFileItemTrash::writeXml(const dm_utf8_str& indent, dm_utf8_str& out) const {
    writeContainer("trash", indent, out);
    return true;
}

zlFileItem* zlFileItemTrash::clone() const {
    auto* copy = new zlFileItemTrash(owner());
    cloneChildrenInto(*copy);
    return copy;
}

bool zlFileItemTrash::copyKeysFrom(const zlFileItem& other) {
    return copyKeys(*this, other);
}

}  // namespace Zelto
