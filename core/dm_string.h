#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "core/dm_object.h"
#include "core/dm_utf8_str.h"
#include "core/dm_wchar.h"

namespace dunmar {

// Wide (UTF-16) text: the form of everything that meets the Windows interface. The value is
// never null; c_str() of an empty value is an empty zero-terminated text.
class dm_string : public dm_object {
  public:
    dm_string();
    dm_string(const dm_wchar* text);  // null counts as empty
    dm_string(const dm_wchar* text, size_t len);
    explicit dm_string(const dm_wstring& s);

    std::unique_ptr<dm_object> clone() const override;
    // Adds "value" with the text converted to UTF-8, then writes as dm_object.
    bool write_opening_tag(dm_utf8_str& out, const std::string& element_name,
                           dm_xml_attributes& attributes) const override;
    const char* class_name() const override;

    const dm_wchar* c_str() const { return value_.c_str(); }
    size_t length() const { return value_.size(); }
    bool empty() const { return value_.empty(); }
    const dm_wstring& str() const { return value_; }

    void assign(const dm_wchar* text, size_t len);
    void append(const dm_wchar* text);  // null appends nothing
    void append(const dm_wchar* text, size_t len);
    void append(const dm_string& other);
    void clear() { value_.clear(); }

    // Character-wise, case-sensitive comparison of the values; names and attributes take no
    // part.
    bool equals(const dm_string& other) const { return value_ == other.value_; }

    // Index of the first / last occurrence, or -1 (also for an empty text).
    long find_first(dm_wchar ch) const;
    long find_last(dm_wchar ch) const;
    // A new text of at most `count` characters from `start`. Empty when the text is empty,
    // count is below 1, or start is negative or not below the length; count is cut to what
    // is left after start.
    dm_string substring(long start, long count) const;

    // Strict conversion; stops at the first ill-formed sequence.
    dm_utf8_str to_utf8() const;

  private:
    dm_wstring value_;
};

}  // namespace dunmar
