#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "core/dm_convert.h"

using dunmar::dm_wchar;
using dunmar::dm_wstring;
using dunmar::utf16_to_utf8;
using dunmar::utf8_to_utf16;

namespace {

dm_wstring units(std::initializer_list<unsigned> list) {
    dm_wstring out;
    for (unsigned u : list)
        out += static_cast<dm_wchar>(u);
    return out;
}

dm_wstring to16(const std::string& bytes, bool* complete = nullptr) {
    return utf8_to_utf16(bytes.data(), bytes.size(), complete);
}

std::string to8(const dm_wstring& text, bool* complete = nullptr) {
    return utf16_to_utf8(text.data(), text.size(), complete);
}

}  // namespace

TEST(DmConvert, WellFormedTextRoundTripsAtEveryLengthBoundary) {
    struct Case {
        const char* utf8;
        dm_wstring utf16;
    };
    const Case cases[] = {
        {"A", units({0x41})},
        {"\x7F", units({0x7F})},
        {"\xC2\x80", units({0x80})},
        {"\xDF\xBF", units({0x7FF})},
        {"\xE0\xA0\x80", units({0x800})},
        {"\xED\x9F\xBF", units({0xD7FF})},
        {"\xEE\x80\x80", units({0xE000})},
        {"\xEF\xBF\xBF", units({0xFFFF})},
        {"\xF0\x90\x80\x80", units({0xD800, 0xDC00})},
        {"\xF4\x8F\xBF\xBF", units({0xDBFF, 0xDFFF})},
        {"x\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80y", units({'x', 0xE9, 0x20AC, 0xD83D, 0xDE00, 'y'})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.utf8);
        bool complete = false;
        EXPECT_EQ(to16(c.utf8, &complete), c.utf16);
        EXPECT_TRUE(complete);
        EXPECT_EQ(to8(c.utf16, &complete), c.utf8);
        EXPECT_TRUE(complete);
    }
    // The zero-terminated overloads stop at the terminator; null and empty give empty text.
    EXPECT_EQ(utf8_to_utf16("h\xC3\xA9"), units({'h', 0xE9}));
    EXPECT_EQ(utf16_to_utf8(DM_W("h\u00e9")), "h\xC3\xA9");
    EXPECT_TRUE(utf8_to_utf16(nullptr).empty());
    EXPECT_TRUE(utf8_to_utf16(nullptr, 5).empty());
    EXPECT_TRUE(utf8_to_utf16("").empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr).empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr, 5).empty());
    EXPECT_TRUE(utf16_to_utf8(DM_W("")).empty());
}

// Conversion stops at the first bad sequence, keeps what came before and says so.
TEST(DmConvert, Utf8StopsAtTruncatedOrIllFormedSequence) {
    // In hex: truncated at the end, overlong, encoded surrogates, beyond U+10FFFF, a stray
    // continuation byte, too few continuation bytes, a byte that never occurs.
    std::istringstream bad(
        "C3 E282 F09F98 F0 C0AF C1BF E080AF F08080AF EDA080 EDBFBF F4908080 F5808080 F888808080 "
        "80 E28278 FF");
    std::string hex;
    while (bad >> hex) {
        std::string seq;
        for (size_t i = 0; i < hex.size(); i += 2)
            seq += static_cast<char>(std::stoul(hex.substr(i, 2), nullptr, 16));
        for (const char* tail : {"", "cd"}) {
            const std::string text = "ab" + seq + tail;
            SCOPED_TRACE(hex + tail);
            bool complete = true;
            EXPECT_EQ(to16(text, &complete), DM_W("ab"));
            EXPECT_FALSE(complete);
        }
    }
}

TEST(DmConvert, Utf16StopsAtLoneSurrogate) {
    const dm_wstring ill_formed[] = {
        units({'a', 'b', 0xD83D}),          // high surrogate at the end
        units({'a', 'b', 0xD83D, 'c'}),     // high surrogate before a non-surrogate
        units({'a', 'b', 0xD83D, 0xD83D}),  // two high surrogates
        units({'a', 'b', 0xDE00, 'c'}),     // low surrogate on its own
        units({'a', 'b', 0xDE00, 0xD83D}),  // pair in the wrong order
    };
    for (size_t i = 0; i < sizeof ill_formed / sizeof *ill_formed; ++i) {
        bool complete = true;
        EXPECT_EQ(to8(ill_formed[i], &complete), "ab") << "case " << i;
        EXPECT_FALSE(complete) << "case " << i;
    }
}

TEST(DmConvert, LengthEndingInsideAPairStopsBeforeThePair) {
    const dm_wstring pair = units({'a', 0xD83D, 0xDE00});
    bool complete = true;
    EXPECT_EQ(utf16_to_utf8(pair.data(), 2, &complete), "a");
    EXPECT_FALSE(complete);
    const std::string bytes = "a\xF0\x9F\x98\x80";
    EXPECT_EQ(utf8_to_utf16(bytes.data(), 4, &complete), DM_W("a"));
    EXPECT_FALSE(complete);
}
