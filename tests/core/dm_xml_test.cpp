#include <gtest/gtest.h>

#include <string>

#include "core/dm_stringlist.h"
#include "core/dm_utf8_strlist.h"
#include "core/dm_xml_attributes.h"

using namespace dunmar;

namespace {

template <class Object>
std::string written(const Object& o) {
    dm_utf8_str out;
    EXPECT_TRUE(o.write_object(out));
    return out.str();
}

// An object whose class has no element name of its own.
class unnamed_object : public dm_object {
  public:
    const char* class_name() const override { return ""; }
};

}  // namespace

// Value first, then the tag; both as UTF-8 and escaped.
TEST(DmXml, ValuesAreWrittenAsUtf8AndEscaped) {
    dm_string s(DM_W("x<y"));
    s.set_object_name("a");
    EXPECT_EQ(written(s), "<dm_string value=\"x&lt;y\" tag=\"a\">\n</dm_string>\n");
    s = dm_string(DM_W("\u00e9&'\""));
    s.set_object_name("<n>");
    EXPECT_EQ(written(s),
              "<dm_string value=\"\xC3\xA9&amp;&apos;&quot;\" tag=\"&lt;n&gt;\">\n</dm_string>\n");
    dm_utf8_str bytes("a>b");
    bytes.set_object_name("n");
    EXPECT_EQ(written(bytes), "<dm_utf8_str value=\"a&gt;b\" tag=\"n\">\n</dm_utf8_str>\n");
    EXPECT_EQ(written(dm_object()), "<dm_object tag=\"\">\n</dm_object>\n");
}

TEST(DmXml, OpeningTagSkipsUnnamedAttributesAndKeepsEmptyValues) {
    dm_utf8_str out("before|");
    dm_xml_attributes attributes;
    attributes.add("", "skipped");
    attributes.add("empty", "");
    attributes.add("k", "v");
    dm_object o;
    o.set_object_name("t");
    ASSERT_TRUE(o.write_opening_tag(out, "item", attributes));
    ASSERT_TRUE(o.write_closing_tag(out, "item"));
    EXPECT_EQ(out.str(), "before|<item empty=\"\" k=\"v\" tag=\"t\">\n</item>\n");
}

TEST(DmXml, EmptyElementNameWritesNothingAndFails) {
    unnamed_object o;
    dm_utf8_str out("kept");
    EXPECT_FALSE(o.write_object(out));
    dm_xml_attributes attributes;
    EXPECT_FALSE(o.write_opening_tag(out, "", attributes));
    EXPECT_FALSE(o.write_closing_tag(out, ""));
    EXPECT_EQ(out.str(), "kept");
    // A name passed in still works for such a class.
    EXPECT_TRUE(o.write_closing_tag(out, "e"));
    EXPECT_EQ(out.str(), "kept</e>\n");
}

TEST(DmXml, ListsWriteTheirSizeThenEveryItem) {
    dm_stringlist list;
    list.set_object_name("L");
    list.append(dm_string(DM_W("p")));
    dm_string second(DM_W("q"));
    second.set_object_name("two");
    list.append(second);
    EXPECT_EQ(written(list),
              "<dm_stringlist size=\"2\" tag=\"L\">\n"
              "<dm_string value=\"p\" tag=\"\">\n</dm_string>\n"
              "<dm_string value=\"q\" tag=\"two\">\n</dm_string>\n"
              "</dm_stringlist>\n");
    EXPECT_EQ(written(dm_utf8_strlist()),
              "<dm_utf8_strlist size=\"0\" tag=\"\">\n</dm_utf8_strlist>\n");
}

TEST(DmXml, OwnAttributeSetIsWrittenInsideTheElement) {
    dm_utf8_str s("v");
    s.set_object_name("outer");
    dm_xml_attributes& own = s.make_attributes();
    own.add("colour", "red");
    // The set's own items may carry attribute sets as well.
    dm_utf8_str nested("deep");
    nested.set_object_name("inner");
    nested.make_attributes().add("level", "2");
    own.append(nested);
    EXPECT_EQ(written(s),
              "<dm_utf8_str value=\"v\" tag=\"outer\">\n"
              "<dm_utf8_strlist size=\"2\" tag=\"\">\n"
              "<dm_utf8_str value=\"red\" tag=\"colour\">\n</dm_utf8_str>\n"
              "<dm_utf8_str value=\"deep\" tag=\"inner\">\n"
              "<dm_utf8_strlist size=\"1\" tag=\"\">\n"
              "<dm_utf8_str value=\"2\" tag=\"level\">\n</dm_utf8_str>\n"
              "</dm_utf8_strlist>\n"
              "</dm_utf8_str>\n"
              "</dm_utf8_strlist>\n"
              "</dm_utf8_str>\n");
}

TEST(DmXml, ListAttributeSetComesBeforeItsItems) {
    dm_utf8_strlist list;
    list.make_attributes().add("k", "v");
    list.append(dm_utf8_str("item"));
    EXPECT_EQ(written(list),
              "<dm_utf8_strlist size=\"1\" tag=\"\">\n"
              "<dm_utf8_strlist size=\"1\" tag=\"\">\n"
              "<dm_utf8_str value=\"v\" tag=\"k\">\n</dm_utf8_str>\n"
              "</dm_utf8_strlist>\n"
              "<dm_utf8_str value=\"item\" tag=\"\">\n</dm_utf8_str>\n"
              "</dm_utf8_strlist>\n");
}
