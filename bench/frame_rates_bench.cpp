// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "pages/frame_rates/rules/display.h"
#include "pages/frame_rates/rules/explanation.h"
#include "pages/frame_rates/rules/rate_table.h"

// From the selected sequence ranges to the shown rows. The arguments are the number of ranges and
// of multipliers each; the last one is the most that a project can ask of six ranges.

namespace {

using frame_rates::SequenceRange;

enum class Shape { kNeighbours, kNested };

std::vector<SequenceRange> Ranges(Shape shape, int count, int multipliers) {
  std::vector<SequenceRange> ranges;
  for (int index = 0; index < count; ++index) {
    SequenceRange range;
    range.label = std::to_string(index);
    range.index = index;
    // Neighbours meet; nested ones all overlap, so that most candidates are trimmed or removed.
    range.minRateHz = shape == Shape::kNeighbours ? 47.5 + 15.7 * index : 40.0 + index;
    range.maxRateHz = shape == Shape::kNeighbours ? 63.0 + 16.1 * index : 140.0 - 1.3 * index;
    range.maxMultiplier = multipliers;
    ranges.push_back(range);
  }
  return ranges;
}

void Compute(benchmark::State& state, Shape shape) {
  const auto ranges =
      Ranges(shape, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  const auto candidates = static_cast<std::int64_t>(frame_rates::MakeCandidates(ranges).size());
  for (auto _ : state) {
    const frame_rates::RateTable table = frame_rates::ComputeRateTable(ranges);
    benchmark::DoNotOptimize(frame_rates::MergeForDisplay(frame_rates::ToFreqBins(table)));
  }
  state.counters["candidates"] = static_cast<double>(candidates);
  state.SetComplexityN(candidates);
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"ranges", "multipliers"})
      ->Args({2, 5})
      ->Args({4, 25})
      ->Args({6, 250})
      ->Args({6, 255})
      ->Complexity(benchmark::oNLogN)
      ->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(Compute, neighbours, Shape::kNeighbours)->Apply(Sizes);
BENCHMARK_CAPTURE(Compute, nested, Shape::kNested)->Apply(Sizes);

void ExplainRate(benchmark::State& state) {
  const auto table = frame_rates::ComputeRateTable(Ranges(Shape::kNested, 6, 255));
  for (auto _ : state) {
    benchmark::DoNotOptimize(frame_rates::Explain(table, 47.95));
  }
}
BENCHMARK(ExplainRate)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
