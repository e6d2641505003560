#pragma once

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

namespace Zelto {

// Writes text to a new file beside path (path + ".new") and moves that over path in one
// step, so that path keeps its old content whenever this fails. False on failure; the new
// file is then removed.
bool zlReplaceFileText(const dunmar::dm_string& path, const dunmar::dm_utf8_str& text);

// The platform's part: moves from over to, replacing it; and removes a file.
bool zlMoveFileOver(const dunmar::dm_string& from, const dunmar::dm_string& to);
void zlRemoveFile(const dunmar::dm_string& path);

}  // namespace Zelto
