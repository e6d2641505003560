// Property test: whatever tree the writer gets, reading its text back and writing again is
// stable, and every field keeps its plain text.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <vector>

#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

struct PlainKey {
    // Index 0..6 = name..note; absent fields are not set at all.
    std::string value[7];
    bool present[7] = {};
};

class Generator {
  public:
    explicit Generator(uint32_t seed) : rng_(seed) {}

    uint32_t below(uint32_t n) { return n ? static_cast<uint32_t>(rng_() % n) : 0; }

    std::string text(bool allowEmpty) {
        // Markup characters, line ends, one to four UTF-8 bytes, escapes that must stay text.
        static const std::vector<std::string> pieces = [] {
            std::vector<std::string> out;
            std::istringstream in(
                "a|Z|7| |<|>|&|\"|'|\t|&amp;|]]>|x@y.org|\r\n|"
                "\xC3\xA4|\xE2\x82\xAC|\xF0\x9F\x94\x91");
            for (std::string piece; std::getline(in, piece, '|');)
                out.push_back(piece);
            return out;
        }();
        const uint32_t len = below(allowEmpty ? 40 : 39) + (allowEmpty ? 0 : 1);
        std::string s;
        for (uint32_t i = 0; i < len; ++i)
            s += pieces[below(static_cast<uint32_t>(pieces.size()))];
        return s;
    }

    std::vector<PlainKey> keys(uint32_t count, bool allowEmpty) {
        std::vector<PlainKey> out(count);
        for (PlainKey& k : out) {
            for (int f = 0; f < 7; ++f) {
                k.present[f] = below(5) != 0;
                if (k.present[f])
                    k.value[f] = text(allowEmpty);
            }
        }
        return out;
    }

  private:
    std::mt19937 rng_;
};

void fill(zlKeyFile& file, zlFileItem& list, const std::vector<PlainKey>& keys) {
    for (const PlainKey& k : keys) {
        auto* key = new zlFileItemKey(&file);
        for (int f = 0; f < 7; ++f) {
            if (k.present[f]) {
                ASSERT_TRUE(key->setField(zlTypeKeyName + f, ztest::enc(file, k.value[f].c_str())));
            }
        }
        list.appendChild(key);
    }
}

void expectPlain(const zlFileItem* list, const std::vector<PlainKey>& keys) {
    ASSERT_NE(nullptr, list);
    ASSERT_EQ(keys.size(), list->childCount());
    for (size_t i = 0; i < keys.size(); ++i) {
        const auto* key = static_cast<const zlFileItemKey*>(list->child(i));
        for (int f = 0; f < 7; ++f) {
            dm_utf8_str plain;
            ASSERT_TRUE(key->plainField(zlTypeKeyName + f, plain));
            EXPECT_EQ(keys[i].value[f], plain.str()) << "key " << i << " field " << f;
        }
        EXPECT_EQ(keys[i].value[0], key->plainName().str());
    }
}

void roundTrip(uint32_t seed, bool allowEmpty) {
    Generator gen(seed);
    const auto keys = gen.keys(gen.below(300) + 1, allowEmpty);
    const auto trashed = gen.keys(gen.below(4) ? gen.below(20) : 0, allowEmpty);

    zlKeyFile source;
    ASSERT_EQ(0, source.set_pass_phrase(ztest::kShortPass));
    auto* settings = new zlFileItemSettings(&source);
    settings->verify = ztest::enc(source, "verify");
    settings->autolock = static_cast<int32_t>(gen.below(600));
    if (!allowEmpty || gen.below(2)) {
        settings->setUserFirstName(dm_utf8_str(gen.text(false)), true);
        settings->setUserLastName(dm_utf8_str(gen.text(false)), true);
        settings->setUserEmail(dm_utf8_str(gen.text(false)), true);
    }
    source.root().appendChild(settings);
    auto* list = new zlFileItemKeys(&source);
    source.root().appendChild(list);
    fill(source, *list, keys);
    if (!trashed.empty()) {
        auto* trash = new zlFileItemTrash(&source);
        source.root().appendChild(trash);
        fill(source, *trash, trashed);
    }
    const dm_utf8_str first = source.buildFileText(dm_utf8_str("English"));

    zlKeyFile reread;
    ASSERT_EQ(0, reread.set_pass_phrase(ztest::kShortPass));
    ASSERT_EQ(1, reread.readText(dm_utf8_str(first)));
    expectPlain(reread.keys(), keys);
    if (!trashed.empty())
        expectPlain(reread.trash(), trashed);
    ASSERT_NE(nullptr, reread.settings());
    EXPECT_EQ(settings->autolock < 5 ? 0 : settings->autolock, reread.settings()->autolock);
    EXPECT_EQ(settings->userEmail(true).str(), reread.settings()->userEmail(true).str());
    const dm_utf8_str second = reread.buildFileText(dm_utf8_str("English"));

    if (!allowEmpty && settings->autolock >= 5) {
        EXPECT_EQ(first.str(), second.str());
    }
    // Empty elements took the white space before them; from now on nothing changes.
    zlKeyFile third;
    ASSERT_EQ(0, third.set_pass_phrase(ztest::kShortPass));
    ASSERT_EQ(1, third.readText(dm_utf8_str(second)));
    EXPECT_EQ(second.str(), third.buildFileText(dm_utf8_str("English")).str());
}

// Without empty values the first text is already stable; with them the plain texts survive.
TEST(zlKeyFileRoundTrip, TextIsStableAndPlainTextsSurvive) {
    for (uint32_t seed = 1; seed <= 25; ++seed) {
        SCOPED_TRACE(seed);
        roundTrip(seed < 13 ? seed : seed + 87, seed >= 13);
    }
}

}  // namespace
