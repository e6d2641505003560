#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "core/dm_stringlist.h"

namespace Zelto {

// A key as ls shows it: its position in its container and its deciphered name and label.
struct zlcListedKey {
    size_t position = 0;
    std::string name;
    std::string label;
};

// Text: one line each. Line ends and other control characters in names and labels become
// blanks, so that every key stays on its one line.
std::string zlcKeyListText(const std::vector<zlcListedKey>& keys);
std::string zlcLabelsText(const dunmar::dm_stringlist& labels);
// The seven fields, one a line, a note's further lines indented; the password masked
// unless revealed.
std::string zlcKeyText(size_t position, const zlKeyFields& fields, bool reveal);

// JSON, indented, ending in a line end. Bytes that are no UTF-8 become U+FFFD.
std::string zlcKeyListJson(const std::vector<zlcListedKey>& keys);
std::string zlcLabelsJson(const dunmar::dm_stringlist& labels);
// The password is null unless revealed.
std::string zlcKeyJson(size_t position, const zlKeyFields& fields, bool reveal);

}  // namespace Zelto
