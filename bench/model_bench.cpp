// The key file reader and writer on a file of 10,000 keys with seven fields each, against a
// bare walk of the XML parser over the same text.
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "alloc_counter.h"
#include "model/IStringReadCallBack.h"
#include "model/zlKeyFile.h"
#include "ratio_reporter.h"

namespace {

using dunmar::dm_utf8_str;
using Zelto::zlKeyFile;

constexpr int kKeys = 10000;
const char kPass[] = "8 bytes!";

// The text of a file of kKeys keys, every field filled, built once.
const std::string& file_text() {
    static const std::string text = [] {
        zlKeyFile file;
        file.set_pass_phrase(kPass);
        auto* settings = new Zelto::zlFileItemSettings(&file);
        file.encrypt(dm_utf8_str("verify"), settings->verify);
        file.root().appendChild(settings);
        auto* keys = new Zelto::zlFileItemKeys(&file);
        file.root().appendChild(keys);
        for (int i = 0; i < kKeys; ++i) {
            auto* key = new Zelto::zlFileItemKey(&file);
            const std::string n = std::to_string(i);
            const std::string plain[7] = {"Account number " + n,
                                          "work, home",
                                          "user." + n,
                                          "pw-" + n + "-Xy7#kq9Lm2",
                                          "user." + n + "@example.org",
                                          "https://login.example.org/" + n,
                                          "Note for key " + n + ", a little longer than the rest"};
            for (int f = 0; f < 7; ++f) {
                dm_utf8_str enc;
                file.encrypt(dm_utf8_str(plain[f]), enc);
                key->setField(Zelto::zlTypeKeyName + f, enc);
            }
            keys->appendChild(key);
        }
        return file.buildFileText(dm_utf8_str("English")).str();
    }();
    return text;
}

// The parser alone over the same text: the text handed over and every node's name or
// text fetched, as the reader does. Setting up and tearing down are not timed.
void BM_IrrXmlWalk(benchmark::State& state) {
    const std::string& text = file_text();
    for (auto _ : state) {
        state.PauseTiming();
        auto callback = std::make_unique<Zelto::IStringReadCallBack>(std::string(text));
        state.ResumeTiming();
        std::unique_ptr<irr::io::IrrXMLReader> parser(
            irr::io::createIrrXMLReader(callback.get(), false));
        callback->release();
        size_t bytes = 0;
        while (parser->read()) {
            if (parser->getNodeType() == irr::io::EXN_TEXT) {
                bytes += std::strlen(parser->getNodeData());
            } else {
                bytes += std::strlen(parser->getNodeName());
            }
        }
        benchmark::DoNotOptimize(bytes);
        state.PauseTiming();
        parser.reset();
        callback.reset();
        state.ResumeTiming();
    }
    state.counters["file_MB"] = static_cast<double>(text.size()) / 1e6;
}

// Reading into the tree (names deciphered on the way); the tree is built, not torn down,
// inside the timing. Peak heap is that of the read, the text handed in included.
void BM_ReadKeyFile(benchmark::State& state) {
    const std::string& text = file_text();
    size_t peak = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto file = std::make_unique<zlKeyFile>();
        file->set_pass_phrase(kPass);
        dm_utf8_str copy(text);
        const size_t before = zelto_bench::heap_in_use() - text.size();
        zelto_bench::reset_heap_peak();
        state.ResumeTiming();
        const int result = file->readText(std::move(copy));
        state.PauseTiming();
        peak = zelto_bench::heap_peak() - before;
        const bool complete = result == 1 && file->keys() && file->keys()->childCount() == kKeys;
        file.reset();
        state.ResumeTiming();
        if (!complete) {
            state.SkipWithError("read failed");
            break;
        }
    }
    state.counters["peak_over_file"] = static_cast<double>(peak) / text.size();
}

void BM_BuildFileText(benchmark::State& state) {
    zlKeyFile file;
    file.set_pass_phrase(kPass);
    file.readText(dm_utf8_str(file_text()));
    for (auto _ : state) {
        const dm_utf8_str text = file.buildFileText(dm_utf8_str("English"));
        benchmark::DoNotOptimize(text.c_str());
    }
}

BENCHMARK(BM_IrrXmlWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadKeyFile)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BuildFileText)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    file_text();  // built before any timing
    zelto_bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print_ratios({{"BM_ReadKeyFile", "BM_IrrXmlWalk"}}, std::cout);
    benchmark::Shutdown();
    return 0;
}
