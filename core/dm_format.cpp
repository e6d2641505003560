#include "core/dm_format.h"

#include <cstdio>

namespace dunmar {

std::string dm_format_long(long value) {
    // Zero-filled so that the text is terminated whatever snprintf does on a given runtime.
    char buffer[560] = {};
    std::snprintf(buffer, sizeof buffer - 1, "%ld", value);
    return std::string(buffer);
}

std::string dm_xml_escape(const char* bytes, size_t len) {
    std::string out;
    if (bytes == nullptr)
        return out;
    out.reserve(len);
    for (size_t i = 0; i < len; ++i) {
        switch (bytes[i]) {
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '&':
                out += "&amp;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\'':
                out += "&apos;";
                break;
            default:
                out += bytes[i];
                break;
        }
    }
    return out;
}

std::string dm_xml_escape(const std::string& text) {
    return dm_xml_escape(text.data(), text.size());
}

dm_guid_fields dm_guid_from_bytes(const uint8_t bytes[16]) {
    dm_guid_fields guid;
    guid.data1 = (uint32_t{bytes[0]} << 24) | (uint32_t{bytes[1]} << 16) |
                 (uint32_t{bytes[2]} << 8) | uint32_t{bytes[3]};
    guid.data2 = static_cast<uint16_t>((bytes[4] << 8) | bytes[5]);
    guid.data3 = static_cast<uint16_t>((bytes[6] << 8) | bytes[7]);
    for (int i = 0; i < 8; ++i)
        guid.data4[i] = bytes[8 + i];
    return guid;
}

void dm_guid_set_version4(uint8_t bytes[16]) {
    bytes[6] = static_cast<uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<uint8_t>((bytes[8] & 0x3F) | 0x80);
}

dm_wstring dm_format_guid(const dm_guid_fields& guid) {
    char buffer[64] = {};
    const uint8_t* d = guid.data4;
    std::snprintf(
        buffer, sizeof buffer, "%8.8lX-%4.4X-%4.4X-%2.2X%2.2X-%2.2X%2.2X%2.2X%2.2X%2.2X%2.2X",
        static_cast<unsigned long>(guid.data1), static_cast<unsigned>(guid.data2),
        static_cast<unsigned>(guid.data3), static_cast<unsigned>(d[0]), static_cast<unsigned>(d[1]),
        static_cast<unsigned>(d[2]), static_cast<unsigned>(d[3]), static_cast<unsigned>(d[4]),
        static_cast<unsigned>(d[5]), static_cast<unsigned>(d[6]), static_cast<unsigned>(d[7]));
    // Plain ASCII: widening each byte is the whole conversion.
    dm_wstring text;
    for (const char* p = buffer; *p != 0; ++p)
        text += static_cast<dm_wchar>(*p);
    return text;
}

}  // namespace dunmar
