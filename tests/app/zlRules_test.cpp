// The rules for what users type: new master passwords, proposals, and the seconds of the
// settings.
#include <climits>
#include <tuple>

#include "app/zlPasswordRules.h"
#include "app/zlSettingsRules.h"
#include "app_test_util.h"

TEST(zlPasswordRules, FirstBrokenRuleGivesTheMessage) {
    const std::string small = "Password size to small", big = "Password size to big";
    const std::string digit = "First character must not be a number";
    const std::string bad = "Invalid character in password (allowed: A-Z, a-z, 0-9)";
    const std::string max = "a" + std::string(126, '7'), umlauts = "\xC3\xA4\xC3\xB6";
    const std::string keys = "\xF0\x9F\x94\x91\xF0\x9F\x94\x91";  // four UTF-16 units
    // Size comes first; characters are counted, not bytes. Each end of each range is allowed.
    const std::pair<std::string, std::string> cases[] = {
        {"abc1234", small}, {"", small},        {"1 " + umlauts, small},   {"Zz09azAZ", ""},
        {max, ""},          {max + "7", big},   {"1abcdefg", digit},       {"_abcdefg", digit},
        {"a9cdefgh", ""},   {"abcd 1234", bad}, {"abcdef" + umlauts, bad}, {"Zz09" + keys, bad}};
    for (const auto& [password, message] : cases)
        EXPECT_EQ(message, u8(zlPasswordRuleMessage(w(password)))) << password;
    EXPECT_EQ("Password and verification text are not equal", u8(zlPasswordMismatchMessage()));
}

// Separators are dropped and only the first 16 characters count; upper-case letters at odd
// places stay upper-case, a lower-case one at an even place becomes upper-case. Fresh ones
// differ and pass the rules.
TEST(zlPasswordRules, Proposals) {
    EXPECT_EQ("zl7A4B3C2D0e9fZ8",
              u8(zlPasswordProposal(w("8B5C4D3E-1F0G-a9B1-CCCC-DDDDDDDDDDDD"))));
    EXPECT_EQ("zl012345678zAbcD",
              u8(zlPasswordProposal(w("12345678-9ABC-DEF0-1234-56789ABCDEF0"))));
    dm_string first, second;
    ASSERT_TRUE(zlNewPasswordProposal(first) && zlNewPasswordProposal(second));
    EXPECT_FALSE(first.equals(second));
    for (const dm_string& p : {first, second})
        EXPECT_TRUE(p.length() == 16 && zlPasswordRuleMessage(p).empty()) << u8(p);
}

TEST(zlSettingsRules, SecondsAreReadLikeTheStandardConversion) {
    const std::string nines = "99999999999999999999", max = std::to_string(LONG_MAX - 1);
    const std::string min = std::to_string(LONG_MIN), blanks = " \t\n\v\f\r";
    const std::pair<std::string, long> cases[] = {
        {"", 0},           {"abc", 0},           {"-", 0},
        {"45", 45},        {blanks + "45s", 45}, {"+7", 7},
        {"-12", -12},      {"x45", 0},           {"00120", 120},
        {nines, LONG_MAX}, {max, LONG_MAX - 1},  {"-" + nines, LONG_MIN},
        {min, LONG_MIN}};
    for (const auto& [text, seconds] : cases)
        EXPECT_EQ(seconds, zlSecondsFromText(w(text))) << text;
}

// Automatic lock and clipboard: off below 5, at most 600. Show selected: off below 1, at
// most 30.
TEST(zlSettingsRules, ClampsSwitchOffBelowTheMinimumAndCapAtTheMaximum) {
    const std::tuple<long, int, int> cases[] = {
        {LONG_MIN, 0, 0}, {0, 0, 0},    {1, 0, 1},      {4, 0, 4},      {5, 5, 5},
        {30, 30, 30},     {31, 31, 30}, {600, 600, 30}, {601, 600, 30}, {LONG_MAX, 600, 30}};
    for (const auto& [seconds, autoSeconds, showSelected] : cases) {
        EXPECT_EQ(autoSeconds, zlClampAutoSeconds(seconds)) << seconds;
        EXPECT_EQ(showSelected, zlClampShowSelectedSeconds(seconds)) << seconds;
    }
}
