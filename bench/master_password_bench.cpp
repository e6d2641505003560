// Changing the master password of files with 1,000 and 10,000 keys: everything is
// deciphered, re-enciphered, backed up, written and read again, so the cost must grow
// in proportion to the file.
#include <filesystem>
#include <iostream>
#include <string>

#include <benchmark/benchmark.h>

#include "app/zlKeyFileStore.h"
#include "app/zlMasterPassword.h"
#include "model/zlVerify.h"
#include "ratio_reporter.h"

namespace {

using dunmar::dm_utf8_str;
using namespace Zelto;

dunmar::dm_string widePath(const std::filesystem::path& p) {
#ifdef _WIN32
    return dunmar::dm_string(p.wstring());
#else
    return dunmar::dm_string(p.u16string());
#endif
}

const char* kPasswords[2] = {"first password", "second password"};

void fill(zlKeyFile& file, int count) {
    auto* settings = new zlFileItemSettings(&file);
    settings->verify = zlMakeVerifyValue(dm_utf8_str(kPasswords[0]));
    file.root().appendChild(settings);
    auto* keys = new zlFileItemKeys(&file);
    file.root().appendChild(keys);
    for (int i = 0; i < count; ++i) {
        auto* key = new zlFileItemKey(&file);
        const std::string n = std::to_string(i);
        const std::string plain[7] = {"Account " + n,
                                      "work, home",
                                      "user." + n,
                                      "pw-" + n + "-Xy7#kq9",
                                      "u" + n + "@example.org",
                                      "https://example.org/" + n,
                                      "note " + n};
        for (int f = 0; f < 7; ++f) {
            dm_utf8_str enc;
            file.encrypt(dm_utf8_str(plain[f]), enc);
            key->setField(zlTypeKeyName + f, enc);
        }
        keys->appendChild(key);
    }
}

void BM_ChangeMasterPassword(benchmark::State& state) {
    const auto dir =
        std::filesystem::temp_directory_path() / ("zelto-bench-" + std::to_string(state.range(0)));
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    const dunmar::dm_string folder = widePath(dir / "");

    zlKeyFile file;
    file.set_pass_phrase(kPasswords[0]);
    file.setPath(widePath(dir / "Zelto.xml"));
    fill(file, static_cast<int>(state.range(0)));
    zlSaveKeyFile(file);

    int round = 0;
    for (auto _ : state) {
        // A new time stamp each round, so that every backup gets a name of its own.
        zlLocalTime t;
        t.year = 2026;
        t.second = round % 60;
        t.minute = round / 60 % 60;
        t.hour = round / 3600;
        ++round;
        const char* next = kPasswords[round % 2];
        const int result =
            zlChangeMasterPassword(file, dm_utf8_str(next), zlMakeVerifyValue(dm_utf8_str(next)),
                                   zlFileSet::in(folder, t));
        if (result != 1) {
            state.SkipWithError("change failed");
            break;
        }
    }
    std::filesystem::remove_all(dir);
}

BENCHMARK(BM_ChangeMasterPassword)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    zelto_bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print_ratios({{"BM_ChangeMasterPassword/10000", "BM_ChangeMasterPassword/1000"}},
                          std::cout);
    benchmark::Shutdown();
    return 0;
}
