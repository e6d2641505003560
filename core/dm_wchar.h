#pragma once

#include <string>

namespace dunmar {

// UTF-16 code unit: the native wide character on Windows, so that wide texts go to Win32
// without copies; char16_t elsewhere, where wchar_t is 32 bits wide.
#ifdef _WIN32
using dm_wchar = wchar_t;
#define DM_W(text) L##text
#else
using dm_wchar = char16_t;
#define DM_W(text) u##text
#endif

using dm_wstring = std::basic_string<dm_wchar>;

}  // namespace dunmar
