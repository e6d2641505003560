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

dm_string w(const char* utf8) {
    return dm_utf8_str(utf8).to_wide();
}

std::vector<std::string> texts(const dm_stringlist& list) {
    std::vector<std::string> out;
    for (const dm_string& s : list)
        out.push_back(s.to_utf8().str());
    return out;
}

using Texts = std::vector<std::string>;

TEST(zlKeyFilter, PiecesLoseOnlyLeadingBlanks) {
    EXPECT_EQ((Texts{"work", "home ", "work"}), texts(zlLabelPieces(w(" work, home ,work"))));
    EXPECT_EQ((Texts{}), texts(zlLabelPieces(w(""))));
    EXPECT_EQ((Texts{}), texts(zlLabelPieces(w(", ,,  "))));
    EXPECT_EQ((Texts{"a", "b"}), texts(zlLabelPieces(w(",a,,b,"))));
    // Only spaces count as leading blanks.
    EXPECT_EQ((Texts{"\tx"}), texts(zlLabelPieces(w("\tx"))));
    EXPECT_EQ((Texts{"B\xC3\xBCro"}), texts(zlLabelPieces(w("  B\xC3\xBCro"))));
}

TEST(zlKeyFilter, FilterComparesWholePiecesExactly) {
    EXPECT_TRUE(zlLabelMatches(w(""), w("")));
    EXPECT_TRUE(zlLabelMatches(w("anything"), w("")));
    EXPECT_TRUE(zlLabelMatches(w("home, work"), w("work")));
    EXPECT_FALSE(zlLabelMatches(w("Work"), w("work")));
    EXPECT_FALSE(zlLabelMatches(w("workshop"), w("work")));
    EXPECT_FALSE(zlLabelMatches(w(""), w("work")));
    // The trailing blank stays part of the piece.
    EXPECT_FALSE(zlLabelMatches(w("home ,x"), w("home")));
    EXPECT_TRUE(zlLabelMatches(w("home ,x"), w("home ")));
    EXPECT_TRUE(zlLabelMatches(w("x,  B\xC3\xBCro"), w("B\xC3\xBCro")));
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

    std::vector<std::string> names(const std::vector<zlFileItemKey*>& keys) {
        std::vector<std::string> out;
        for (const zlFileItemKey* key : keys)
            out.push_back(key->plainName().str());
        return out;
    }

    zlKeyFile file;
    zlFileItemKeys* list = nullptr;
};

TEST_F(KeyListTest, LabelsAreCollectedOnceInFirstMetOrder) {
    add("a", " work, home ,work");
    add("b", nullptr);
    list->appendChild(static_cast<zlFileItem*>(nullptr));  // an empty slot is skipped
    add("c", "Work,private, home ");
    add("d", ",,");
    EXPECT_EQ(w(" work, home ,work").str(), zlKeyLabel(*zlKeysOf(list)[0]).str());
    EXPECT_TRUE(zlKeyLabel(*zlKeysOf(list)[1]).empty());
    EXPECT_EQ((Texts{"work", "home ", "Work", "private"}), texts(zlCollectLabels(list)));
    EXPECT_EQ((Texts{"a", "b", "c", "d"}), names(zlKeysOf(list)));
}

TEST_F(KeyListTest, FilterKeepsFileOrderAndDropsUnlabelledKeys) {
    add("one", "work");
    add("two", nullptr);
    add("three", "private, work");
    add("four", "Work");
    EXPECT_EQ((Texts{"one", "two", "three", "four"}), names(zlFilterKeys(list, w(""))));
    EXPECT_EQ((Texts{"one", "three"}), names(zlFilterKeys(list, w("work"))));
    EXPECT_EQ((Texts{"four"}), names(zlFilterKeys(list, w("Work"))));
    EXPECT_TRUE(zlFilterKeys(list, w("nobody")).empty());
}

TEST_F(KeyListTest, MissingOrEmptyContainersGiveNothing) {
    EXPECT_TRUE(zlKeysOf(nullptr).empty());
    EXPECT_TRUE(zlCollectLabels(nullptr).empty());
    EXPECT_TRUE(zlFilterKeys(nullptr, w("")).empty());
    EXPECT_TRUE(zlCollectLabels(list).empty());
    // Keys in the trash are listed like those of the key list.
    auto* trash = new zlFileItemTrash(&file);
    file.root().appendChild(trash);
    zlFileItemKey* key = add("gone", "old");
    ASSERT_TRUE(file.moveKeyToTrash(key));
    EXPECT_TRUE(zlKeysOf(list).empty());
    EXPECT_EQ((Texts{"old"}), texts(zlCollectLabels(trash)));
}

}  // namespace
