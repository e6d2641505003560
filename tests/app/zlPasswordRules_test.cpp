#include "app/zlPasswordRules.h"

#include <gtest/gtest.h>

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

TEST(zlPasswordRules, FirstBrokenRuleGivesTheMessage) {
    const std::string small = "Password size to small";
    const std::string digit = "First character must not be a number";
    const std::string invalid = "Invalid character in password (allowed: A-Z, a-z, 0-9)";
    const std::pair<std::string, std::string> cases[] = {
        {"abc1234", small},
        {"", small},
        {"abcd1234", ""},
        {"a" + std::string(126, '7'), ""},  // 127 characters
        {"a" + std::string(127, '7'), "Password size to big"},
        {"1abcdefg", digit},
        {"9abcdefg", digit},
        {"a9cdefgh", ""},
        {"_abcdefg", digit},
        {"abcd 1234", invalid},
        {"abcd\xC3\xA4\xC3\xB6\xC3\xBC"
         "1",
         invalid},
        // Size comes before the other rules; characters are counted, not bytes.
        {"1 \xC3\xA4", small},
        {"Zz09\xF0\x9F\x94\x91xyz", invalid},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, zlPasswordRuleMessage(dm_utf8_str(c.first).to_wide()).to_utf8().str())
            << c.first;
    EXPECT_EQ("Password and verification text are not equal",
              zlPasswordMismatchMessage().to_utf8().str());
}

// Separators are dropped and only the first 16 characters count; upper-case letters at odd
// places stay upper-case, a lower-case one at an even place becomes upper-case.
TEST(zlPasswordRules, ProposalShiftsAndAlternatesCase) {
    const std::pair<const char*, const char*> cases[] = {
        {"0A", "zl9Z"},
        {"A0", "zlz9"},
        {"8B5C4D3E-1F0G-a9B1-CCCC-DDDDDDDDDDDD", "zl7A4B3C2D0e9fZ8"},
        {"12345678-9ABC-DEF0-1234-56789ABCDEF0", "zl012345678zAbcD"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, zlPasswordProposal(dm_utf8_str(c.first).to_wide()).to_utf8().str())
            << c.first;
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
