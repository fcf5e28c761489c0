// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>

#include "waveforms.h"

namespace bench {

/// How far the process's peak memory rises above what it holds when this is made.
class PeakMemory {
 public:
  PeakMemory();
  /// In bytes; 0 where the kernel does not tell.
  [[nodiscard]] std::size_t Rise() const;

 private:
  std::size_t before_;
};

/// What `make` returns, made in a child process: this one's heap stays as it was.
[[nodiscard]] std::string FromChild(const std::function<std::string()>& make);

/// What this process has used of the processor, the kernel's part included. On a machine that
/// others use too it varies far less than the wall clock.
[[nodiscard]] double ProcessorSeconds();

/// Times `work` once a pass, alone: what it returns is kept until the clock is read. The state's
/// counter "peak" is how far memory rose meanwhile.
template <class Work>
void Measure(benchmark::State& state, Work work) {
  for (auto pass : state) {
    (void)pass;
    const PeakMemory peak;
    const double start = ProcessorSeconds();
    auto result = work();
    state.SetIterationTime(ProcessorSeconds() - start);
    state.counters["peak"] = static_cast<double>(peak.Rise());
    benchmark::DoNotOptimize(result);
  }
}

/// Registers a benchmark at each size; one pass a process, since the heap that an earlier pass
/// leaves behind changes what the next one costs.
template <class Run>
void Register(const std::string& name, Run run) {
  for (const std::size_t size : kSizes) {
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->Arg(static_cast<std::int64_t>(size))
        ->Iterations(1)
        ->UseManualTime();
  }
}

}  // namespace bench
