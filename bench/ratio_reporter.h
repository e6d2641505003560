#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace zelto_bench {

// One figure of interest: a benchmark's time divided by its baseline's time from the same run.
struct Ratio {
    std::string measured;
    std::string baseline;
};

// Console output as usual, and remembers each benchmark's CPU time per iteration (the fastest
// repetition, which noise on a shared machine can only slow down) to print ratios at the end.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;

    // A ratio whose benchmarks did not run (filtered out) is left out.
    void print_ratios(const std::vector<Ratio>& ratios, std::ostream& out) const;

  private:
    double time_of(const std::string& name) const;  // 0 when the benchmark did not run

    std::map<std::string, double> best_ns_;
    std::map<std::string, double> median_ns_;
};

}  // namespace zelto_bench
