// Runs the benchmarks, then prints each cipher figure against its AES baseline of the same run,
// since absolute times on shared machines mean little.
#include <iostream>
#include <vector>

#include <benchmark/benchmark.h>

#include "ratio_reporter.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    zelto_bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    // 16, 64 and 1024 bytes are 1, 4 and 64 blocks.
    const std::vector<zelto_bench::Ratio> ratios = {
        {"BM_Encrypt/16", "BM_AesBaselineEncrypt/blocks:1"},
        {"BM_Decrypt/16", "BM_AesBaselineDecrypt/blocks:1"},
        {"BM_Encrypt/64", "BM_AesBaselineEncrypt/blocks:4"},
        {"BM_Decrypt/64", "BM_AesBaselineDecrypt/blocks:4"},
        {"BM_Encrypt/1024", "BM_AesBaselineEncrypt/blocks:64"},
        {"BM_Decrypt/1024", "BM_AesBaselineDecrypt/blocks:64"},
        {"BM_Encrypt/16", "BM_AesRekeyEncrypt/blocks:1"},
        {"BM_Decrypt/16", "BM_AesRekeyDecrypt/blocks:1"},
    };
    reporter.print_ratios(ratios, std::cout);
    benchmark::Shutdown();
    return 0;
}
