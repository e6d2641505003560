#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "core/dm_format.h"
#include "core/dm_object.h"

namespace dunmar {

class dm_utf8_str;
class dm_xml_attributes;

// Ordered sequence of whole string objects: each item keeps its own object name and
// attribute set, and copying the list copies every item in order.
template <class Item>
class dm_basic_list : public dm_object {
  public:
    using iterator = typename std::vector<Item>::iterator;
    using const_iterator = typename std::vector<Item>::const_iterator;

    size_t size() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    // Requires i < size(); get() is the checked form.
    Item& at(size_t i) { return items_[i]; }
    const Item& at(size_t i) const { return items_[i]; }
    // The item at i, or null when i is out of range.
    Item* get(size_t i) { return i < items_.size() ? &items_[i] : nullptr; }
    const Item* get(size_t i) const { return i < items_.size() ? &items_[i] : nullptr; }

    void append(const Item& item) { items_.push_back(item); }
    void append(Item&& item) { items_.push_back(std::move(item)); }
    void clear() { items_.clear(); }

    iterator begin() { return items_.begin(); }
    iterator end() { return items_.end(); }
    const_iterator begin() const { return items_.begin(); }
    const_iterator end() const { return items_.end(); }

    // Adds "size", writes the opening tag as dm_object, then every item as a complete element.
    bool write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                           dm_xml_attributes& attributes) const override {
        add_attribute(attributes, "size", dm_format_long(static_cast<long>(items_.size())));
        if (!dm_object::write_opening_tag(out, element_name, attributes))
            return false;
        for (const Item& item : items_) {
            if (!item.write_object(out))
                return false;
        }
        return true;
    }

  private:
    std::vector<Item> items_;
};

}  // namespace dunmar
