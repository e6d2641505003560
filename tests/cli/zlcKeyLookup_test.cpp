#include "cli/zlcKeyLookup.h"

#include <gtest/gtest.h>

#include "support/test_util.h"

using namespace Zelto;

namespace {

class KeyLookupTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
        list = new zlFileItemKeys(&file);
        file.root().appendChild(list);
        for (const char* name : {"bank", "mail", "Bank", "mail", "#1", "",
                                 "B\xC3\xBC"
                                 "cher"}) {
            auto* key = new zlFileItemKey(&file);
            key->setName(ztest::enc(file, name));
            list->appendChild(key);
        }
    }

    zlKeyFile file;
    zlFileItemKeys* list = nullptr;
};

// Names match exactly. "#n" is a position counted from one, even where a key is named so;
// "#" and "#x" are names. The key without a name is found by the empty name too. Shared
// names are checked end to end in scenario.sh.
TEST_F(KeyLookupTest, NamesAndPositions) {
    const std::pair<const char*, size_t> found[] = {
        {"bank", 1},
        {"Bank", 3},
        {"B\xC3\xBC"
         "cher",
         7},
        {"#4", 4},
        {"#1", 1},
        {"#6", 6},
        {"", 6},
    };
    for (const auto& c : found) {
        const zlcKeyMatch m = zlcFindKey(list, c.first);
        ASSERT_EQ(zlcKeyMatch::found, m.result) << c.first;
        EXPECT_EQ(c.second, m.position) << c.first;
        EXPECT_EQ(list->child(c.second - 1), m.key) << c.first;
    }
    const std::pair<const char*, std::string> missing[] = {
        {"BANK", "no key named \"BANK\""},
        {"bank ", "no key named \"bank \""},
        {"#", "no key named \"#\""},
        {"#x", "no key named \"#x\""},
        {"#0", "no key at position #0"},
        {"#8", "no key at position #8"},
        {"#00", "no key at position #00"},
        {"#99999999999999999999999", "no key at position #99999999999999999999999"},
    };
    for (const auto& c : missing) {
        const zlcKeyMatch m = zlcFindKey(list, c.first);
        EXPECT_EQ(zlcKeyMatch::notFound, m.result) << c.first;
        EXPECT_EQ(c.second, zlcKeyMatchMessage(m, c.first));
    }
    EXPECT_EQ(zlcKeyMatch::notFound, zlcFindKey(nullptr, "#1").result);
    EXPECT_EQ(zlcKeyMatch::notFound, zlcFindKey(nullptr, "bank").result);
}

}  // namespace
