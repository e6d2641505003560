#pragma once

#include <cstddef>

#include "core/dm_utf8_str.h"

namespace Zelto {

// True when text is made of upper-case hexadecimal pairs only (also when it is empty).
bool zlIsHexText(const dunmar::dm_utf8_str& text);

// True when text has the shape of a value of the older format enciphered under a pass
// phrase of passLength bytes: hexadecimal pairs for the salt, a padding count below 16 and
// whole blocks of at least one. An empty text is the empty value and also counts.
bool zlIsLegacyValue(const dunmar::dm_utf8_str& text, size_t passLength);

}  // namespace Zelto
