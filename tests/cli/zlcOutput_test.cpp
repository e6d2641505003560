// How keys are named on the command line and how they are printed.
#include "cli/zlcOutput.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/zlcKeyLookup.h"
#include "support/test_util.h"

using namespace Zelto;

namespace {

// Names match exactly. "#n" is a position counted from one, even where a key is named so;
// "#" and "#x" are names. The key without a name is found by the empty name too.
TEST(zlcKeyLookup, NamesAndPositions) {
    zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
    auto* list = new zlFileItemKeys(&file);
    file.root().appendChild(list);
    for (const char* name : {"bank", "mail", "Bank", "mail", "#1", "", "M\xC3\xBCller"}) {
        auto* key = new zlFileItemKey(&file);
        key->setName(ztest::enc(file, name));
        list->appendChild(key);
    }
    const std::pair<const char*, std::string> cases[] = {
        {"bank", "#1"},
        {"Bank", "#3"},
        {"M\xC3\xBCller", "#7"},
        {"#4", "#4"},
        {"#1", "#1"},
        {"", "#6"},
        {"mail", "2 keys are named \"mail\" (#2, #4); name one by its position"},
        {"#", "no key named \"#\""},
        {"#x", "no key named \"#x\""},
        {"#0", "no key at position #0"},
        {"#8", "no key at position #8"},
        {"#99999999999999999999999", "no key at position #99999999999999999999999"},
    };
    for (const auto& c : cases) {
        const zlcKeyMatch m = zlcFindKey(list, c.first);
        const bool found = m.result == zlcKeyMatch::found;
        EXPECT_EQ(c.second,
                  found ? "#" + std::to_string(m.position) : zlcKeyMatchMessage(m, c.first));
        EXPECT_EQ(found ? list->child(m.position - 1) : nullptr, m.key) << c.first;
        if (found) {
            EXPECT_EQ(std::vector<size_t>{m.position}, m.candidates) << c.first;
        }
    }
}

// Every key and label stays on its one line, a note's further lines indented under its first;
// the password masked unless revealed. scenario.sh checks the whole layout.
TEST(zlcOutput, TextAndJson) {
    EXPECT_EQ(
        "#1 bank (home, money)\n#3 two lines\n#12 tab here (a b)\n",
        zlcKeyListText(
            {{1, "bank", "home, money"}, {3, "two\nlines", ""}, {12, "tab\x1fhere", "a\rb"}}));
    dunmar::dm_stringlist labels;
    labels.append(dunmar::dm_utf8_str("work\n").to_wide());
    labels.append(dunmar::dm_utf8_str("M\xC3\xBCller").to_wide());
    EXPECT_EQ("work \nM\xC3\xBCller\n", zlcLabelsText(labels));
    EXPECT_EQ("[\n  \"work\\n\",\n  \"M\xC3\xBCller\"\n]\n", zlcLabelsJson(labels));
    zlKeyFields f;
    *f.of(zlTypeKeyPW) = "pin \"1234\"";
    *f.of(zlTypeKeyNote) = "first\r\nsecond\n\x7fthird";
    EXPECT_NE(std::string::npos, zlcKeyText(4, f, false)
                                     .find("\npw:    ********\nemail: \nurl:   \nnote:  first\n"
                                           "       second\n        third\n"));
    EXPECT_NE(std::string::npos, zlcKeyText(4, f, true).find("\npw:    pin \"1234\"\n"));
    EXPECT_TRUE(nlohmann::json::parse(zlcKeyJson(4, f, false))["pw"].is_null());
    *f.of(zlTypeKeyUser) = "a\xffz";  // no UTF-8: becomes the replacement character
    EXPECT_EQ(
        "{\"position\":4,\"name\":\"\",\"label\":\"\",\"user\":\"a\xEF\xBF\xBDz\",\"pw\":"
        "\"pin \\\"1234\\\"\",\"email\":\"\",\"url\":\"\",\"note\":\"first\\r\\nsecond\\n"
        "\x7fthird\"}",
        nlohmann::ordered_json::parse(zlcKeyJson(4, f, true)).dump());
    f.of(zlTypeKeyPW)->clear();  // an empty password is shown empty, not masked
    EXPECT_NE(std::string::npos, zlcKeyText(1, f, false).find("\npw:    \n"));
    EXPECT_EQ(
        "[{\"position\":2,\"name\":\"bank\",\"label\":\" home,, money \",\"labels\":"
        "[\"home\",\"money \"]}]",
        nlohmann::ordered_json::parse(zlcKeyListJson({{2, "bank", " home,, money "}})).dump());
}

}  // namespace
