// Text values, the two forms and their conversion, formatting.
#include <gtest/gtest.h>

#include <climits>
#include <sstream>
#include <string>

#include "core/dm_convert.h"
#include "core/dm_format.h"
#include "core/dm_string.h"
#include "core/dm_xml_attributes.h"

using namespace dunmar;

namespace {

dm_wstring units(std::initializer_list<unsigned> list) {
    dm_wstring out;
    for (unsigned u : list)
        out += static_cast<dm_wchar>(u);
    return out;
}

dm_wstring to16(const std::string& bytes, bool* complete) {
    return utf8_to_utf16(bytes.data(), bytes.size(), complete);
}

std::string to8(const dm_wstring& text, bool* complete) {
    return utf16_to_utf8(text.data(), text.size(), complete);
}

}  // namespace

// One form of each length, the highest value, and the zero-terminated and null forms.
TEST(DmConvert, ExactForms) {
    const struct {
        const char* utf8;
        dm_wstring utf16;
    } cases[] = {
        {"x\xDF\xBF\xE0\xA0\x80\xF0\x9F\x98\x80", units({'x', 0x7FF, 0x800, 0xD83D, 0xDE00})},
        {"\xF4\x8F\xBF\xBF", units({0xDBFF, 0xDFFF})},
    };
    for (const auto& c : cases) {
        bool complete = false;
        EXPECT_EQ(to16(c.utf8, &complete), c.utf16);
        EXPECT_TRUE(complete);
        complete = false;
        EXPECT_EQ(to8(c.utf16, &complete), c.utf8);
        EXPECT_TRUE(complete);
        EXPECT_EQ(utf8_to_utf16(c.utf8), c.utf16);
        EXPECT_EQ(utf16_to_utf8(c.utf16.c_str()), c.utf8);
    }
    EXPECT_TRUE(utf8_to_utf16(nullptr, 5).empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr, 5).empty());
    EXPECT_TRUE(utf8_to_utf16(nullptr).empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr).empty());
}

// Every scalar value goes there and back; the byte count shows the length of every form.
TEST(DmConvert, EveryScalarValueRoundTrips) {
    dm_wstring all;
    for (uint32_t cp = 1; cp <= 0x10FFFF; ++cp) {
        if (cp >= 0xD800 && cp <= 0xDFFF)
            continue;
        if (cp < 0x10000) {
            all += static_cast<dm_wchar>(cp);
        } else {
            all += static_cast<dm_wchar>(0xD800 + ((cp - 0x10000) >> 10));
            all += static_cast<dm_wchar>(0xDC00 + ((cp - 0x10000) & 0x3FF));
        }
    }
    bool complete = false;
    const std::string utf8 = to8(all, &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(utf8.size(), 127u + 1920 * 2 + 61440 * 3 + 0x100000 * 4);
    complete = false;
    EXPECT_TRUE(to16(utf8, &complete) == all);
    EXPECT_TRUE(complete);
}

// Conversion stops at the first bad sequence and keeps what came before.
TEST(DmConvert, StopsAtTheFirstIllFormedSequence) {
    // Truncated, overlong, encoded surrogates, beyond U+10FFFF, stray or missing continuation
    // bytes, bytes that never occur.
    std::istringstream bad(
        "C3 E282 F09F98 F0 C0AF C1BF E080AF F08080AF EDA080 EDBFBF F4908080 F5808080 F888808080 "
        "FC8480808080 80 E28278 FF");
    for (std::string hex; bad >> hex;) {
        std::string seq;
        for (size_t i = 0; i < hex.size(); i += 2)
            seq += static_cast<char>(std::stoul(hex.substr(i, 2), nullptr, 16));
        for (const char* tail : {"", "cd"}) {
            SCOPED_TRACE(hex + tail);
            bool complete = true;
            EXPECT_EQ(to16("ab" + seq + tail, &complete), DM_W("ab"));
            EXPECT_FALSE(complete);
        }
    }
    // Surrogates: high at the end or before no low one, low on its own.
    for (unsigned after : {0u, unsigned{'c'}, 0xD83Du, 0xE000u}) {
        for (unsigned lone : {0xD83Du, 0xDE00u}) {
            const dm_wstring text = units({'a', 'b', lone, after});
            bool complete = true;
            EXPECT_EQ(to8(text.substr(0, after ? 4 : 3), &complete), "ab") << lone << " " << after;
            EXPECT_FALSE(complete);
        }
    }
}

// A null text counts as empty wherever one is taken.
TEST(DmString, NullIsEmptyAndEqualityIgnoresNameAndAttributes) {
    dm_string wide(static_cast<const dm_wchar*>(nullptr));
    wide.append(DM_W("ab"));
    wide.append(static_cast<const dm_wchar*>(nullptr));
    wide.append(nullptr, 3);
    wide.append(DM_W("cdef"), 1);
    wide.append(dm_string(DM_W("!")));
    dm_string same(DM_W("abc!x"), 4);
    same.set_object_name("other");
    same.make_attributes().add("k", "v");
    EXPECT_TRUE(wide.equals(same));
    EXPECT_FALSE(wide.equals(dm_string(DM_W("ABC!"))));
    same.assign(nullptr, 2);
    EXPECT_STREQ(same.to_utf8().c_str(), "");

    dm_utf8_str bytes("a\0b", 3);
    bytes.append("c");
    bytes.append(static_cast<const char*>(nullptr));
    bytes.append(nullptr, 2);
    bytes.append("de", 1);
    bytes.append(dm_utf8_str("!"));
    EXPECT_EQ(bytes.str(), std::string("a\0bcd!", 6));
    bytes.assign(nullptr, 1);
    for (const dm_utf8_str& empty : {bytes, dm_utf8_str(nullptr), dm_utf8_str(nullptr, 4)})
        EXPECT_STREQ(empty.c_str(), "");

    // The two forms convert strictly into each other.
    const dm_utf8_str utf8("caf\xC3\xA9 \xF0\x9F\x98\x80");
    EXPECT_EQ(utf8.to_wide().str(), units({'c', 'a', 'f', 0xE9, ' ', 0xD83D, 0xDE00}));
    EXPECT_TRUE(utf8.to_wide().to_utf8().equals(utf8));
    EXPECT_EQ(dm_utf8_str("ok\xE2\x82").to_wide().str(), DM_W("ok"));
}

TEST(DmString, FindAndSubstring) {
    const dm_string s(DM_W("hello"));
    EXPECT_EQ(s.find_first(DM_W('l')), 2);
    EXPECT_EQ(s.find_last(DM_W('l')), 3);
    EXPECT_EQ(s.find_first(DM_W('z')), -1);
    EXPECT_EQ(s.find_last(DM_W('z')), -1);
    EXPECT_EQ(dm_string().find_last(0), -1);
    const struct {
        long start, count;
        const dm_wchar* expected;
    } cases[] = {{0, 5, DM_W("hello")}, {0, 10, DM_W("hello")}, {1, 3, DM_W("ell")},
                 {3, 100, DM_W("lo")},  {4, 1, DM_W("o")},      {5, 1, DM_W("")},
                 {1, 0, DM_W("")},      {1, -3, DM_W("")},      {-1, 3, DM_W("")}};
    for (const auto& c : cases)
        EXPECT_EQ(s.substring(c.start, c.count).str(), c.expected) << c.start << "," << c.count;
    EXPECT_TRUE(dm_string().substring(0, 1).empty());
}

TEST(DmFormat, NumbersEscapesAndGuids) {
    for (long v : {0L, -1L, 4711L, LONG_MAX, LONG_MIN})
        EXPECT_EQ(dm_format_long(v), std::to_string(v));
    EXPECT_EQ(dm_xml_escape(std::string("a<b>c&d\"e'f&amp;")),
              "a&lt;b&gt;c&amp;d&quot;e&apos;f&amp;amp;");
    const std::string raw("\xC3\xA9\t\n\0z", 6);
    EXPECT_EQ(dm_xml_escape(raw), raw);
    EXPECT_EQ(dm_xml_escape(nullptr, 3), "");

    // Network order in, version 4 and variant 10 set, low bits kept, upper-case hexadecimal
    // padded with zeros.
    uint8_t bytes[16];
    for (int i = 0; i < 16; ++i)
        bytes[i] = static_cast<uint8_t>(i * 0x1F);
    dm_guid_set_version4(bytes);
    EXPECT_EQ(dm_format_guid(dm_guid_from_bytes(bytes)),
              DM_W("001F3E5D-7C9B-4AD9-B817-36557493B2D1"));
}
