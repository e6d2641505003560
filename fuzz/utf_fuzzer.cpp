// Arbitrary bytes through the strict conversions: never a fault, and well-formed input
// survives the round trip unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

using dunmar::dm_utf8_str;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const dm_utf8_str bytes(reinterpret_cast<const char*>(data), size);
    const dunmar::dm_string wide = bytes.to_wide();
    const dm_utf8_str back = wide.to_utf8();
    // What came back is well-formed, so it converts to itself.
    if (!back.to_wide().to_utf8().equals(back))
        std::abort();
    // The result is a prefix of the input (conversion stops at the first bad sequence).
    if (back.length() > size || back.str() != bytes.str().substr(0, back.length())) {
        // A zero byte ends the wide text early; everything before it must still match.
        if (bytes.str().find('\0') == std::string::npos)
            std::abort();
    }
    return 0;
}
