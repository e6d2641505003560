#include <gtest/gtest.h>

#include <cstdint>

#include "crypto/code_table.h"

namespace {

// Any reordering breaks every stored file; the full table is pinned by the cipher fixtures,
// this catches an edit before they run.
TEST(CodeTable, OrderIsFrozen) {
    EXPECT_STREQ("6E", Zelto::kCodeTable[0]);
    EXPECT_STREQ("A6", Zelto::kCodeTable[1]);
    EXPECT_STREQ("51", Zelto::kCodeTable[255]);
    uint64_t weighted = 0;
    for (unsigned i = 0; i < Zelto::kCodeTableSize; ++i) {
        weighted = weighted * 31 + static_cast<unsigned char>(Zelto::kCodeTable[i][0]) * 256 +
                   static_cast<unsigned char>(Zelto::kCodeTable[i][1]);
    }
    EXPECT_EQ(0xf79cf69371a079e6ull, weighted);
}

// The index must answer exactly what a scan of the table from entry 0 answers, for every pair
// of characters, including lower case and characters outside the hexadecimal digits.
TEST(CodeTable, IndexAgreesWithATableScanForEveryPair) {
    const Zelto::zlCodeIndex& index = Zelto::code_index();
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char a = static_cast<char>(first);
            const char b = static_cast<char>(second);
            int scanned = -1;
            for (unsigned i = 0; i < Zelto::kCodeTableSize && scanned < 0; ++i) {
                if (Zelto::kCodeTable[i][0] == a && Zelto::kCodeTable[i][1] == b) {
                    scanned = static_cast<int>(i);
                }
            }
            ASSERT_EQ(scanned, index.find(a, b)) << "pair " << first << "," << second;
        }
    }
}

}  // namespace
