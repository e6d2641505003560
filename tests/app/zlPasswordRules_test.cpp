#include "app/zlPasswordRules.h"

#include <gtest/gtest.h>

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

std::string rule(const std::string& password) {
    return zlPasswordRuleMessage(dm_utf8_str(password).to_wide()).to_utf8().str();
}

std::string propose(const char* guid) {
    return zlPasswordProposal(dm_utf8_str(guid).to_wide()).to_utf8().str();
}

TEST(zlPasswordRules, FirstBrokenRuleGivesTheMessage) {
    EXPECT_EQ("Password size to small", rule("abc1234"));
    EXPECT_EQ("Password size to small", rule(""));
    EXPECT_EQ("", rule("abcd1234"));
    EXPECT_EQ("", rule("a" + std::string(126, '7')));  // 127 characters
    EXPECT_EQ("Password size to big", rule("a" + std::string(127, '7')));
    EXPECT_EQ("First character must not be a number", rule("1abcdefg"));
    EXPECT_EQ("First character must not be a number", rule("_abcdefg"));
    EXPECT_EQ("Invalid character in password (allowed: A-Z, a-z, 0-9)", rule("abcd 1234"));
    EXPECT_EQ("Invalid character in password (allowed: A-Z, a-z, 0-9)",
              rule("abcd\xC3\xA4\xC3\xB6\xC3\xBC"
                   "1"));
    // Size comes before the other rules; characters are counted, not bytes.
    EXPECT_EQ("Password size to small", rule("1 \xC3\xA4"));
    EXPECT_EQ("Invalid character in password (allowed: A-Z, a-z, 0-9)",
              rule("Zz09\xF0\x9F\x94\x91xyz"));
    EXPECT_EQ("Password and verification text are not equal",
              zlPasswordMismatchMessage().to_utf8().str());
}

TEST(zlPasswordRules, ProposalShiftsAndAlternatesCase) {
    EXPECT_EQ("zl9Z", propose("0A"));
    EXPECT_EQ("zlz9", propose("A0"));
    // Separators are dropped, and only the first 16 characters of the text count.
    // Upper-case letters at odd places stay upper-case; a lower-case one at an even place
    // becomes upper-case.
    EXPECT_EQ("zl7A4B3C2D0e9fZ8", propose("8B5C4D3E-1F0G-a9B1-CCCC-DDDDDDDDDDDD"));
    const std::string p = propose("12345678-9ABC-DEF0-1234-56789ABCDEF0");
    EXPECT_EQ("zl01234567", p.substr(0, 10));
    EXPECT_EQ(16u, p.size());
    EXPECT_EQ("zl012345678zAbcD", p);
}

TEST(zlPasswordRules, FreshProposalsFollowTheRules) {
    dm_string first, second;
    ASSERT_TRUE(zlNewPasswordProposal(first));
    ASSERT_TRUE(zlNewPasswordProposal(second));
    EXPECT_FALSE(first.equals(second));
    for (const dm_string& p : {first, second}) {
        const std::string s = p.to_utf8().str();
        ASSERT_EQ(16u, s.size());
        EXPECT_EQ("zl", s.substr(0, 2));
        EXPECT_EQ("", zlPasswordRuleMessage(p).to_utf8().str()) << s;
    }
}

}  // namespace
