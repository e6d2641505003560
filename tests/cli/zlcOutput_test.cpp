#include "cli/zlcOutput.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

zlKeyFields sample() {
    zlKeyFields f;
    *f.of(zlTypeKeyName) = "bank";
    *f.of(zlTypeKeyLabel) = "home, money";
    *f.of(zlTypeKeyPW) = "pin \"1234\"";
    *f.of(zlTypeKeyUrl) = "https://bank.example/";
    *f.of(zlTypeKeyNote) = "first\r\nsecond\nthird";
    return f;
}

TEST(zlcOutput, ListLinesStayOneLineEach) {
    const std::string text = zlcKeyListText(
        {{1, "bank", "home, money"}, {3, "two\nlines", ""}, {12, "tab\there", "a\rb"}});
    EXPECT_EQ("#1 bank (home, money)\n#3 two lines\n#12 tab here (a b)\n", text);
    dunmar::dm_stringlist labels;
    labels.append(dm_utf8_str("work").to_wide());
    labels.append(dm_utf8_str("B\xC3\xBCro").to_wide());
    EXPECT_EQ("work\nB\xC3\xBCro\n", zlcLabelsText(labels));
}

// scenario.sh checks the whole layout; here the note's line ends and the password's forms.
TEST(zlcOutput, ShowMasksThePasswordUnlessRevealed) {
    const std::string masked = zlcKeyText(4, sample(), false);
    EXPECT_EQ(0u, masked.find("#4\nname:  bank\n")) << masked;
    EXPECT_NE(std::string::npos, masked.find("\npw:    ********\n")) << masked;
    EXPECT_NE(std::string::npos, masked.find("\nnote:  first\n       second\n       third\n"))
        << masked;
    EXPECT_NE(std::string::npos, zlcKeyText(4, sample(), true).find("\npw:    pin \"1234\"\n"));
    // An empty password shows as empty, not as a mask.
    zlKeyFields none = sample();
    none.of(zlTypeKeyPW)->clear();
    EXPECT_NE(std::string::npos, zlcKeyText(1, none, false).find("\npw:    \n"));
}

TEST(zlcOutput, JsonCarriesTheExactValues) {
    const auto key = nlohmann::json::parse(zlcKeyJson(4, sample(), true));
    EXPECT_EQ(4, key["position"]);
    EXPECT_EQ("pin \"1234\"", key["pw"]);
    EXPECT_EQ("first\r\nsecond\nthird", key["note"]);
    EXPECT_EQ("", key["user"]);
    EXPECT_TRUE(nlohmann::json::parse(zlcKeyJson(4, sample(), false))["pw"].is_null());
    // Bytes that are no UTF-8 become the replacement character.
    zlKeyFields odd = sample();
    *odd.of(zlTypeKeyNote) =
        "a\xff"
        "b";
    EXPECT_EQ(
        "a\xEF\xBF\xBD"
        "b",
        nlohmann::json::parse(zlcKeyJson(1, odd, true))["note"]);

    const auto list = nlohmann::json::parse(zlcKeyListJson({{2, "bank", " home,, money "}}));
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(2, list[0]["position"]);
    EXPECT_EQ(" home,, money ", list[0]["label"]);
    EXPECT_EQ((std::vector<std::string>{"home", "money "}),
              list[0]["labels"].get<std::vector<std::string>>());
    EXPECT_EQ("[]\n", zlcKeyListJson({}));
}

}  // namespace
