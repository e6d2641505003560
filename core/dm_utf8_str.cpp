#include "core/dm_utf8_str.h"

#include <cstring>

#include "core/dm_convert.h"
#include "core/dm_xml_attributes.h"

namespace dunmar {

dm_utf8_str::dm_utf8_str() = default;

dm_utf8_str::dm_utf8_str(const char* text) : value_(text != nullptr ? text : "") {}

dm_utf8_str::dm_utf8_str(const char* bytes, size_t len) {
    assign(bytes, len);
}

dm_utf8_str::dm_utf8_str(const std::string& s) : value_(s) {}

std::unique_ptr<dm_object> dm_utf8_str::clone() const {
    return std::make_unique<dm_utf8_str>(*this);
}

bool dm_utf8_str::write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                                    dm_xml_attributes& attributes) const {
    attributes.add("value", value_);
    return dm_object::write_opening_tag(out, element_name, attributes);
}

const char* dm_utf8_str::class_name() const {
    return "dm_utf8_str";
}

void dm_utf8_str::assign(const char* bytes, size_t len) {
    if (bytes == nullptr) {
        value_.clear();
        return;
    }
    value_.assign(bytes, len);
}

void dm_utf8_str::append(const char* text) {
    if (text != nullptr)
        value_.append(text, std::strlen(text));
}

void dm_utf8_str::append(const char* bytes, size_t len) {
    if (bytes != nullptr)
        value_.append(bytes, len);
}

void dm_utf8_str::append(const dm_utf8_str& other) {
    value_.append(other.value_);
}

dm_string dm_utf8_str::to_wide() const {
    return dm_string(utf8_to_utf16(value_.data(), value_.size()));
}

}  // namespace dunmar
