#pragma once

#include "app/zlFileSet.h"
#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// Reads the set's key file once the password is known: a file of the older format is
// converted first (zlReadWithConversion). The tree must then hold settings and gets an
// empty key list when it has none. False on failure, with detail saying why when there is
// more to say than the failed read itself.
bool zlReadKeyFileWithConversion(zlKeyFile& file, const zlFileSet& files,
                                 const dunmar::dm_utf8_str& password, dunmar::dm_string& detail);

// The message shown when that reading fails:
// ERROR: failed to read "<path>" (<detail>), the bracket only with a detail.
dunmar::dm_string zlReadFailureText(const dunmar::dm_string& path, const dunmar::dm_string& detail);

// The message shown when the first key file cannot be made:
// ERROR: Failed to create default Zelto Xml-File "<path>".
dunmar::dm_string zlCreateFailureText(const dunmar::dm_string& path);

}  // namespace Zelto
