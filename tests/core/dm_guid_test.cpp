#include <gtest/gtest.h>

#include "core/dm_guid.h"

using namespace dunmar;

namespace {

bool is_upper_hex(dm_wchar c) {
    return (c >= DM_W('0') && c <= DM_W('9')) || (c >= DM_W('A') && c <= DM_W('F'));
}

}  // namespace

TEST(DmGuid, NewGuidTextHasTheFixedLayout) {
    dm_string text(DM_W("stale"));
    ASSERT_TRUE(dm_new_guid_text(text));
    ASSERT_EQ(text.length(), 36u);
    for (size_t i = 0; i < text.length(); ++i) {
        SCOPED_TRACE(i);
        const dm_wchar c = text.c_str()[i];
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            EXPECT_EQ(c, DM_W('-'));
        } else {
            EXPECT_TRUE(is_upper_hex(c));
        }
    }
    // Random GUIDs on both systems: version 4, variant 10.
    EXPECT_EQ(text.c_str()[14], DM_W('4'));
    EXPECT_NE(dm_string(DM_W("89AB")).find_first(text.c_str()[19]), -1);
}

TEST(DmGuid, SuccessiveGuidsDiffer) {
    dm_string first;
    dm_string second;
    ASSERT_TRUE(dm_new_guid_text(first));
    ASSERT_TRUE(dm_new_guid_text(second));
    EXPECT_FALSE(first.equals(second));
}
