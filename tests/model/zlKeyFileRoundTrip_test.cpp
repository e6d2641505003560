// Property: whatever tree the writer gets, reading its text gives the tree back, and from the
// second text on, writing is stable.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <vector>

#include "support/test_util.h"
#include "tree_text.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

class Random {
  public:
    explicit Random(uint32_t seed) : rng_(seed) {}
    int below(int n) { return static_cast<int>(rng_() % static_cast<uint32_t>(n)); }

    // Markup, line ends, blanks, one to four UTF-8 bytes, references that must stay text.
    dm_utf8_str text(const zlEncrypt& cipher, bool allowEmpty) {
        static const std::vector<std::string> pieces = [] {
            std::vector<std::string> out;
            std::istringstream in(
                "a|Z|7| |<|>|&|\"|'|\t|&amp;|]]>|\r\n|\xC3\xA4|\xE2\x82\xAC|\xF0\x9F\x94\x91");
            for (std::string piece; std::getline(in, piece, '|');)
                out.push_back(piece);
            return out;
        }();
        std::string s;
        for (int n = below(30) + (allowEmpty ? 0 : 1); n > 0; --n)
            s += pieces[below(static_cast<int>(pieces.size()))];
        return ztest::enc(cipher, s.c_str());
    }

    void fill(zlKeyFile& file, zlFileItem* list, int keys, bool allowEmpty) {
        file.root().appendChild(list);
        for (; keys > 0; --keys) {
            auto* key = new zlFileItemKey(&file);
            list->appendChild(key);
            for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type)
                EXPECT_TRUE(below(5) == 0 || key->setField(type, text(file, allowEmpty)));
        }
    }

  private:
    std::mt19937 rng_;
};

dm_utf8_str reread(const dm_utf8_str& text, zlKeyFile& into) {
    EXPECT_EQ(0, into.set_pass_phrase(ztest::kShortPass));
    EXPECT_EQ(1, into.readText(dm_utf8_str(text)));
    return into.buildFileText(dm_utf8_str("English"));
}

TEST(KeyFileRoundTrip, WrittenTreesReadBack) {
    for (uint32_t seed = 1; seed <= 24; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const bool allowEmpty = seed > 12;
        zlKeyFile source;
        ASSERT_EQ(0, source.set_pass_phrase(ztest::kShortPass));
        auto* settings = new zlFileItemSettings(&source);
        source.root().appendChild(settings);
        settings->verify = ztest::enc(source, "verify");
        settings->autolock = 5 + random.below(596);
        settings->autoClearClipboard = 5 + random.below(596);
        settings->showSelectedKey = 1 + random.below(30);
        settings->setUserFirstName(random.text(source, allowEmpty), false);
        settings->setUserLastName(random.text(source, allowEmpty), false);
        settings->setUserEmail(random.text(source, allowEmpty), false);
        random.fill(source, new zlFileItemKeys(&source), 1 + random.below(200), allowEmpty);
        if (random.below(3) != 0)
            random.fill(source, new zlFileItemTrash(&source), random.below(20), allowEmpty);
        const dm_utf8_str first = source.buildFileText(dm_utf8_str("English"));

        zlKeyFile back;
        const dm_utf8_str second = reread(first, back);
        EXPECT_EQ(ztest::treeText(source.root(), true), ztest::treeText(back.root(), true));
        // Empty elements take the white space before them, which deciphers to nothing.
        if (!allowEmpty) {
            EXPECT_EQ(ztest::treeText(source.root()), ztest::treeText(back.root()));
            EXPECT_EQ(first.str(), second.str());
        }
        zlKeyFile third;
        EXPECT_EQ(second.str(), reread(second, third).str());
    }
}

}  // namespace
