#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>

#include "core/dm_format.h"

using namespace dunmar;

TEST(DmFormat, LongUsesPercentLd) {
    for (long v : {0L, -1L, 4711L, LONG_MAX, LONG_MIN})
        EXPECT_EQ(dm_format_long(v), std::to_string(v));
}

TEST(DmFormat, XmlEscapeReplacesTheFiveSpecialCharactersOnly) {
    EXPECT_EQ(dm_xml_escape(std::string("a<b>c&d\"e'f")), "a&lt;b&gt;c&amp;d&quot;e&apos;f");
    EXPECT_EQ(dm_xml_escape(std::string("&amp;")), "&amp;amp;");
    // Bytes beyond ASCII and control bytes pass unchanged, an embedded zero included.
    const std::string raw("\xC3\xA9\t\n\0z", 6);
    EXPECT_EQ(dm_xml_escape(raw), raw);
    EXPECT_EQ(dm_xml_escape(nullptr, 3), "");
}

// Upper case, zero-padded fields; bytes read in network order.
TEST(DmFormat, GuidText) {
    dm_guid_fields guid;
    guid.data1 = 0xA;
    guid.data2 = 0xB;
    guid.data3 = 0;
    guid.data4[0] = 0x1;
    guid.data4[7] = 0xF;
    EXPECT_EQ(dm_format_guid(guid), DM_W("0000000A-000B-0000-0100-00000000000F"));

    uint8_t bytes[16];
    for (int i = 0; i < 16; ++i)
        bytes[i] = static_cast<uint8_t>(0xF0 | i);
    dm_guid_set_version4(bytes);
    EXPECT_EQ(bytes[6], 0x46);  // version nibble 4, low nibble kept
    EXPECT_EQ(bytes[8], 0xB8);  // variant bits 10, low six bits kept
    EXPECT_EQ(dm_format_guid(dm_guid_from_bytes(bytes)),
              DM_W("F0F1F2F3-F4F5-46F7-B8F9-FAFBFCFDFEFF"));
}
