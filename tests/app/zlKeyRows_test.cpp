#include "app/zlKeyRows.h"

#include <gtest/gtest.h>

#include <string>

#include "app/zlKeyFields.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

dm_string w(const char* utf8) {
    return dm_utf8_str(utf8).to_wide();
}

std::string n(const dm_string& text) {
    return text.to_utf8().str();
}

std::string masked(const char* text, int position) {
    return n(zlMaskRow(w(text), position));
}

TEST(zlKeyRows, RowShowsTheLabelInBracketsOnlyWhenThereIsOne) {
    EXPECT_EQ("Bank (money, home)", n(zlRowText(w("Bank"), w("money, home"))));
    EXPECT_EQ("Bank", n(zlRowText(w("Bank"), w(""))));
    EXPECT_EQ(" (work)", n(zlRowText(w(""), w("work"))));
    EXPECT_EQ("", n(zlRowText(w(""), w(""))));
}

TEST(zlKeyRows, MaskHidesEverythingFromThePosition) {
    EXPECT_EQ("Ba**********", masked("Bank (money)", 2));
    EXPECT_EQ("************", masked("Bank (money)", 0));
    EXPECT_EQ("************", masked("Bank (money)", -5));
    EXPECT_EQ("Bank (money*", masked("Bank (money)", 11));
    // At the full length nothing is left to hide; beyond it the row stays whole.
    EXPECT_EQ("Bank (money)", masked("Bank (money)", 12));
    EXPECT_EQ("Bank (money)", masked("Bank (money)", 13));
    EXPECT_EQ("", masked("", 0));
    // Characters, not bytes: the umlaut counts once.
    EXPECT_EQ("B\xC3\xBC**", masked("B\xC3\xBCro", 2));
}

class LongestName : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass)); }
    void add(const char* name) {
        zlKeyFields fields;
        fields.value[0] = dm_utf8_str(name);
        ASSERT_NE(nullptr, zlAddKey(file, fields));
    }
    zlKeyFile file;
};

TEST_F(LongestName, IsAtLeastTenAndTheRangeReachesTenBeyond) {
    EXPECT_EQ(10, zlLongestNameLength(nullptr));
    EXPECT_EQ(20, zlPartialShowMaximum(nullptr));
    add("Bank");
    EXPECT_EQ(10, zlLongestNameLength(file.keys()));
    EXPECT_EQ(20, zlPartialShowMaximum(file.keys()));
    add("abcdefghijklmnopqrstuvwxyz0123");  // 30 characters
    add("Post");
    EXPECT_EQ(30, zlLongestNameLength(file.keys()));
    EXPECT_EQ(40, zlPartialShowMaximum(file.keys()));
}

TEST_F(LongestName, CountsCharactersNotBytes) {
    add("\xC3\x9C"
        "berweisungstr\xC3\xA4ger");  // 18 characters, 20 bytes
    EXPECT_EQ(18, zlLongestNameLength(file.keys()));
}

}  // namespace
