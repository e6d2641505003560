#pragma once

#include <vector>

#include "core/dm_string.h"
#include "core/dm_stringlist.h"
#include "model/zlFileItemKey.h"

namespace Zelto {

// The labels a label field names: the text split at commas, each piece without its leading
// blanks (spaces only; trailing ones stay), empty pieces dropped.
dunmar::dm_stringlist zlLabelPieces(const dunmar::dm_string& label);

// An empty filter passes every label text; otherwise one of its pieces must equal the
// filter exactly (case-sensitive).
bool zlLabelMatches(const dunmar::dm_string& label, const dunmar::dm_string& filter);

// The deciphered label of key; empty when it has none or it does not decipher.
dunmar::dm_string zlKeyLabel(const zlFileItemKey& key);

// The keys of a key container (key list or trash) in file order; empty slots and other
// items are skipped. Position n in the list is element n - 1.
std::vector<zlFileItemKey*> zlKeysOf(const zlFileItem* container);

// Every label of the container's keys once, in first-met order, as the filter box lists them.
dunmar::dm_stringlist zlCollectLabels(const zlFileItem* container);

// The container's keys whose label passes the filter, in file order.
std::vector<zlFileItemKey*> zlFilterKeys(const zlFileItem* container,
                                         const dunmar::dm_string& filter);

}  // namespace Zelto
