#include <gtest/gtest.h>

#include "core/dm_string.h"
#include "core/dm_xml_attributes.h"

using namespace dunmar;

TEST(DmString, NullAndEmptyGiveAnEmptyZeroTerminatedText) {
    const dm_string from_null(static_cast<const dm_wchar*>(nullptr));
    const dm_string empty;
    for (const dm_string* s : {&from_null, &empty}) {
        ASSERT_NE(s->c_str(), nullptr);
        EXPECT_EQ(s->c_str()[0], 0);
        EXPECT_TRUE(s->empty());
    }
    dm_string text(DM_W("keep"));
    text.assign(nullptr, 3);
    EXPECT_TRUE(text.empty());

    const dm_utf8_str from_null8(static_cast<const char*>(nullptr));
    const dm_utf8_str from_null_bytes(nullptr, 4);
    const dm_utf8_str empty8;
    for (const dm_utf8_str* s : {&from_null8, &from_null_bytes, &empty8}) {
        ASSERT_NE(s->c_str(), nullptr);
        EXPECT_STREQ(s->c_str(), "");
        EXPECT_TRUE(s->empty());
    }
}

// Equality is case-sensitive and ignores the name and the attributes.
TEST(DmString, AppendAndEquals) {
    dm_string s(DM_W("ab"));
    s.append(DM_W("cd"));
    s.append(static_cast<const dm_wchar*>(nullptr));
    s.append(DM_W("efgh"), 1);
    s.append(dm_string(DM_W("!")));
    EXPECT_EQ(s.str(), DM_W("abcde!"));
    dm_string same(DM_W("abcde!"));
    same.set_object_name("one");
    same.make_attributes().add("k", "x");
    EXPECT_TRUE(s.equals(same));
    EXPECT_FALSE(s.equals(dm_string(DM_W("ABCDE!"))));
    EXPECT_FALSE(s.equals(dm_string(DM_W("abcde"))));
}

TEST(DmString, FindFirstAndLast) {
    const dm_string s(DM_W("abcabc"));
    EXPECT_EQ(s.find_first(DM_W('b')), 1);
    EXPECT_EQ(s.find_last(DM_W('b')), 4);
    EXPECT_EQ(s.find_first(DM_W('a')), 0);
    EXPECT_EQ(s.find_last(DM_W('c')), 5);
    EXPECT_EQ(s.find_first(DM_W('z')), -1);
    EXPECT_EQ(s.find_last(DM_W('z')), -1);
    EXPECT_EQ(dm_string().find_first(DM_W('a')), -1);
    EXPECT_EQ(dm_string().find_last(0), -1);
}

TEST(DmString, SubstringEdges) {
    const struct {
        long start, count;
        const dm_wchar* expected;
    } cases[] = {{0, 5, DM_W("hello")}, {0, 10, DM_W("hello")}, {1, 3, DM_W("ell")},
                 {3, 100, DM_W("lo")},  {4, 1, DM_W("o")},      {5, 1, DM_W("")},
                 {9, 1, DM_W("")},      {1, 0, DM_W("")},       {1, -3, DM_W("")},
                 {-1, 3, DM_W("")}};
    const dm_string s(DM_W("hello"));
    for (const auto& c : cases)
        EXPECT_EQ(s.substring(c.start, c.count).str(), c.expected) << c.start << "," << c.count;
    EXPECT_TRUE(dm_string().substring(0, 1).empty());
}

TEST(DmString, ConversionsBetweenTheTwoForms) {
    const dm_utf8_str utf8("caf\xC3\xA9 \xF0\x9F\x98\x80");
    const dm_string wide = utf8.to_wide();
    EXPECT_EQ(wide.length(), 7u);  // the emoji takes a surrogate pair
    EXPECT_TRUE(wide.to_utf8().equals(utf8));
    // Ill-formed input shortens the result instead of failing.
    EXPECT_EQ(dm_utf8_str("ok\xE2\x82").to_wide().str(), DM_W("ok"));
}

TEST(DmUtf8Str, BytesWithLengthKeepEmbeddedZeros) {
    dm_utf8_str s("a\0b", 3);
    EXPECT_EQ(s.length(), 3u);
    s.append("c");
    s.append(static_cast<const char*>(nullptr));
    s.append("de", 1);
    s.append(dm_utf8_str("!"));
    EXPECT_EQ(s.str(), std::string("a\0bcd!", 6));
    EXPECT_FALSE(s.equals(dm_utf8_str("a")));
    s.clear();
    EXPECT_TRUE(s.empty());
}
