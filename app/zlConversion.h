#pragma once

#include "app/zlConverterRun.h"
#include "app/zlFileSet.h"
#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// Converts the set's key file of the older format: copies it to the working copy, runs the
// converter on that, keeps the old file as the set's backup and puts the converted copy in
// its place. The key file is not touched before the converter has succeeded. False with a
// detail text naming the failed step; for a set without folder, the set's own detail.
// run is the way the converter runs: its program by default, or in this process.
bool zlConvertKeyFile(const zlFileSet& files, const dunmar::dm_utf8_str& password,
                      dunmar::dm_string& detail, zlConverterRunner run = zlRunConverter);

// The branch of reading that meets a key file of the older format: converts it, reads the
// converted file into file, completes its tree and writes it back at once. The result is
// that of the new reading (zlReadOk on success); a failed conversion gives zlReadFailed.
// On failure detail says why. The converter and its working copy are removed in every case.
//
// Completing the tree adds what the reading did not find: a settings item with default
// values (every setting the file holds is kept as read) and an empty key list. The rewrite
// keeps the file's own language name. The converted file is already whole on disk, so a
// failure of that rewrite does not fail the reading.
int zlReadWithConversion(zlKeyFile& file, const zlFileSet& files,
                         const dunmar::dm_utf8_str& password, dunmar::dm_string& detail,
                         zlConverterRunner run = zlRunConverter);

}  // namespace Zelto
