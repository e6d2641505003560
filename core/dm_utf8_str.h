#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "core/dm_object.h"

namespace dunmar {

class dm_string;

// Byte text, UTF-8 by convention: the form of everything that goes to or comes from the key
// file. The value is never null; c_str() of an empty value is "".
class dm_utf8_str : public dm_object {
  public:
    dm_utf8_str();
    dm_utf8_str(const char* text);  // null counts as empty
    dm_utf8_str(const char* bytes, size_t len);
    explicit dm_utf8_str(const std::string& s);

    std::unique_ptr<dm_object> clone() const override;
    // Adds "value" with the bytes unchanged, then writes as dm_object.
    bool write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                           dm_xml_attributes& attributes) const override;
    const char* class_name() const override;

    const char* c_str() const { return value_.c_str(); }
    size_t length() const { return value_.size(); }
    bool empty() const { return value_.empty(); }
    const std::string& str() const { return value_; }

    void assign(const char* bytes, size_t len);
    void append(const char* text);  // null appends nothing
    void append(const char* bytes, size_t len);
    void append(const dm_utf8_str& other);
    void clear() { value_.clear(); }
    // Exchanges the bytes with `other`, so that large texts change hands without a copy.
    void swap_bytes(std::string& other) { value_.swap(other); }

    // Byte-wise comparison of the values; names and attributes take no part.
    bool equals(const dm_utf8_str& other) const { return value_ == other.value_; }

    // Strict conversion; stops at the first ill-formed sequence.
    dm_string to_wide() const;

  private:
    std::string value_;
};

}  // namespace dunmar

// to_wide() returns a dm_string: pull its definition in so that one include is enough.
#include "core/dm_string.h"
