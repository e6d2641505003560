#include <gtest/gtest.h>

#include <string>

#include "code_text.h"
#include "crypto/aes256.h"

namespace {

using zelto_test::Bytes;
using zelto_test::from_hex;

// FIPS-197 appendix C.3, then the four ECB-AES256 blocks of NIST SP 800-38A F.1.5.
const struct {
    const char* key;
    const char* plain;
    const char* cipher;
} kVectors[] = {
    {"000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f",
     "00112233445566778899aabbccddeeff", "8ea2b7ca516745bfeafc49904b496089"},
    {"603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4",
     "6bc1bee22e409f96e93d7e117393172a", "f3eed1bdb5d2a03c064b5a7e3db181f8"},
    {"603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4",
     "ae2d8a571e03ac9c9eb76fac45af8e51", "591ccb10d410ed26dc5ba74a31362870"},
    {"603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4",
     "30c81c46a35ce411e5fbc1191a0a52ef", "b6ed21b99ca6f4f9f153e7b1beafed1d"},
    {"603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4",
     "f69f2445df4f9b17ad2b417be66c3710", "23304b7a39f9f3ff067d8d8f9e24ecc7"},
};

// A fresh object per vector, then one object rekeyed for every vector: the latest key counts
// in both directions, whichever comes first.
TEST(Aes256, KnownAnswersBothDirectionsAndAfterRekeying) {
    Zelto::zlAes256 reused;
    for (int round = 0; round < 3; ++round) {
        for (const auto& v : kVectors) {
            SCOPED_TRACE(std::string(v.plain) + " round " + std::to_string(round));
            Zelto::zlAes256 fresh;
            Zelto::zlAes256& aes = round == 0 ? fresh : reused;
            ASSERT_TRUE(aes.set_key(from_hex(v.key).data()));
            const bool decrypt_first = round == 2;
            Bytes block = from_hex(decrypt_first ? v.cipher : v.plain);
            for (bool decrypting : {decrypt_first, !decrypt_first}) {
                ASSERT_TRUE(decrypting ? aes.decrypt_block(block.data())
                                       : aes.encrypt_block(block.data()));
                EXPECT_EQ(from_hex(decrypting ? v.plain : v.cipher), block);
            }
        }
    }
    Zelto::zlAes256 keyless;
    Bytes block = from_hex(kVectors[0].plain);
    EXPECT_FALSE(keyless.encrypt_block(block.data()));
    EXPECT_FALSE(keyless.decrypt_block(block.data()));
    EXPECT_EQ(from_hex(kVectors[0].plain), block);
}

}  // namespace
