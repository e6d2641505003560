#include "converter/zlLegacyReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

std::string wrap(const std::string& settings, const std::string& keys) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n  <settings>" + settings +
           "</settings>\r\n  <keys>" + keys + "</keys>\r\n</Zelto>\r\n";
}

bool reads(const std::string& text) {
    zlLegacyFile out;
    return zlReadLegacyText(dm_utf8_str(text), out);
}

// Settings and fields in file order, each field as "code:e:value" (e enciphered, p plain).
// An empty element is an empty value, a repeated field is kept twice; plain values are
// unescaped and keep their white space.
TEST(LegacyReader, TakesSettingsAndFieldsInFileOrder) {
    const std::string text = wrap(
        "<pw>0A1B</pw><autoClearClipboard> 60</autoClearClipboard><language>Deutsch</language>"
        "<autolock>99</autolock>",
        "<key><note encrypted=\"false\">  a &amp; b &lt;c&gt; &apos;e&apos;&#13;&#10;\tend </note>"
        "<name encrypted='true'>C0DE</name></key><key/><key><label encrypted=\"false\"/>"
        "<label encrypted=\"false\"><![CDATA[x<y>]]><!-- gone -->z</label></key>");
    zlLegacyFile f;
    ASSERT_TRUE(zlReadLegacyText(dm_utf8_str(text), f));
    std::string settings =
        f.verify.str() + "|" + f.autoClearClipboard.str() + "|" + f.language.str();
    std::vector<std::string> keys;
    for (const zlLegacyKey& key : f.keys) {
        keys.emplace_back();
        for (const zlLegacyField& field : key.fields)
            keys.back() += std::to_string(field.typeCode) + (field.encrypted ? ":e:" : ":p:") +
                           field.value.str() + "|";
    }
    EXPECT_TRUE(f.hasAutoClearClipboard);
    EXPECT_EQ("0A1B| 60|Deutsch", settings);
    EXPECT_EQ((std::vector<std::string>{"12:p:  a & b <c> 'e'\r\n\tend |6:e:C0DE|", "",
                                        "7:p:|7:p:x<y>z|"}),
              keys);

    // Neither clipboard time nor language nor key list is needed besides the verify value.
    ASSERT_TRUE(
        zlReadLegacyText(dm_utf8_str("<Zelto><settings><pw>00</pw></settings></Zelto>"), f));
    EXPECT_FALSE(f.hasAutoClearClipboard);
    EXPECT_TRUE(f.language.empty());
    EXPECT_TRUE(f.keys.empty());
}

// What the checked-in damaged files do not show already.
TEST(LegacyReader, RefusesWhatItCannotConvertWithoutLoss) {
    const std::string key = "<key><name encrypted=\"false\">n</name></key>";
    const struct {
        const char* why;
        std::string text;
    } cases[] = {
        {"no verify value", wrap("", key)},
        {"two verify values", wrap("<pw>00</pw><pw>00</pw>", key)},
        {"no root", "<settings><pw>00</pw></settings>"},
        {"other root", "<Other><settings><pw>00</pw></settings></Other>"},
        {"second root", wrap("<pw>00</pw>", "") + "<Zelto/>"},
        {"root not closed", "<Zelto><settings><pw>00</pw></settings>"},
        {"second settings", "<Zelto><settings><pw>00</pw></settings><settings></settings></Zelto>"},
        {"second key list", "<Zelto><settings><pw>00</pw></settings><keys/><keys/></Zelto>"},
        {"key in the settings", wrap("<pw>00</pw>" + key, "")},
        {"field outside a key", wrap("<pw>00</pw>", "<name encrypted=\"false\">n</name>")},
        {"element inside a field",
         wrap("<pw>00</pw>", "<key><name encrypted=\"false\">a<b/>c</name></key>")},
        {"element inside a setting", wrap("<pw><x/>00</pw>", "")},
        {"text in the key list", wrap("<pw>00</pw>", "words" + key)},
        {"cut inside a tag", wrap("<pw>00</pw>", key).substr(0, 100)},
    };
    for (const auto& c : cases)
        EXPECT_FALSE(reads(c.text)) << c.why;
    EXPECT_TRUE(reads(wrap("<pw>00</pw>", key)));
}

}  // namespace
