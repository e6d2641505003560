#pragma once

#include "core/dm_wchar.h"

namespace Zelto {

struct zlTextRow {
    const dunmar::dm_wchar* column[3];  // English, German, French; null where there is none
};

constexpr int zlTextTableSize = 76;
extern const zlTextRow zlTextTable[zlTextTableSize];

}  // namespace Zelto
