// The key item tree: its items and codes, moves and copies, fields and the verify value.
#include "model/zlFileItem.h"

#include <gtest/gtest.h>

#include <memory>

#include "model/zlVerify.h"
#include "support/test_util.h"
#include "tree_text.h"

using namespace Zelto;
using dunmar::dm_utf8_str;
using ztest::dec;
using ztest::enc;

namespace {

// A file under pass phrase holding a key list whose keys carry the given labels as stored.
class Tree : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(0, file.set_pass_phrase("password a")); }

    zlFileItemKeys* keyList(std::initializer_list<const char*> labels) {
        auto* list = new zlFileItemKeys(&file);
        for (const char* label : labels) {
            auto* key = new zlFileItemKey(&file);
            key->setLabel(dm_utf8_str(label));
            list->appendChild(key);
        }
        file.root().appendChild(list);
        return list;
    }

    zlKeyFile file;
};

// The codes and element names are those of the file format.
TEST_F(Tree, EveryItemHasItsTypeCodeAndElement) {
    const std::pair<std::unique_ptr<zlFileItem>, int> items[] = {
        {std::make_unique<zlFileItemRoot>(&file), 1},
        {std::make_unique<zlFileItemSettings>(&file), 2},
        {std::make_unique<zlFileItemKeys>(&file), 3},
        {std::make_unique<zlFileItemKey>(&file), 4},
        {std::make_unique<zlFileItemTrash>(&file), 13}};
    for (const auto& item : items)
        EXPECT_EQ(item.second, item.first->typeCode());
    const char* names[] = {"name", "label", "user", "pw", "email", "url", "note"};
    for (int code = 4; code <= 13; ++code) {
        const bool field = code >= 6 && code <= 12;
        std::unique_ptr<zlFileItemKeyItem> item(zlMakeKeyField(code, &file, dm_utf8_str("AB")));
        EXPECT_EQ(field ? code : 0, item ? item->typeCode() : 0);
        EXPECT_STREQ(field ? names[code - 6] : nullptr, zlKeyFieldElement(code));
    }
}

// Empty slots are skipped by lookups and writing; a move keeps the order of the rest.
TEST_F(Tree, LookupsAndMoves) {
    file.root().appendChild(static_cast<zlFileItem*>(nullptr));
    zlFileItemKeys* list = keyList({"a", "b", "c", "d"});
    keyList({"second"});
    EXPECT_EQ(list, file.keys());
    EXPECT_EQ(nullptr, file.trash());
    EXPECT_EQ(2, file.root().indexOfChild(file.root().child(2)));
    EXPECT_EQ(-1, file.root().indexOfChild(nullptr));
    auto* trash = new zlFileItemTrash(&file);
    file.root().appendChild(trash);

    const struct {
        long index;
        zlFileItem* target;
        bool moved;
    } moves[] = {{0, trash, true},   {2, trash, true}, {2, trash, false},
                 {-1, trash, false}, {0, list, false}, {0, nullptr, false}};
    for (const auto& m : moves)
        EXPECT_EQ(m.moved, list->moveChild(m.index, m.target)) << m.index;
    EXPECT_EQ("keys[(label=b) (label=c)] keys[(label=second)] trash[(label=a) (label=d)]",
              ztest::treeText(file.root()));
    file.root().clearChildren();
    EXPECT_EQ(nullptr, file.keys());
}

TEST_F(Tree, MoveKeyToTrashMakesTheTrashOnce) {
    zlFileItemKeys* list = keyList({"a", "b", "c"});
    auto* b = static_cast<zlFileItemKey*>(list->child(1));
    ASSERT_TRUE(file.moveKeyToTrash(b));
    ASSERT_TRUE(file.moveKeyToTrash(static_cast<zlFileItemKey*>(list->child(1))));
    EXPECT_FALSE(file.moveKeyToTrash(b));  // no longer in the list
    EXPECT_FALSE(file.moveKeyToTrash(nullptr));
    EXPECT_EQ("keys[(label=a)] trash[(label=b) (label=c)]", ztest::treeText(file.root()));
    zlKeyFile empty;
    EXPECT_FALSE(empty.moveKeyToTrash(b));
}

// A clone has the same owner and text and is independent of its source.
TEST_F(Tree, CloneIsDeepAndIndependent) {
    ASSERT_EQ(zlReadOk, file.readFile(ztest::widePath(ztest::dataFile("WriterTrash.xml"))));
    dm_utf8_str before, copied, after;
    file.root().writeXml(dm_utf8_str(), before);
    std::unique_ptr<zlFileItem> copy(file.root().clone());
    EXPECT_EQ(&file, copy->owner());
    copy->writeXml(dm_utf8_str(), copied);
    EXPECT_EQ(before.str(), copied.str());
    static_cast<zlFileItemKey*>(copy->findChild(zlTypeKeys)->child(0))->setLabel(dm_utf8_str("z"));
    copy.reset();
    file.root().writeXml(dm_utf8_str(), after);
    EXPECT_EQ(before.str(), after.str());
}

// Setters replace the first field of the type or append one; the name must decipher, and is
// deciphered on demand: again after a value without its plain form, never when empty.
TEST_F(Tree, KeyFields) {
    zlFileItemKey key(&file);
    ASSERT_TRUE(key.setName(enc(file, "mail")));
    ASSERT_TRUE(key.setPassword(enc(file, "s3cret")));
    ASSERT_TRUE(key.setUser(enc(file, "joe")));
    ASSERT_TRUE(key.setName(enc(file, "webmail")));
    ASSERT_TRUE(key.setPassword(enc(file, "n3w")));
    EXPECT_FALSE(key.setField(zlTypeKey, dm_utf8_str("AB")));
    EXPECT_EQ("(name=webmail pw=n3w user=joe)", ztest::treeText(key, true));
    EXPECT_EQ("webmail", key.plainName().str());
    dm_utf8_str plain("junk");
    ASSERT_TRUE(key.plainField(zlTypeKeyUser, plain));
    EXPECT_EQ("joe", plain.str());
    ASSERT_TRUE(key.plainField(zlTypeKeyNote, plain));
    EXPECT_TRUE(plain.empty());

    zlFileItemKeyName name(&file, enc(file, "bank"), dm_utf8_str());
    EXPECT_EQ("bank", name.plainName().str());
    static_cast<zlFileItemKeyItem&>(name).setValue(enc(file, "shop"));
    EXPECT_EQ("shop", name.plainName().str());
    EXPECT_TRUE(zlFileItemKeyName(&file, dm_utf8_str(), dm_utf8_str()).plainName().empty());

    zlKeyFile locked;  // no pass phrase: nothing deciphers
    EXPECT_TRUE(zlFileItemKeyName(&locked, enc(file, "bank"), dm_utf8_str()).plainName().empty());
    zlFileItemKey lockedKey(&locked);
    EXPECT_FALSE(lockedKey.setName(enc(file, "bank")));
    EXPECT_TRUE(lockedKey.setLabel(enc(file, "x")));
    EXPECT_FALSE(lockedKey.plainField(zlTypeKeyLabel, plain));
    EXPECT_EQ(1u, lockedKey.childCount());
}

// Copies between files take every field deciphered under the source and enciphered under the
// target, in field order, a missing field as empty; only keys come over, in order.
TEST_F(Tree, CopiesReEncipherUnderTheNewOwner) {
    zlKeyFile target;
    ASSERT_EQ(0, target.set_pass_phrase("password b"));
    zlFileItemKeys source(&file);
    source.appendChild(static_cast<zlFileItem*>(nullptr));
    source.appendChild(new zlFileItemTrash(&file));
    const char* plain[] = {"", "a, b", "user", "pw", "e@x", "https://x", "line1\r\nline2"};
    for (const char* name : {"one", "two"}) {
        auto* key = new zlFileItemKey(&file);
        for (int i = 6; i > 0; --i)
            ASSERT_TRUE(key->setField(zlTypeKeyName + i, enc(file, plain[i])));
        ASSERT_TRUE(key->setName(enc(file, name)));
        source.appendChild(key);
    }
    zlFileItemTrash copies(&target);
    ASSERT_TRUE(copies.copyKeysFrom(source));
    zlFileItemKeys listCopies(&target);
    ASSERT_TRUE(listCopies.copyKeysFrom(copies));
    ASSERT_EQ(2u, listCopies.childCount());
    const std::string fields =
        " label=a, b user=user pw=pw email=e@x url=https://x note=line1\r\nline2)";
    EXPECT_EQ("keys[(name=one" + fields + " (name=two" + fields + "]",
              ztest::treeText(listCopies, true));
    zlKeyFile locked;
    EXPECT_FALSE(zlFileItemKey(nullptr).copyFrom(static_cast<zlFileItemKey&>(*source.child(2))));
    EXPECT_FALSE(zlFileItemKeys(&locked).copyKeysFrom(source));
    EXPECT_FALSE(zlFileItemTrash(&locked).copyKeysFrom(source));
}

// User fields are stored enciphered or as given; assigning settings re-enciphers them.
TEST_F(Tree, SettingsUserFields) {
    zlFileItemSettings s(&file);
    s.verify = "ABCDEF";
    s.version = "2.0";
    s.autolock = 0;
    s.autoClearClipboard = 600;
    s.showSelectedKey = 30;
    s.language = "Deutsch";
    ASSERT_TRUE(s.setUserFirstName(dm_utf8_str("Ada"), true));
    ASSERT_TRUE(s.setUserLastName(dm_utf8_str("Lovelace"), true));
    ASSERT_TRUE(s.setUserEmail(dm_utf8_str("ada@example.org"), false));
    zlKeyFile target;
    ASSERT_EQ(0, target.set_pass_phrase("password b"));
    zlFileItemSettings copy(&target);
    ASSERT_TRUE(copy.assignFrom(s));
    EXPECT_EQ("settings{ABCDEF,0,600,30,Deutsch|Ada,Lovelace,}", ztest::treeText(copy, true));
    EXPECT_EQ("2.0", copy.version.str());
    EXPECT_EQ("Ada", s.userFirstName(true).str());
    EXPECT_EQ("ada@example.org", s.userEmail(false).str());

    zlKeyFile locked;
    zlFileItemSettings failing(&locked);
    ASSERT_TRUE(failing.setUserEmail(dm_utf8_str("stored as is"), false));
    EXPECT_TRUE(failing.userEmail(true).empty());
    EXPECT_FALSE(failing.setUserEmail(dm_utf8_str("new"), true));
    EXPECT_TRUE(failing.userEmail(false).empty());
    EXPECT_FALSE(failing.assignFrom(s));
}

// The verify value exists for usable passwords only and tells the right one.
TEST_F(Tree, VerifyValueTellsTheRightPassword) {
    EXPECT_EQ(zlPasswordNoSettings, zlCheckPassword(file));
    auto* settings = new zlFileItemSettings(&file);
    file.root().appendChild(settings);
    for (size_t length : {0, 7, 8, 128, 129}) {
        const std::string password(length, 'p');
        settings->verify = zlMakeVerifyValue(dm_utf8_str(password));
        EXPECT_EQ(length < 8 || length > 128, settings->verify.empty()) << length;
        if (!settings->verify.empty()) {
            ASSERT_EQ(0, file.set_pass_phrase(password.c_str()));
            EXPECT_EQ(zlPasswordRight, zlCheckPassword(file)) << length;
        }
    }
    const dm_utf8_str wrong[] = {zlMakeVerifyValue(dm_utf8_str("password b")),
                                 enc(file, std::string(zlVerifyText, 112).c_str()),
                                 dm_utf8_str("6E6E6"), dm_utf8_str("no code at all")};
    for (const dm_utf8_str& verify : wrong) {
        settings->verify = verify;
        EXPECT_EQ(zlPasswordWrong, zlCheckPassword(file)) << verify.str();
    }
    zlKeyFile locked;
    locked.root().appendChild(new zlFileItemSettings(&locked));
    EXPECT_EQ(zlPasswordWrong, zlCheckPassword(locked));
}

}  // namespace
