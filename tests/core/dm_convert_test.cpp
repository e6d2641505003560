#include <gtest/gtest.h>

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
        {"\xC3\xA9", units({0xE9})},
        {"\xDF\xBF", units({0x7FF})},
        {"\xE0\xA0\x80", units({0x800})},
        {"\xE2\x82\xAC", units({0x20AC})},
        {"\xED\x9F\xBF", units({0xD7FF})},
        {"\xEE\x80\x80", units({0xE000})},
        {"\xEF\xBF\xBF", units({0xFFFF})},
        {"\xF0\x90\x80\x80", units({0xD800, 0xDC00})},
        {"\xF0\x9F\x98\x80", units({0xD83D, 0xDE00})},
        {"\xF4\x8F\xBF\xBF", units({0xDBFF, 0xDFFF})},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.utf8);
        bool complete = false;
        EXPECT_EQ(to16(c.utf8, &complete), c.utf16);
        EXPECT_TRUE(complete);
        EXPECT_EQ(to8(c.utf16, &complete), c.utf8);
        EXPECT_TRUE(complete);
    }
}

TEST(DmConvert, NullAndEmptyInputGiveEmptyText) {
    EXPECT_TRUE(utf8_to_utf16(nullptr).empty());
    EXPECT_TRUE(utf8_to_utf16(nullptr, 5).empty());
    EXPECT_TRUE(utf8_to_utf16("").empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr).empty());
    EXPECT_TRUE(utf16_to_utf8(nullptr, 5).empty());
    EXPECT_TRUE(utf16_to_utf8(DM_W("")).empty());
}

TEST(DmConvert, ZeroTerminatedOverloadsStopAtTheTerminator) {
    EXPECT_EQ(utf8_to_utf16("h\xC3\xA9"), units({'h', 0xE9}));
    EXPECT_EQ(utf16_to_utf8(DM_W("h\u00e9")), "h\xC3\xA9");
}

TEST(DmConvert, Utf8StopsAtTruncatedSequenceAndKeepsThePrefix) {
    const char* truncated[] = {"ab\xC3", "ab\xE2\x82", "ab\xF0\x9F\x98", "ab\xF0"};
    for (const char* text : truncated) {
        SCOPED_TRACE(text);
        bool complete = true;
        EXPECT_EQ(to16(text, &complete), DM_W("ab"));
        EXPECT_FALSE(complete);
    }
}

TEST(DmConvert, Utf8StopsAtIllFormedSequenceAndKeepsThePrefix) {
    const char* ill_formed[] = {
        "ab\xC0\xAF"
        "cd",  // overlong '/'
        "ab\xC1\xBF"
        "cd",  // overlong in the two-byte range
        "ab\xE0\x80\xAF"
        "cd",  // overlong three-byte
        "ab\xF0\x80\x80\xAF"
        "cd",  // overlong four-byte
        "ab\xED\xA0\x80"
        "cd",  // encoded high surrogate
        "ab\xED\xBF\xBF"
        "cd",  // encoded low surrogate
        "ab\xF4\x90\x80\x80"
        "cd",  // U+110000
        "ab\xF5\x80\x80\x80"
        "cd",  // lead byte beyond U+10FFFF
        "ab\xF8\x88\x80\x80\x80"
        "cd",  // five-byte form
        "ab\x80"
        "cd",  // continuation byte without a lead
        "ab\xE2\x82"
        "cd",  // lead followed by too few continuation bytes
        "ab\xFF"
        "cd",
    };
    for (const char* text : ill_formed) {
        SCOPED_TRACE(text);
        bool complete = true;
        EXPECT_EQ(to16(text, &complete), DM_W("ab"));
        EXPECT_FALSE(complete);
    }
}

TEST(DmConvert, Utf16StopsAtLoneSurrogateAndKeepsThePrefix) {
    const dm_wstring ill_formed[] = {
        units({'a', 'b', 0xD83D}),          // high surrogate at the end
        units({'a', 'b', 0xD83D, 'c'}),     // high surrogate before a non-surrogate
        units({'a', 'b', 0xD83D, 0xD83D}),  // two high surrogates
        units({'a', 'b', 0xDE00, 'c'}),     // low surrogate on its own
        units({'a', 'b', 0xDE00, 0xD83D}),  // pair in the wrong order
    };
    for (const dm_wstring& text : ill_formed) {
        bool complete = true;
        EXPECT_EQ(to8(text, &complete), "ab");
        EXPECT_FALSE(complete);
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

TEST(DmConvert, MixedTextConvertsBothWays) {
    const std::string utf8 = "x\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80y";
    const dm_wstring utf16 = units({'x', 0xE9, 0x20AC, 0xD83D, 0xDE00, 'y'});
    EXPECT_EQ(to16(utf8), utf16);
    EXPECT_EQ(to8(utf16), utf8);
}
