#pragma once
// The table at the end of a benchmark run: each operation beside its plain reference, measured in
// the same run, with the ratio between them.
//
// Runs are filed under their function name and arguments only ("BM_FilledCircle/7"), without the
// suffixes the library adds for a minimum time, a fixed count of iterations or the wall clock, so
// that a row finds its runs however they are configured. Times are kept in nanoseconds per
// iteration, whatever unit the run reports in.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace qp::bench {

enum class Clock { Cpu, Wall };

class Collector : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      if (r.error_occurred || r.run_type != Run::RT_Iteration) continue;
      std::string name = r.run_name.function_name;
      if (!r.run_name.args.empty()) name += "/" + r.run_name.args;
      const double toNs = 1e9 / benchmark::GetTimeUnitMultiplier(r.time_unit);
      cpu_[name] = r.GetAdjustedCPUTime() * toNs;
      wall_[name] = r.GetAdjustedRealTime() * toNs;
    }
    ConsoleReporter::ReportRuns(runs);
  }
  // Nanoseconds per iteration of the run, or -1 when it did not run or failed.
  double ns(const std::string& name, Clock clock = Clock::Cpu) const {
    const auto& times = clock == Clock::Cpu ? cpu_ : wall_;
    const auto it = times.find(name);
    return it == times.end() ? -1.0 : it->second;
  }

 private:
  std::map<std::string, double> cpu_, wall_;
};

// One row: an operation, its reference, and the ratio the operation should stay within (0: none).
struct Row {
  const char* op;
  const char* ref;
  double limit = 0;
  Clock clock = Clock::Cpu;
};

inline void printTime(double ns) {
  if (ns >= 1e6) std::printf(" %11.2f ms", ns / 1e6);
  else std::printf(" %11.0f ns", ns);
}

// Prints the rows whose runs were measured; a row whose runs are missing says so.
inline void printSummary(const Collector& c, std::initializer_list<Row> rows) {
  std::printf("\n%-34s %14s   %-30s %14s %8s %7s\n", "operation", "time", "reference", "time", "ratio", "limit");
  for (const Row& r : rows) {
    const double a = c.ns(r.op, r.clock), b = c.ns(r.ref, r.clock);
    if (a < 0 || b <= 0) {
      std::printf("%-34s %14s   %-30s (not measured in this run)\n", r.op, "-", r.ref);
      continue;
    }
    std::printf("%-34s", r.op);
    printTime(a);
    std::printf("   %-30s", r.ref);
    printTime(b);
    std::printf(" %8.2f", a / b);
    if (r.limit > 0) std::printf(" %7.2f%s", r.limit, a / b > r.limit ? "  OVER" : "");
    std::printf("\n");
  }
}

}  // namespace qp::bench
