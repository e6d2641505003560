#include "converter/zlLegacyReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/zlTypeCodes.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

std::string wrap(const std::string& settings, const std::string& keys) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n  <settings>" + settings +
           "</settings>\r\n  <keys>" + keys + "</keys>\r\n</Zelto>\r\n";
}

bool read(const std::string& text, zlLegacyFile& out) {
    return zlReadLegacyText(dm_utf8_str(text), out);
}

std::string cutAfter(const std::string& text, const std::string& part) {
    return text.substr(0, text.find(part) + part.size());
}

bool reads(const std::string& text) {
    zlLegacyFile out;
    return read(text, out);
}

// Each key as its fields, "code:e:value" with e for enciphered, p for plain.
std::vector<std::string> fieldsOf(const zlLegacyFile& f) {
    std::vector<std::string> out;
    for (const zlLegacyKey& key : f.keys) {
        std::string text;
        for (const zlLegacyField& field : key.fields)
            text += std::to_string(field.typeCode) + (field.encrypted ? ":e:" : ":p:") +
                    field.value.str() + "|";
        out.push_back(text);
    }
    return out;
}

// An empty element is an empty value; a repeated field is kept twice.
TEST(LegacyReader, TakesSettingsAndFieldsInFileOrder) {
    const std::string text = wrap(
        "<pw>0A1B</pw><autoClearClipboard> 60</autoClearClipboard><language>Deutsch</language>"
        "<autolock>99</autolock>",
        "<key><note encrypted=\"false\">n</note><name encrypted='true'>C0DE</name></key>"
        "<key/><key><label encrypted=\"false\"/><label encrypted=\"false\">second</label></key>");
    zlLegacyFile f;
    ASSERT_TRUE(read(text, f));
    EXPECT_EQ("0A1B", f.verify.str());
    EXPECT_TRUE(f.hasAutoClearClipboard);
    EXPECT_EQ(" 60", f.autoClearClipboard.str());
    EXPECT_EQ("Deutsch", f.language.str());
    EXPECT_EQ((std::vector<std::string>{"12:p:n|6:e:C0DE|", "", "7:p:|7:p:second|"}), fieldsOf(f));
}

TEST(LegacyReader, PlainValuesAreUnescapedAndKeepTheirWhiteSpace) {
    const std::string text = wrap(
        "<pw>00</pw>",
        "<key><note encrypted=\"false\">  a &amp; b &lt;c&gt; &quot;d&quot; &apos;e&apos;&#13;&#10;"
        "\tend </note><url encrypted=\"false\"><![CDATA[x<y>]]><!-- gone -->z</url></key>");
    zlLegacyFile f;
    ASSERT_TRUE(read(text, f));
    EXPECT_EQ(std::vector<std::string>{"12:p:  a & b <c> \"d\" 'e'\r\n\tend |11:p:x<y>z|"},
              fieldsOf(f));
}

TEST(LegacyReader, MissingClipboardTimeAndLanguageStayUnset) {
    zlLegacyFile f;
    ASSERT_TRUE(read(wrap("<pw>00</pw>", ""), f));
    EXPECT_FALSE(f.hasAutoClearClipboard);
    EXPECT_TRUE(f.language.empty());
    EXPECT_TRUE(f.keys.empty());
    // Neither settings nor key list is needed besides the verify value.
    EXPECT_TRUE(reads("<Zelto><settings><pw>00</pw></settings></Zelto>"));
}

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
        {"trash", "<Zelto><settings><pw>00</pw></settings><trash>" + key + "</trash></Zelto>"},
        {"key in the settings", wrap("<pw>00</pw>" + key, "")},
        {"field outside a key", wrap("<pw>00</pw>", "<name encrypted=\"false\">n</name>")},
        {"unknown field", wrap("<pw>00</pw>", "<key><pin encrypted=\"false\">1</pin></key>")},
        {"field without attribute", wrap("<pw>00</pw>", "<key><name>n</name></key>")},
        {"attribute neither true nor false",
         wrap("<pw>00</pw>", "<key><name encrypted=\"TRUE\">n</name></key>")},
        {"element inside a field",
         wrap("<pw>00</pw>", "<key><name encrypted=\"false\">a<b/>c</name></key>")},
        {"element inside a setting", wrap("<pw><x/>00</pw>", "")},
        {"text in the key list", wrap("<pw>00</pw>", "words" + key)},
        {"text in a key", wrap("<pw>00</pw>", "<key>words</key>")},
        {"closed out of order", wrap("<pw>00</pw>", "<key><name encrypted=\"false\">n</key>")},
        {"cut inside a tag", cutAfter(wrap("<pw>00</pw>", key), "<name encry")},
        {"cut inside a value", cutAfter(wrap("<pw>00</pw>", key), "<name encrypted=\"fa")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        EXPECT_FALSE(reads(c.text));
    }
    // The same shapes are read when whole.
    EXPECT_TRUE(reads(wrap("<pw>00</pw>", key)));
}

}  // namespace
