#pragma once

#include "core/dm_string.h"
#include "model/zlFileItem.h"

namespace Zelto {

// The text of a key's row in the key list: the name, then the label in brackets when the
// label is not empty.
dunmar::dm_string zlRowText(const dunmar::dm_string& name, const dunmar::dm_string& label);

// Hides a row but its first characters: from index max(position, 0) to the end every
// character becomes '*'. A text shorter than the position, and an empty one, stay whole.
dunmar::dm_string zlMaskRow(const dunmar::dm_string& text, int position);

// The longest name, in characters, of the container's keys (all of them, whatever a filter
// shows), but at least 10.
int zlLongestNameLength(const zlFileItem* container);

// The upper end of the partial-show range: ten characters past the longest name.
int zlPartialShowMaximum(const zlFileItem* container);

}  // namespace Zelto
