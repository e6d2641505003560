// The cipher's cost per value against the platform AES it is built on.
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "core/dm_utf8_str.h"
#include "crypto/aes256.h"
#include "crypto/zlEncrypt.h"

namespace {

const char kPassPhrase[] = "8 bytes!";

dunmar::dm_utf8_str plain_of(int64_t size) {
    std::string bytes;
    for (int64_t i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>('a' + i % 26));
    }
    return dunmar::dm_utf8_str(bytes);
}

void BM_Encrypt(benchmark::State& state) {
    Zelto::zlEncrypt cipher;
    cipher.set_pass_phrase(kPassPhrase);
    const dunmar::dm_utf8_str plain = plain_of(state.range(0));
    dunmar::dm_utf8_str text;
    for (auto _ : state) {
        if (cipher.encrypt(plain, text) != 0) {
            state.SkipWithError("encrypt failed");
            break;
        }
        benchmark::DoNotOptimize(text.c_str());
    }
}

void BM_Decrypt(benchmark::State& state) {
    Zelto::zlEncrypt cipher;
    cipher.set_pass_phrase(kPassPhrase);
    const dunmar::dm_utf8_str plain = plain_of(state.range(0));
    dunmar::dm_utf8_str text;
    cipher.encrypt(plain, text);
    dunmar::dm_utf8_str back;
    for (auto _ : state) {
        if (cipher.decrypt(text, back) != 0) {
            state.SkipWithError("decrypt failed");
            break;
        }
        benchmark::DoNotOptimize(back.c_str());
    }
    if (!back.equals(plain)) {
        state.SkipWithError("round trip differs");
    }
}

// Baselines: what one value costs at the least on the backend, a fresh AES object with its key
// set up and the value's number of block operations, with no salt, padding or text coding.
void aes_baseline(benchmark::State& state, bool encrypt) {
    uint8_t key[32];
    for (int i = 0; i < 32; ++i) {
        key[i] = static_cast<uint8_t>(i * 7 + 1);
    }
    uint8_t block[16] = {};
    const int64_t blocks = state.range(0);
    for (auto _ : state) {
        Zelto::zlAes256 aes;
        bool ok = aes.set_key(key);
        for (int64_t b = 0; ok && b < blocks; ++b) {
            ok = encrypt ? aes.encrypt_block(block) : aes.decrypt_block(block);
        }
        if (!ok) {
            state.SkipWithError("AES failed");
            break;
        }
        benchmark::DoNotOptimize(block);
    }
}

void BM_AesBaselineEncrypt(benchmark::State& state) {
    aes_baseline(state, true);
}
void BM_AesBaselineDecrypt(benchmark::State& state) {
    aes_baseline(state, false);
}

// The stricter baseline: one long-lived AES object, only key set-up and blocks per value.
void aes_rekey(benchmark::State& state, bool encrypt) {
    uint8_t key[32] = {};
    uint8_t block[16] = {};
    const int64_t blocks = state.range(0);
    Zelto::zlAes256 aes;
    for (auto _ : state) {
        key[0]++;
        bool ok = aes.set_key(key);
        for (int64_t b = 0; ok && b < blocks; ++b) {
            ok = encrypt ? aes.encrypt_block(block) : aes.decrypt_block(block);
        }
        if (!ok) {
            state.SkipWithError("AES failed");
            break;
        }
        benchmark::DoNotOptimize(block);
    }
}

void BM_AesRekeyEncrypt(benchmark::State& state) {
    aes_rekey(state, true);
}
void BM_AesRekeyDecrypt(benchmark::State& state) {
    aes_rekey(state, false);
}

}  // namespace

BENCHMARK(BM_Encrypt)->Arg(16)->Arg(64)->Arg(1024)->Unit(benchmark::kNanosecond);
BENCHMARK(BM_Decrypt)->Arg(16)->Arg(64)->Arg(1024)->Unit(benchmark::kNanosecond);
BENCHMARK(BM_AesBaselineEncrypt)->Arg(1)->Arg(4)->Arg(64)->ArgName("blocks");
BENCHMARK(BM_AesBaselineDecrypt)->Arg(1)->Arg(4)->Arg(64)->ArgName("blocks");
BENCHMARK(BM_AesRekeyEncrypt)->Arg(1)->Arg(4)->Arg(64)->ArgName("blocks");
BENCHMARK(BM_AesRekeyDecrypt)->Arg(1)->Arg(4)->Arg(64)->ArgName("blocks");
