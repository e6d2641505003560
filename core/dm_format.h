#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/dm_wchar.h"

namespace dunmar {

// The C format "%ld"; every integer that goes into the key file is written this way.
std::string dm_format_long(long value);

// Replaces the five XML special characters by their entities; every other byte is copied.
std::string dm_xml_escape(const char* bytes, size_t len);
std::string dm_xml_escape(const std::string& text);

// A GUID in its field form, as the system hands it out.
struct dm_guid_fields {
    uint32_t data1 = 0;
    uint16_t data2 = 0;
    uint16_t data3 = 0;
    uint8_t data4[8] = {};
};

// Reads 16 bytes in network order (data1, data2 and data3 big-endian, then data4).
dm_guid_fields dm_guid_from_bytes(const uint8_t bytes[16]);

// Makes random bytes a version-4 GUID: version nibble 4, variant bits 10.
void dm_guid_set_version4(uint8_t bytes[16]);

// "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX" in upper-case hexadecimal, 36 characters, no braces.
dm_wstring dm_format_guid(const dm_guid_fields& guid);

}  // namespace dunmar
