#pragma once

#include <cstddef>
#include <string>

#include "core/dm_wchar.h"

namespace dunmar {

// Strict UTF-8 <-> UTF-16 conversion. Conversion stops at the first ill-formed or truncated
// sequence (overlong form, lone surrogate, value above U+10FFFF, a sequence running past the
// end) and keeps what was converted before it. When `complete` is given it tells whether the
// whole input was converted. A null input converts to an empty text.
dm_wstring utf8_to_utf16(const char* bytes, size_t len, bool* complete = nullptr);
dm_wstring utf8_to_utf16(const char* text);  // zero-terminated
std::string utf16_to_utf8(const dm_wchar* units, size_t len, bool* complete = nullptr);
std::string utf16_to_utf8(const dm_wchar* text);  // zero-terminated

}  // namespace dunmar
