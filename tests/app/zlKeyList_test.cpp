// The key list: the seven fields of a key, the filter by label and the rows shown.
#include "app/zlKeyFilter.h"
#include "app/zlKeyRows.h"
#include "app_test_util.h"

static std::string joined(const dunmar::dm_stringlist& list) {
    std::string out;
    for (const dm_string& text : list)
        out += u8(text) + "|";
    return out;
}

// Pieces lose only their leading spaces; a label passes the empty filter and each of its
// pieces, nothing else.
TEST(zlKeyFilter, PiecesAndMatches) {
    for (const auto& [label, pieces] : {std::make_pair(" work, home ,work", "work|home |work|"),
                                        {",a,,b,", "a|b|"},
                                        {", ,,  ", ""},
                                        {"", ""}}) {
        EXPECT_EQ(pieces, joined(zlLabelPieces(w(label)))) << label;
        EXPECT_TRUE(zlLabelMatches(w(label), w("")));
        for (const dm_string& piece : zlLabelPieces(w(label)))
            EXPECT_TRUE(zlLabelMatches(w(label), piece)) << label;
    }
    for (const auto& [label, filter] :
         {std::make_pair("Work", "work"), {"workshop", "work"}, {"home ,x", "home"}, {"", "work"}})
        EXPECT_FALSE(zlLabelMatches(w(label), w(filter))) << label << "/" << filter;
}

// From the position on, every character is hidden; a shorter row stays whole.
TEST(zlKeyRows, RowTextAndMask) {
    EXPECT_EQ("Bank (money, home)", u8(zlRowText(w("Bank"), w("money, home"))));
    EXPECT_EQ("Bank", u8(zlRowText(w("Bank"), w(""))));
    for (const auto& [position, masked] : {std::make_pair(2, "Ba**********"),
                                           {0, "************"},
                                           {-5, "************"},
                                           {11, "Bank (money*"},
                                           {13, "Bank (money)"}})
        EXPECT_EQ(masked, u8(zlMaskRow(w("Bank (money)"), position))) << position;
    EXPECT_EQ("B\xC3\xBC**", u8(zlMaskRow(w("B\xC3\xBCro"), 2)));  // characters, not bytes
}

class KeyList : public ::testing::Test {
  protected:
    void SetUp() override {
        file.root().appendChild(list);
        ASSERT_EQ(0, file.set_pass_phrase(kShortPass));
    }
    zlFileItemKey* add(const char* name, const char* label = nullptr) {
        return addKey(file, *list, label ? Texts{name, label} : Texts{name});
    }
    zlKeyFile file;
    zlFileItemKeys* list = new zlFileItemKeys(&file);
};

// The filter box lists each label once, in first-met order; filtering keeps file order. The
// longest name counts characters, at least ten, and partial show reaches ten beyond.
TEST_F(KeyList, LabelsFilterAndLongestName) {
    EXPECT_EQ(20, zlPartialShowMaximum(nullptr));
    add("a", " work, home ,work");
    add("b");
    list->appendChild(static_cast<zlFileItem*>(nullptr));  // an empty slot is skipped
    add("c", "Work,private, home ");
    file.root().appendChild(new zlFileItemTrash(&file));
    ASSERT_TRUE(file.moveKeyToTrash(add("gone", "old")));
    EXPECT_EQ("work|home |Work|private|", joined(zlCollectLabels(list)));
    EXPECT_EQ("old|", joined(zlCollectLabels(file.trash())));
    EXPECT_EQ("", joined(zlCollectLabels(nullptr)));
    for (const auto& [filter, expected] :
         {std::make_pair("", "abc"), {"work", "a"}, {"Work", "c"}, {"home ", "ac"}, {"x", ""}}) {
        std::string names;
        for (const zlFileItemKey* key : zlFilterKeys(list, w(filter)))
            names += key->plainName().str();
        EXPECT_EQ(expected, names) << filter;
    }
    for (const auto& [name, longest] : {std::make_pair("Post", 10),
                                        {"M\xC3\xBCller-M\xC3\xBChle", 12},
                                        {"abcdefghijklmnopqrstuvwxyz0123", 30},
                                        {"Bank", 30}}) {
        add(name);
        EXPECT_EQ(longest, zlLongestNameLength(list)) << name;
        EXPECT_EQ(longest + 10, zlPartialShowMaximum(list)) << name;
    }
}

// All seven fields, in their order and each in its place, even empty ones; the first key
// makes the key list.
TEST_F(KeyList, AddedKeysHoldTheSevenFields) {
    file.root().clearChildren();
    zlKeyFields plain;
    for (int i = 0; i < 7; ++i)
        *plain.of(zlTypeKeyName + i) = dm_utf8_str(std::to_string(i));
    EXPECT_TRUE(plain.of(zlTypeKeyName - 1) == nullptr && plain.of(zlTypeKeyNote + 1) == nullptr);
    ASSERT_NE(nullptr, zlAddKey(file, zlKeyFields()));
    zlFileItemKey* key = zlAddKey(file, plain);
    ASSERT_EQ(key, file.keys()->child(1));
    EXPECT_EQ((Texts{"name=|label=|user=|pw=|email=|url=|note=",
                     "name=0|label=1|user=2|pw=3|email=4|url=5|note=6"}),
              plainKeys(file));
    zlKeyFields read;
    ASSERT_TRUE(zlReadKeyFields(*key, read));
    EXPECT_TRUE(read.equals(plain));
    *read.of(zlTypeKeyNote) = "changed";
    EXPECT_FALSE(read.equals(plain));

    // Without a usable cipher nothing changes.
    zlKeyFile locked;
    EXPECT_EQ(nullptr, zlAddKey(locked, plain));
    EXPECT_EQ(nullptr, locked.keys());
    zlFileItemKey orphan(nullptr);
    EXPECT_FALSE(zlStoreKeyFields(orphan, plain));
    EXPECT_EQ(0u, orphan.childCount());
}
