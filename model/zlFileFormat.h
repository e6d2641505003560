#pragma once

#include "core/dm_utf8_str.h"

namespace Zelto {

// Substring test of the key file's format check. Start positions run up to, but not
// including, the last possible one, so a needle that ends at the text's last byte (or is
// as long as the text) is not found.
bool zlContainsBeforeEnd(const dunmar::dm_utf8_str& text, const char* needle);

// A file of the older format lacks one of <version>, <verify>, <autolock> and holds the
// word "encrypted" somewhere.
bool zlIsOlderFormat(const dunmar::dm_utf8_str& text);

// The text written at first start: version "2.0", the verify value and an empty key list.
dunmar::dm_utf8_str zlSkeletonText(const dunmar::dm_utf8_str& verify);

}  // namespace Zelto
