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

    zlcKeyMatch find(const std::string& key) { return zlcFindKey(list, key); }

    zlKeyFile file;
    zlFileItemKeys* list = nullptr;
};

TEST_F(KeyLookupTest, NamesMatchExactly) {
    zlcKeyMatch m = find("bank");
    ASSERT_EQ(zlcKeyMatch::found, m.result);
    EXPECT_EQ(1u, m.position);
    EXPECT_EQ("bank", m.key->plainName().str());
    m = find("Bank");
    ASSERT_EQ(zlcKeyMatch::found, m.result);
    EXPECT_EQ(3u, m.position);
    m = find(
        "B\xC3\xBC"
        "cher");
    ASSERT_EQ(zlcKeyMatch::found, m.result);
    EXPECT_EQ(7u, m.position);
    EXPECT_EQ(zlcKeyMatch::notFound, find("BANK").result);
    EXPECT_EQ(zlcKeyMatch::notFound, find("bank ").result);
    EXPECT_EQ("no key named \"BANK\"", zlcKeyMatchMessage(find("BANK"), "BANK"));
}

TEST_F(KeyLookupTest, ASharedNameIsAmbiguous) {
    const zlcKeyMatch m = find("mail");
    EXPECT_EQ(zlcKeyMatch::ambiguous, m.result);
    EXPECT_EQ(nullptr, m.key);
    EXPECT_EQ((std::vector<size_t>{2, 4}), m.candidates);
    EXPECT_EQ("2 keys are named \"mail\" (#2, #4); name one by its position",
              zlcKeyMatchMessage(m, "mail"));
}

TEST_F(KeyLookupTest, PositionsCountFromOne) {
    zlcKeyMatch m = find("#4");
    ASSERT_EQ(zlcKeyMatch::found, m.result);
    EXPECT_EQ(4u, m.position);
    EXPECT_EQ(list->child(3), m.key);
    // "#1" is a position, even though a key is named so; "#" and "#x" are names.
    EXPECT_EQ(list->child(0), find("#1").key);
    EXPECT_EQ(zlcKeyMatch::notFound, find("#").result);
    EXPECT_EQ(zlcKeyMatch::notFound, find("#x").result);
    // The key without a name: by its position, or by the empty name.
    EXPECT_EQ(list->child(5), find("#6").key);
    EXPECT_EQ(list->child(5), find("").key);
    for (const char* outside : {"#0", "#8", "#00", "#99999999999999999999999"}) {
        const zlcKeyMatch none = find(outside);
        EXPECT_EQ(zlcKeyMatch::notFound, none.result) << outside;
        EXPECT_EQ(std::string("no key at position ") + outside, zlcKeyMatchMessage(none, outside));
    }
    EXPECT_EQ(zlcKeyMatch::notFound, zlcFindKey(nullptr, "#1").result);
    EXPECT_EQ(zlcKeyMatch::notFound, zlcFindKey(nullptr, "bank").result);
}

}  // namespace
