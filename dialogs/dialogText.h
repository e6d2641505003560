#pragma once

#include "core/dm_string.h"

namespace Zelto {

// "Zelto - " followed by suffix: the title of most dialogs.
dunmar::dm_string zlDialogTitle(const dunmar::dm_wchar* suffix);

// The program's version text, "2.2.1".
dunmar::dm_string zlVersionText();

// The date this program was compiled, as "Jan 22 2018" (single-digit days unpadded).
dunmar::dm_string zlBuildDate();

// The maker's web site: the address the links open, and the short text the login shows.
constexpr const wchar_t* kMakerAddress = L"https://zelto.example/";
constexpr const wchar_t* kMakerLinkText = L"zelto.example";

}  // namespace Zelto
