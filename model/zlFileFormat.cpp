#include "model/zlFileFormat.h"

#include <cstring>

namespace Zelto {

using dunmar::dm_utf8_str;

bool zlContainsBeforeEnd(const dm_utf8_str& text, const char* needle) {
    const size_t n = std::strlen(needle);
    if (n == 0)
        return false;
    // The first occurrence decides: only one that ends before the final byte counts.
    const size_t pos = text.str().find(needle, 0, n);
    return pos != std::string::npos && pos + n < text.length();
}

bool zlIsOlderFormat(const dm_utf8_str& text) {
    const bool current = zlContainsBeforeEnd(text, "<version>") &&
                         zlContainsBeforeEnd(text, "<verify>") &&
                         zlContainsBeforeEnd(text, "<autolock>");
    return !current && zlContainsBeforeEnd(text, "encrypted");
}

dm_utf8_str zlSkeletonText(const dm_utf8_str& verify) {
    dm_utf8_str text(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
        "<Zelto>\r\n"
        "  <settings>\r\n"
        "    <verify>");
    text.append(verify);
    text.append(
        "</verify>\r\n"
        "    <version>2.0</version>\r\n"
        "  </settings>\r\n"
        "  <keys>\r\n"
        "  </keys>\r\n"
        "</Zelto>\r\n");
    return text;
}

}  // namespace Zelto
