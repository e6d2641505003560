#include "ratio_reporter.h"

#include <cstdio>

namespace zelto_bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.error_occurred || run.iterations == 0) {
            continue;
        }
        const double ns =
            run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const std::string name = run.run_name.str();
        if (run.run_type == Run::RT_Iteration) {
            auto it = best_ns_.find(name);
            if (it == best_ns_.end() || ns < it->second) {
                best_ns_[name] = ns;
            }
        } else if (run.aggregate_name == "median") {
            median_ns_[name] = ns;  // all that is reported with --benchmark_report_aggregates_only
        }
    }
}

double RatioReporter::time_of(const std::string& name) const {
    auto best = best_ns_.find(name);
    if (best != best_ns_.end()) {
        return best->second;
    }
    auto median = median_ns_.find(name);
    return median != median_ns_.end() ? median->second : 0.0;
}

void RatioReporter::print_ratios(const std::vector<Ratio>& ratios, std::ostream& out) const {
    out << "\nRatios (CPU time per iteration, fastest repetition or else median; measured / "
           "baseline):\n";
    for (const Ratio& ratio : ratios) {
        const double measured = time_of(ratio.measured);
        const double baseline = time_of(ratio.baseline);
        if (measured <= 0 || baseline <= 0) {
            continue;
        }
        char line[256];
        std::snprintf(line, sizeof line, "  %-16s / %-32s = %5.2f  (%.0f ns / %.0f ns)\n",
                      ratio.measured.c_str(), ratio.baseline.c_str(), measured / baseline, measured,
                      baseline);
        out << line;
    }
}

}  // namespace zelto_bench
