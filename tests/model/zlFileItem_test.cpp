#include "model/zlFileItem.h"

#include <gtest/gtest.h>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

// A key list holding keys named by the given texts (stored as they are).
zlFileItemKeys* keyList(zlKeyFile& file, std::initializer_list<const char*> names) {
    auto* list = new zlFileItemKeys(&file);
    for (const char* n : names) {
        auto* key = new zlFileItemKey(&file);
        key->setLabel(dm_utf8_str(n));
        list->appendChild(key);
    }
    file.root().appendChild(list);
    return list;
}

std::string labelAt(const zlFileItem& list, size_t i) {
    return static_cast<const zlFileItemKey*>(list.child(i))->fieldValue(zlTypeKeyLabel).str();
}

// Field codes 6 to 12 each make their own item and name their own element; none beyond.
TEST(zlFileItem, KeyFieldCodesMatchTheFileElements) {
    zlKeyFile f;
    const char* names[] = {"name", "label", "user", "pw", "email", "url", "note"};
    for (int code = 6; code <= 12; ++code) {
        std::unique_ptr<zlFileItemKeyItem> item(zlMakeKeyField(code, &f, dm_utf8_str("AB")));
        ASSERT_TRUE(item) << code;
        EXPECT_EQ(code, item->typeCode());
        EXPECT_STREQ(names[code - 6], zlKeyFieldElement(code)) << code;
    }
    EXPECT_EQ(nullptr, zlMakeKeyField(5, &f, dm_utf8_str()));
    EXPECT_EQ(nullptr, zlKeyFieldElement(13));
}

TEST(zlFileItem, FindChildSkipsEmptySlotsAndTakesTheFirst) {
    zlKeyFile f;
    f.root().appendChild(static_cast<zlFileItem*>(nullptr));
    auto* first = new zlFileItemKeys(&f);
    f.root().appendChild(first);
    f.root().appendChild(new zlFileItemKeys(&f));
    EXPECT_EQ(first, f.root().findChild(zlTypeKeys));
    EXPECT_EQ(nullptr, f.root().findChild(zlTypeTrash));
    EXPECT_EQ(first, f.keys());
    f.root().clearChildren();
    EXPECT_EQ(0u, f.root().childCount());
    EXPECT_EQ(nullptr, f.keys());

    // An empty slot neither writes nor counts as a child for the line layout.
    dm_utf8_str out;
    zlFileItemRoot lone(&f);
    lone.appendChild(static_cast<zlFileItem*>(nullptr));
    lone.writeXml(dm_utf8_str(), out);
    EXPECT_EQ("<Zelto></Zelto>", out.str());
}

TEST(zlFileItem, MoveChildKeepsTheOrderOfTheRest) {
    zlKeyFile f;
    zlFileItemKeys* list = keyList(f, {"a", "b", "c", "d"});
    zlFileItemTrash trash(&f);

    EXPECT_TRUE(list->moveChild(0, &trash));  // first
    EXPECT_TRUE(list->moveChild(2, &trash));  // last
    ASSERT_EQ(2u, list->childCount());
    EXPECT_EQ("b", labelAt(*list, 0));
    EXPECT_EQ("c", labelAt(*list, 1));
    ASSERT_EQ(2u, trash.childCount());
    EXPECT_EQ("a", labelAt(trash, 0));
    EXPECT_EQ("d", labelAt(trash, 1));

    EXPECT_FALSE(list->moveChild(2, &trash));  // index equal to the count
    EXPECT_FALSE(list->moveChild(-1, &trash));
    EXPECT_FALSE(list->moveChild(0, list));  // onto itself
    EXPECT_FALSE(list->moveChild(0, nullptr));
    EXPECT_EQ(2u, list->childCount());
    EXPECT_EQ(2u, trash.childCount());
}

TEST(zlFileItem, CloneIsDeepAndIndependent) {
    zlKeyFile f;
    ASSERT_EQ(0, f.set_pass_phrase(ztest::kLongPass));
    zlFileItemKeys* list = keyList(f, {"x", "y"});
    auto* key = static_cast<zlFileItemKey*>(list->child(0));
    ASSERT_TRUE(key->setName(ztest::enc(f, "bank")));
    auto* settings = new zlFileItemSettings(&f);
    settings->autolock = 120;
    settings->language = "Deutsch";
    ASSERT_TRUE(settings->setUserEmail(dm_utf8_str("me@example.org"), true));
    f.root().appendChild(settings);

    dm_utf8_str before;
    f.root().writeXml(dm_utf8_str(), before);
    {
        std::unique_ptr<zlFileItem> copy(f.root().clone());
        EXPECT_EQ(&f, copy->owner());
        dm_utf8_str copied;
        copy->writeXml(dm_utf8_str(), copied);
        EXPECT_EQ(before.str(), copied.str());

        // Changing the copy leaves the source alone.
        auto* copyList = static_cast<zlFileItemKeys*>(copy->findChild(zlTypeKeys));
        ASSERT_NE(list, copyList);
        static_cast<zlFileItemKey*>(copyList->child(0))->setLabel(dm_utf8_str("changed"));
        auto* copySettings = static_cast<zlFileItemSettings*>(copy->findChild(zlTypeSettings));
        EXPECT_EQ(120, copySettings->autolock);
        EXPECT_EQ("me@example.org", copySettings->userEmail(true).str());
        EXPECT_EQ("bank", static_cast<zlFileItemKey*>(copyList->child(0))->plainName().str());
        copySettings->autolock = 5;
    }
    dm_utf8_str after;
    f.root().writeXml(dm_utf8_str(), after);
    EXPECT_EQ(before.str(), after.str());
}

TEST(zlFileItem, MoveKeyToTrashMakesTheTrashOnce) {
    zlKeyFile f;
    zlFileItemKeys* list = keyList(f, {"a", "b", "c"});
    auto* b = static_cast<zlFileItemKey*>(list->child(1));
    auto* c = static_cast<zlFileItemKey*>(list->child(2));
    EXPECT_EQ(nullptr, f.trash());
    ASSERT_TRUE(f.moveKeyToTrash(b));
    ASSERT_NE(nullptr, f.trash());
    ASSERT_TRUE(f.moveKeyToTrash(c));
    EXPECT_EQ(2u, f.trash()->childCount());
    EXPECT_EQ(1u, list->childCount());
    EXPECT_EQ(b, f.trash()->child(0));
    // A key that is not in the list (here: already in the trash) is refused.
    EXPECT_FALSE(f.moveKeyToTrash(b));
    int trashes = 0;
    for (size_t i = 0; i < f.root().childCount(); ++i)
        trashes += f.root().child(i)->typeCode() == zlTypeTrash;
    EXPECT_EQ(1, trashes);
}

}  // namespace
