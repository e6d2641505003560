#include <gtest/gtest.h>

#include <memory>

#include "core/dm_stringlist.h"
#include "core/dm_utf8_strlist.h"
#include "core/dm_xml_attributes.h"

using namespace dunmar;

namespace {

dm_utf8_str named(const char* name, const char* value) {
    dm_utf8_str s(value);
    s.set_object_name(name);
    return s;
}

}  // namespace

TEST(DmObject, CopyTakesNameValueAndADeepCopyOfTheAttributes) {
    dm_string original(DM_W("value"));
    original.set_object_name("name");
    original.make_attributes().add("k", "v");

    dm_string copy(original);
    EXPECT_EQ(copy.object_name(), "name");
    EXPECT_TRUE(copy.equals(original));
    ASSERT_NE(copy.attributes(), nullptr);
    ASSERT_NE(copy.attributes(), original.attributes());
    ASSERT_EQ(copy.attributes()->size(), 1u);
    EXPECT_EQ(copy.attributes()->at(0).object_name(), "k");

    copy.attributes()->add("other", "x");
    copy.attributes()->at(0).assign("changed", 7);
    EXPECT_EQ(original.attributes()->size(), 1u);
    EXPECT_EQ(original.attributes()->at(0).str(), "v");
}

TEST(DmObject, AssignmentReplacesNameAndAttributes) {
    dm_utf8_str target("old");
    target.set_object_name("old name");
    target.make_attributes().add("stale", "1");

    const dm_utf8_str plain("new");
    target = plain;
    EXPECT_EQ(target.str(), "new");
    EXPECT_EQ(target.object_name(), "");
    EXPECT_EQ(target.attributes(), nullptr);

    dm_utf8_str with_attributes("x");
    with_attributes.make_attributes().add("a", "b");
    target = with_attributes;
    ASSERT_NE(target.attributes(), nullptr);
    EXPECT_NE(target.attributes(), with_attributes.attributes());
    EXPECT_EQ(target.attributes()->at(0).str(), "b");

    const dm_utf8_str& same = target;
    target = same;  // self-assignment keeps everything
    ASSERT_NE(target.attributes(), nullptr);
    EXPECT_EQ(target.str(), "x");
}

TEST(DmObject, CloneKeepsTheClassAndTheData) {
    dm_string wide(DM_W("w"));
    wide.set_object_name("n");
    wide.make_attributes().add("k", "v");
    const std::unique_ptr<dm_object> copy = wide.clone();
    const auto* as_string = dynamic_cast<const dm_string*>(copy.get());
    ASSERT_NE(as_string, nullptr);
    EXPECT_TRUE(as_string->equals(wide));
    EXPECT_EQ(as_string->object_name(), "n");
    ASSERT_NE(as_string->attributes(), nullptr);

    dm_xml_attributes set;
    set.add("a", "1");
    const std::unique_ptr<dm_object> set_copy = set.clone();
    const auto* as_set = dynamic_cast<const dm_xml_attributes*>(set_copy.get());
    ASSERT_NE(as_set, nullptr);
    EXPECT_EQ(as_set->size(), 1u);

    const std::unique_ptr<dm_object> others[] = {dm_stringlist().clone(), dm_utf8_str().clone(),
                                                 dm_object().clone()};
    const char* names[] = {"dm_stringlist", "dm_utf8_str", "dm_object"};
    for (int i = 0; i < 3; ++i)
        EXPECT_STREQ(others[i]->class_name(), names[i]);
}

TEST(DmLists, ItemsKeepOrderNamesAndAttributesThroughCopies) {
    dm_utf8_strlist list;
    list.append(named("first", "1"));
    dm_utf8_str second = named("second", "2");
    second.make_attributes().add("k", "v");
    list.append(second);
    list.append(dm_utf8_str("3"));

    const dm_utf8_strlist copy = list;
    ASSERT_EQ(copy.size(), 3u);
    const char* values[] = {"1", "2", "3"};
    size_t i = 0;
    for (const dm_utf8_str& item : copy)
        EXPECT_EQ(item.str(), values[i++]);
    EXPECT_EQ(copy.at(0).object_name(), "first");
    ASSERT_NE(copy.at(1).attributes(), nullptr);
    EXPECT_NE(copy.at(1).attributes(), list.at(1).attributes());

    dm_utf8_strlist assigned;
    assigned.append(dm_utf8_str("gone"));
    assigned = list;
    ASSERT_EQ(assigned.size(), 3u);
    EXPECT_EQ(assigned.at(2).str(), "3");
}

TEST(DmLists, CheckedAccessReportsOutOfRange) {
    dm_stringlist list;
    EXPECT_EQ(list.get(0), nullptr);
    list.append(dm_string(DM_W("a")));
    ASSERT_NE(list.get(0), nullptr);
    EXPECT_EQ(list.get(0)->str(), DM_W("a"));
    EXPECT_EQ(list.get(1), nullptr);
    list.clear();
    EXPECT_TRUE(list.empty());
}
