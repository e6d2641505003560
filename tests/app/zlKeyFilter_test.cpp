#include "app/zlKeyFilter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_stringlist;
using dunmar::dm_utf8_str;

namespace {

using Texts = std::vector<std::string>;

dm_string w(const char* utf8) {
    return dm_utf8_str(utf8).to_wide();
}

Texts texts(const dm_stringlist& list) {
    Texts out;
    for (const dm_string& s : list)
        out.push_back(s.to_utf8().str());
    return out;
}

// Pieces lose only leading spaces; a filter compares whole pieces exactly.
TEST(zlKeyFilter, PiecesAndMatches) {
    const std::pair<const char*, Texts> pieces[] = {
        {" work, home ,work", {"work", "home ", "work"}},
        {"", {}},
        {", ,,  ", {}},
        {",a,,b,", {"a", "b"}},
        {"\tx", {"\tx"}},
        {"  B\xC3\xBCro", {"B\xC3\xBCro"}},
    };
    for (const auto& c : pieces)
        EXPECT_EQ(c.second, texts(zlLabelPieces(w(c.first)))) << c.first;

    const struct {
        const char* label;
        const char* filter;
        bool matches;
    } matches[] = {
        {"", "", true},
        {"anything", "", true},
        {"home, work", "work", true},
        {"Work", "work", false},
        {"workshop", "work", false},
        {"", "work", false},
        {"home ,x", "home", false},
        {"home ,x", "home ", true},
        {"x,  B\xC3\xBCro", "B\xC3\xBCro", true},
    };
    for (const auto& c : matches)
        EXPECT_EQ(c.matches, zlLabelMatches(w(c.label), w(c.filter)))
            << "'" << c.label << "' / '" << c.filter << "'";
}

class KeyListTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(0, file.set_pass_phrase(ztest::kShortPass));
        list = new zlFileItemKeys(&file);
        file.root().appendChild(list);
    }

    zlFileItemKey* add(const char* name, const char* label) {
        auto* key = new zlFileItemKey(&file);
        key->setName(ztest::enc(file, name));
        if (label)
            key->setLabel(ztest::enc(file, label));
        list->appendChild(key);
        return key;
    }

    Texts names(const std::vector<zlFileItemKey*>& keys) {
        Texts out;
        for (const zlFileItemKey* key : keys)
            out.push_back(key->plainName().str());
        return out;
    }

    zlKeyFile file;
    zlFileItemKeys* list = nullptr;
};

TEST_F(KeyListTest, LabelsOnceInFirstMetOrderAndFilterKeepsFileOrder) {
    EXPECT_TRUE(zlCollectLabels(list).empty());
    add("a", " work, home ,work");
    add("b", nullptr);
    list->appendChild(static_cast<zlFileItem*>(nullptr));  // an empty slot is skipped
    add("c", "Work,private, home ");
    add("d", ",,");
    EXPECT_EQ(w(" work, home ,work").str(), zlKeyLabel(*zlKeysOf(list)[0]).str());
    EXPECT_TRUE(zlKeyLabel(*zlKeysOf(list)[1]).empty());
    EXPECT_EQ((Texts{"work", "home ", "Work", "private"}), texts(zlCollectLabels(list)));
    EXPECT_EQ((Texts{"a", "b", "c", "d"}), names(zlKeysOf(list)));

    EXPECT_EQ((Texts{"a", "b", "c", "d"}), names(zlFilterKeys(list, w(""))));
    EXPECT_EQ((Texts{"a"}), names(zlFilterKeys(list, w("work"))));
    EXPECT_EQ((Texts{"c"}), names(zlFilterKeys(list, w("Work"))));
    EXPECT_TRUE(zlFilterKeys(list, w("nobody")).empty());
}

TEST_F(KeyListTest, MissingContainersGiveNothingAndTheTrashIsListedToo) {
    EXPECT_TRUE(zlKeysOf(nullptr).empty());
    EXPECT_TRUE(zlCollectLabels(nullptr).empty());
    EXPECT_TRUE(zlFilterKeys(nullptr, w("")).empty());
    auto* trash = new zlFileItemTrash(&file);
    file.root().appendChild(trash);
    zlFileItemKey* key = add("gone", "old");
    ASSERT_TRUE(file.moveKeyToTrash(key));
    EXPECT_TRUE(zlKeysOf(list).empty());
    EXPECT_EQ((Texts{"old"}), texts(zlCollectLabels(trash)));
}

}  // namespace
