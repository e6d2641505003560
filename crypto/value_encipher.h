#pragma once

#include <cstddef>
#include <string>

#include "crypto/code_table.h"
#include "crypto/salt_random.h"

namespace Zelto {

// Enciphers one value of `size` bytes (size >= 1) into its printable text, replacing `text`:
// salt, padding count, then the zero-padded 16-byte blocks, each byte written as its code.
// The salt is drawn from `salt_source` only when the pass phrase is shorter than 32 bytes.
// False (text emptied) when the platform cipher fails.
bool encipher_value(const std::string& pass_phrase, const char (&codes)[kCodeTableSize][kCodeSize],
                    zlSaltRandom& salt_source, const char* plain, size_t size, std::string& text);

}  // namespace Zelto
