#pragma once

namespace Zelto {

// Type codes of the key item tree. They mirror the elements of the key file; 5 is unused.
enum zlTypeCode : int {
    zlTypeRoot = 1,
    zlTypeSettings = 2,
    zlTypeKeys = 3,
    zlTypeKey = 4,
    zlTypeKeyName = 6,
    zlTypeKeyLabel = 7,
    zlTypeKeyUser = 8,
    zlTypeKeyPW = 9,
    zlTypeKeyEmail = 10,
    zlTypeKeyUrl = 11,
    zlTypeKeyNote = 12,
    zlTypeTrash = 13,
};

}  // namespace Zelto
