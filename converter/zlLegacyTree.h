#pragma once

#include "converter/zlLegacyFile.h"
#include "crypto/zlHexCipher.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// True when the legacy verify value deciphers under legacy's pass phrase to the verify text.
bool zlLegacyPasswordRight(const zlLegacyFile& file, const zlHexCipher& legacy);

// Fills the empty tree of out (whose pass phrase is set) from file: the settings with a new
// verify value and the kept clipboard time, then the key list with every field enciphered
// under out's pass phrase. zlConvertOk, zlConvertNotLegacy for a value that is no
// enciphered value of the older format, zlConvertWriteFailed when the cipher fails.
int zlBuildConvertedTree(const zlLegacyFile& file, const zlHexCipher& legacy, zlKeyFile& out);

}  // namespace Zelto
