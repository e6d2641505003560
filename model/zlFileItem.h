#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "core/dm_utf8_str.h"
#include "model/zlTypeCodes.h"

namespace Zelto {

class zlEncrypt;

// One node of the in-memory key file. Every item knows the cipher object that owns the
// tree, because field values stay enciphered and pass through it on the way in and out.
class zlFileItem {
  public:
    explicit zlFileItem(zlEncrypt* owner) : owner_(owner) {}
    virtual ~zlFileItem();

    virtual int typeCode() const = 0;
    // Appends this item's element to out; the opening tag goes at the current end of out.
    virtual bool writeXml(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const = 0;
    // Deep copy with the same owner.
    virtual zlFileItem* clone() const = 0;

    zlEncrypt* owner() const { return owner_; }

    size_t childCount() const { return children_.size(); }
    // May be null: every walk skips empty slots.
    zlFileItem* child(size_t index) const { return children_[index].get(); }

    zlFileItem* findChild(int typeCode) const;
    long indexOfChild(const zlFileItem* item) const;
    void clearChildren();
    void appendChild(zlFileItem* item);
    void appendChild(std::unique_ptr<zlFileItem> item);
    // Moves the child at index to the end of target's children, keeping the order of the rest.
    bool moveChild(long index, zlFileItem* target);

    zlFileItem(const zlFileItem&) = delete;
    zlFileItem& operator=(const zlFileItem&) = delete;

  protected:
    // "\r\n" + indent + two blanks before each child; "\r\n" + indent after the last one.
    void writeChildList(const dunmar::dm_utf8_str& indent, dunmar::dm_utf8_str& out) const;
    // Writes <name>children</name> for the container items.
    void writeContainer(const char* name, const dunmar::dm_utf8_str& indent,
                        dunmar::dm_utf8_str& out) const;
    void cloneChildrenInto(zlFileItem& copy) const;
    void reserveChildren(size_t count) { children_.reserve(count); }

  private:
    zlEncrypt* owner_;
    std::vector<std::unique_ptr<zlFileItem>> children_;
};

}  // namespace Zelto
