#include "model/zlFileItem.h"

#include <utility>

namespace Zelto {

using dunmar::dm_utf8_str;

zlFileItem::~zlFileItem() = default;

zlFileItem* zlFileItem::findChild(int typeCode) const {
    for (const auto& c : children_) {
        if (c && c->typeCode() == typeCode)
            return c.get();
    }
    return nullptr;
}

long zlFileItem::indexOfChild(const zlFileItem* item) const {
    for (size_t i = 0; i < children_.size(); ++i) {
        if (item && children_[i].get() == item)
            return static_cast<long>(i);
    }
    return -1;
}

void zlFileItem::clearChildren() {
    children_.clear();
}

void zlFileItem::appendChild(zlFileItem* item) {
    children_.emplace_back(item);
}

void zlFileItem::appendChild(std::unique_ptr<zlFileItem> item) {
    children_.push_back(std::move(item));
}

bool zlFileItem::moveChild(long index, zlFileItem* target) {
    if (!target || target == this || index < 0 || static_cast<size_t>(index) >= children_.size())
        return false;
    target->children_.push_back(std::move(children_[index]));
    children_.erase(children_.begin() + index);
    return true;
}

void zlFileItem::writeChildList(const dm_utf8_str& indent, dm_utf8_str& out) const {
    dm_utf8_str inner(indent);
    inner.append("  ", 2);
    bool any = false;
    for (const auto& c : children_) {
        if (!c)
            continue;
        out.append("\r\n", 2);
        out.append(inner);
        c->writeXml(inner, out);
        any = true;
    }
    if (any) {
        out.append("\r\n", 2);
        out.append(indent);
    }
}

void zlFileItem::writeContainer(const char* name, const dm_utf8_str& indent,
                                dm_utf8_str& out) const {
    out.append("<");
    out.append(name);
    out.append(">");
    writeChildList(indent, out);
    out.append("</");
    out.append(name);
    out.append(">");
}

void zlFileItem::cloneChildrenInto(zlFileItem& copy) const {
    for (const auto& c : children_) {
        if (c)
            copy.appendChild(c->clone());
    }
}

}  // namespace Zelto
