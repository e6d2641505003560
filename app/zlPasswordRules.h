#pragma once

#include "core/dm_string.h"

namespace Zelto {

// The first rule a new master password breaks, as the message shown for it; empty when
// the password passes. Allowed: 8 to 127 characters, A-Z, a-z and 0-9, a letter first.
dunmar::dm_string zlPasswordRuleMessage(const dunmar::dm_string& password);

// Message when the verification differs from the password.
dunmar::dm_string zlPasswordMismatchMessage();

// A password proposal made from a GUID text: "zl", then each of the text's first 16
// characters shifted one back (A->Z, a->z, 0->9 wrap), letters lower-case at even and
// upper-case at odd positions, separators dropped.
dunmar::dm_string zlPasswordProposal(const dunmar::dm_string& guidText);

// A proposal from a fresh GUID; false (and out empty) when the system gives none.
bool zlNewPasswordProposal(dunmar::dm_string& out);

}  // namespace Zelto
