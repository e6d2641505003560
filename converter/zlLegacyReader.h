#pragma once

#include "converter/zlLegacyFile.h"
#include "core/dm_utf8_str.h"

namespace Zelto {

// Reads the text of a key file of the older format into out. False when the text is not
// such a file or is damaged: elements not closed or closed out of order, a second root,
// settings or key list, an element where none belongs (a trash, an unknown key field),
// a key field without encrypted="true" or "false", text where no value belongs, or
// settings without <pw>. Refusing what it does not know keeps the conversion from
// dropping data silently.
bool zlReadLegacyText(const dunmar::dm_utf8_str& text, zlLegacyFile& out);

}  // namespace Zelto
