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

TEST(zlKeyRows, RowShowsTheLabelInBracketsOnlyWhenThereIsOne) {
    EXPECT_EQ("Bank (money, home)", n(zlRowText(w("Bank"), w("money, home"))));
    EXPECT_EQ("Bank", n(zlRowText(w("Bank"), w(""))));
    EXPECT_EQ(" (work)", n(zlRowText(w(""), w("work"))));
    EXPECT_EQ("", n(zlRowText(w(""), w(""))));
}

TEST(zlKeyRows, MaskHidesEverythingFromThePosition) {
    const struct {
        const char* row;
        int position;
        const char* masked;
    } cases[] = {
        {"Bank (money)", 2, "Ba**********"},
        {"Bank (money)", 0, "************"},
        {"Bank (money)", -5, "************"},
        {"Bank (money)", 11, "Bank (money*"},
        // At the full length nothing is left to hide; beyond it the row stays whole.
        {"Bank (money)", 12, "Bank (money)"},
        {"Bank (money)", 13, "Bank (money)"},
        {"", 0, ""},
        // Characters, not bytes: the umlaut counts once.
        {"B\xC3\xBCro", 2, "B\xC3\xBC**"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.masked, n(zlMaskRow(w(c.row), c.position))) << c.row << " @" << c.position;
}

// At least ten characters, counted not as bytes; the range reaches ten beyond.
TEST(zlKeyRows, LongestNameAndPartialShowRange) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
    EXPECT_EQ(10, zlLongestNameLength(nullptr));
    EXPECT_EQ(20, zlPartialShowMaximum(nullptr));
    const struct {
        const char* name;
        int longest;
    } steps[] = {{"Bank", 10},
                 {"\xC3\x9C"
                  "berweisungstr\xC3\xA4ger",
                  18},  // 20 bytes
                 {"abcdefghijklmnopqrstuvwxyz0123", 30},
                 {"Post", 30}};
    for (const auto& s : steps) {
        zlKeyFields fields;
        fields.value[0] = dm_utf8_str(s.name);
        ASSERT_NE(nullptr, zlAddKey(file, fields));
        EXPECT_EQ(s.longest, zlLongestNameLength(file.keys())) << s.name;
        EXPECT_EQ(s.longest + 10, zlPartialShowMaximum(file.keys())) << s.name;
    }
}

}  // namespace
