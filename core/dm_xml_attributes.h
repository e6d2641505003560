#pragma once

#include <memory>
#include <string>

#include "core/dm_utf8_strlist.h"

namespace dunmar {

// Attribute set of an element: an ordered list of byte texts, each item's object name being
// the attribute name and its value the attribute value. Written as a dm_utf8_strlist.
class dm_xml_attributes : public dm_utf8_strlist {
  public:
    std::unique_ptr<dm_object> clone() const override;

    // Appends a named item; the order of adding is the order of writing.
    void add(const std::string& name, const std::string& value);
};

}  // namespace dunmar
