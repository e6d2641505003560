// Arbitrary text deciphered under pass phrases of the lengths that change the layout
// (salted and unsalted); the text of any plain text must also round-trip.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "crypto/zlEncrypt.h"

using dunmar::dm_utf8_str;
using Zelto::zlEncrypt;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* phrases[] = {"8 bytes!", "sixteen bytes!!!",
                                    "thirty-two bytes of pass phrase!",
                                    "longer than thirty-two bytes of pass phrase"};
    const std::string input(reinterpret_cast<const char*>(data), size);
    for (const char* phrase : phrases) {
        zlEncrypt cipher;
        cipher.set_pass_phrase(phrase);
        dm_utf8_str plain;
        cipher.decrypt(dm_utf8_str(input), plain);

        const dm_utf8_str original(input.c_str());
        dm_utf8_str text, back;
        if (cipher.encrypt(original, text) != 0)
            std::abort();
        if (cipher.decrypt(text, back) != 0 || !back.equals(original))
            std::abort();
    }
    return 0;
}
