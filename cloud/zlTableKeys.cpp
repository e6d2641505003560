#include "cloud/zlTableKeys.h"

#include <cstdio>
#include <string>

namespace Zelto {

namespace {

bool forbidden(dunmar::dm_wchar c) {
    return c == '/' || c == '\\' || c == '#' || c == '?' || c == '%' || c <= 0x1F ||
           (c >= 0x7F && c <= 0x9F);
}

std::string describe(dunmar::dm_wchar c) {
    if (c > 0x20 && c < 0x7F) {
        return std::string("'") + static_cast<char>(c) + "'";
    }
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(c));
    return text;
}

}  // namespace

zlCloudResult zlCheckTableKey(const dunmar::dm_string& key, const char* what) {
    const std::string name(what);
    if (key.length() > zlMaxTableKeyUnits) {
        return zlCloudFailure(zlCloudBadKey, "the " + name + " is longer than " +
                                                 std::to_string(zlMaxTableKeyUnits) +
                                                 " characters");
    }
    const dunmar::dm_wstring& units = key.str();
    for (size_t i = 0; i < units.size(); ++i) {
        const dunmar::dm_wchar c = units[i];
        if (forbidden(c)) {
            return zlCloudFailure(zlCloudBadKey, "the " + name + " must not contain " +
                                                     describe(c) +
                                                     " (the table service refuses it in a key)");
        }
        const bool high = c >= 0xD800 && c <= 0xDBFF;
        const bool low = c >= 0xDC00 && c <= 0xDFFF;
        const bool pairedHigh =
            high && i + 1 < units.size() && units[i + 1] >= 0xDC00 && units[i + 1] <= 0xDFFF;
        if (low || (high && !pairedHigh)) {
            return zlCloudFailure(zlCloudBadText, "the " + name + " is not well-formed text");
        }
        if (pairedHigh) {
            ++i;
        }
    }
    return zlCloudSuccess();
}

}  // namespace Zelto
