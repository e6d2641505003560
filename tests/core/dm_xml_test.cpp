// Objects, lists and attribute sets: each writes itself as one element, and copies are whole
// and independent; the written text shows both.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/dm_stringlist.h"
#include "core/dm_utf8_strlist.h"
#include "core/dm_xml_attributes.h"

using namespace dunmar;

namespace {

std::string written(const dm_object& o) {
    dm_utf8_str out;
    EXPECT_TRUE(o.write_object(out));
    return out.str();
}

template <class Text>
std::unique_ptr<Text> named(const char* name, Text text) {
    text.set_object_name(name);
    return std::make_unique<Text>(text);
}

// A class without an element name of its own.
class unnamed_list : public dm_utf8_strlist {
  public:
    const char* class_name() const override { return ""; }
};

}  // namespace

// Values and names escaped, list items and the own attribute set as elements of their own.
// A clone writes the same.
TEST(DmXml, EveryClassWritesItsElement) {
    auto with_set = named("outer", dm_utf8_str("v"));
    with_set->make_attributes().add("colour", "red");
    with_set->attributes()->append(*named("", dm_utf8_str("unnamed")));
    auto list = named("L", dm_stringlist());
    list->append(dm_string(DM_W("p")));
    list->append(*named("two", dm_string(DM_W("q"))));
    auto attributes = std::make_unique<dm_xml_attributes>();
    attributes->add("k", "v");
    const std::pair<std::unique_ptr<dm_object>, const char*> cases[] = {
        {std::make_unique<dm_object>(), "<dm_object tag=\"\">\n</dm_object>\n"},
        {named("<n>", dm_string(DM_W("\u00e9&'\"x<y"))),
         "<dm_string value=\"\xC3\xA9&amp;&apos;&quot;x&lt;y\" tag=\"&lt;n&gt;\">\n</dm_string>\n"},
        {named("n", dm_utf8_str("a>b")),
         "<dm_utf8_str value=\"a&gt;b\" tag=\"n\">\n</dm_utf8_str>\n"},
        {std::move(attributes),
         "<dm_utf8_strlist size=\"1\" tag=\"\">\n<dm_utf8_str value=\"v\" tag=\"k\">\n"
         "</dm_utf8_str>\n</dm_utf8_strlist>\n"},
        {std::move(list),
         "<dm_stringlist size=\"2\" tag=\"L\">\n<dm_string value=\"p\" tag=\"\">\n</dm_string>\n"
         "<dm_string value=\"q\" tag=\"two\">\n</dm_string>\n</dm_stringlist>\n"},
        {std::move(with_set),
         "<dm_utf8_str value=\"v\" tag=\"outer\">\n<dm_utf8_strlist size=\"2\" tag=\"\">\n"
         "<dm_utf8_str value=\"red\" tag=\"colour\">\n</dm_utf8_str>\n"
         "<dm_utf8_str value=\"unnamed\" tag=\"\">\n</dm_utf8_str>\n</dm_utf8_strlist>\n"
         "</dm_utf8_str>\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(written(*c.first), c.second);
        EXPECT_EQ(written(*c.first->clone()), c.second);
    }
    EXPECT_NE(dynamic_cast<dm_xml_attributes*>(cases[3].first->clone().get()), nullptr);
}

TEST(DmXml, OpeningTagSkipsUnnamedAttributesAndNeedsAName) {
    dm_utf8_str out("before|");
    dm_xml_attributes attributes;
    attributes.add("", "skipped");
    attributes.add("empty", "");
    const dm_object o("t");
    ASSERT_TRUE(o.write_opening_tag(out, "item", attributes));
    ASSERT_TRUE(o.write_closing_tag(out, "item"));
    EXPECT_EQ(out.str(), "before|<item empty=\"\" tag=\"t\">\n</item>\n");

    // Neither items nor attribute set are written without the element.
    unnamed_list unnamed;
    unnamed.append(dm_utf8_str("item"));
    unnamed.make_attributes().add("k", "v");
    dm_utf8_str kept("kept");
    EXPECT_FALSE(unnamed.write_object(kept));
    EXPECT_FALSE(unnamed.write_closing_tag(kept, ""));
    EXPECT_TRUE(unnamed.write_closing_tag(kept, "e"));
    EXPECT_EQ(kept.str(), "kept</e>\n");
}

// Copies and assignments take the name, the value and a copy of the attribute set.
TEST(DmXml, CopiesAreWholeAndIndependent) {
    dm_utf8_strlist list;
    dm_utf8_str item = *named("item", dm_utf8_str("1"));
    item.make_attributes().add("k", "v");
    list.append(item);
    list.make_attributes().add("own", "set");
    const std::string original = written(list);
    dm_utf8_strlist copy(list);
    dm_utf8_strlist assigned;
    assigned.append(dm_utf8_str("gone"));
    assigned = list;
    EXPECT_EQ(written(assigned), original);
    copy.at(0).attributes()->add("more", "x");
    copy.attributes()->at(0).assign("changed", 7);
    assigned.attributes()->clear();
    EXPECT_EQ(written(list), original);

    assigned = dm_utf8_strlist();
    EXPECT_EQ(written(assigned), written(dm_utf8_strlist()));
    item.drop_attributes();
    EXPECT_EQ(written(item), "<dm_utf8_str value=\"1\" tag=\"item\">\n</dm_utf8_str>\n");
}

TEST(DmXml, CheckedAccessEndsAtTheSize) {
    dm_stringlist list;
    EXPECT_EQ(list.get(0), nullptr);
    list.append(dm_string(DM_W("a")));
    ASSERT_NE(list.get(0), nullptr);
    EXPECT_EQ(list.get(0)->str(), DM_W("a"));
    EXPECT_EQ(list.get(1), nullptr);
    list.clear();
    EXPECT_TRUE(list.empty());
}
