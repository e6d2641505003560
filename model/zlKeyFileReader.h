#pragma once

#include "core/dm_utf8_str.h"

namespace Zelto {

class zlFileItemRoot;

// Walks a key file's text with the XML pull parser into the item tree below root.
// Element starts open containers; element ends store the last text seen into the open item.
class zlKeyFileReader {
  public:
    explicit zlKeyFileReader(zlFileItemRoot& root) : root_(root) {}

    // 1 when walked (malformed XML just ends the walk), -7 when no parser could be made.
    // The text is taken over to keep only one copy of a large file in memory.
    int readText(dunmar::dm_utf8_str&& text);

  private:
    zlFileItemRoot& root_;
};

// Reads a decimal setting the way the C library does (leading blanks and sign, then
// digits; 0 when there are none) and clamps it: below low gives 0, above high gives high.
int zlClampSetting(const char* text, int low, int high);

}  // namespace Zelto
