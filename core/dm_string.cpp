#include "core/dm_string.h"

#include "core/dm_convert.h"
#include "core/dm_xml_attributes.h"

namespace dunmar {

dm_string::dm_string() = default;

dm_string::dm_string(const dm_wchar* text) {
    append(text);
}

dm_string::dm_string(const dm_wchar* text, size_t len) {
    assign(text, len);
}

dm_string::dm_string(const dm_wstring& s) : value_(s) {}

std::unique_ptr<dm_object> dm_string::clone() const {
    return std::make_unique<dm_string>(*this);
}

bool dm_string::write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                                  dm_xml_attributes& attributes) const {
    attributes.add("value", to_utf8().str());
    return dm_object::write_opening_tag(out, element_name, attributes);
}

const char* dm_string::class_name() const {
    return "dm_string";
}

void dm_string::assign(const dm_wchar* text, size_t len) {
    if (text == nullptr) {
        value_.clear();
        return;
    }
    value_.assign(text, len);
}

void dm_string::append(const dm_wchar* text) {
    if (text != nullptr)
        value_.append(text);
}

void dm_string::append(const dm_wchar* text, size_t len) {
    if (text != nullptr)
        value_.append(text, len);
}

void dm_string::append(const dm_string& other) {
    value_.append(other.value_);
}

long dm_string::find_first(dm_wchar ch) const {
    const size_t pos = value_.find(ch);
    return pos == dm_wstring::npos ? -1 : static_cast<long>(pos);
}

long dm_string::find_last(dm_wchar ch) const {
    const size_t pos = value_.rfind(ch);
    return pos == dm_wstring::npos ? -1 : static_cast<long>(pos);
}

dm_string dm_string::substring(long start, long count) const {
    const long length = static_cast<long>(value_.size());
    if (length == 0 || count < 1 || start < 0 || start >= length)
        return dm_string();
    if (count > length - start)
        count = length - start;
    return dm_string(value_.substr(static_cast<size_t>(start), static_cast<size_t>(count)));
}

dm_utf8_str dm_string::to_utf8() const {
    return dm_utf8_str(utf16_to_utf8(value_.data(), value_.size()));
}

}  // namespace dunmar
