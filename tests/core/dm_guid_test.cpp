#include <gtest/gtest.h>

#include "core/dm_guid.h"

using namespace dunmar;

TEST(DmGuid, NewGuidTextHasTheFixedLayoutAndIsNewEachTime) {
    dm_string text(DM_W("stale"));
    ASSERT_TRUE(dm_new_guid_text(text));
    ASSERT_EQ(text.length(), 36u);
    const dm_string hex(DM_W("0123456789ABCDEF"));
    for (size_t i = 0; i < text.length(); ++i) {
        const dm_wchar c = text.c_str()[i];
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            EXPECT_EQ(c, DM_W('-')) << "position " << i;
        } else {
            EXPECT_NE(hex.find_first(c), -1) << "position " << i;
        }
    }
    // Random GUIDs on both systems: version 4, variant 10.
    EXPECT_EQ(text.c_str()[14], DM_W('4'));
    EXPECT_NE(dm_string(DM_W("89AB")).find_first(text.c_str()[19]), -1);

    dm_string second;
    ASSERT_TRUE(dm_new_guid_text(second));
    EXPECT_FALSE(text.equals(second));
}
