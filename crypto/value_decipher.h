#pragma once

#include <cstddef>
#include <string>

#include "crypto/code_table.h"

namespace Zelto {

// Reads the printable text of one value back into its plain bytes, replacing `plain`.
// Characters are taken in pairs from the start; a pair that is no code is dropped and a final
// single character is ignored. Bytes after the last whole block are ignored. Zero bytes in the
// plain value are kept. False (plain emptied) only when the platform cipher fails.
bool decipher_value(const std::string& pass_phrase, const zlCodeIndex& index, const char* text,
                    size_t size, std::string& plain);

}  // namespace Zelto
