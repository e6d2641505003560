#include "core/dm_xml_attributes.h"

namespace dunmar {

std::unique_ptr<dm_object> dm_xml_attributes::clone() const {
    return std::make_unique<dm_xml_attributes>(*this);
}

void dm_xml_attributes::add(const std::string& name, const std::string& value) {
    dm_utf8_str item(value);
    item.set_object_name(name);
    append(std::move(item));
}

}  // namespace dunmar
