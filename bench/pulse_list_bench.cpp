// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <benchmark/benchmark.h>

#include <cmath>
#include <ctime>
#include <map>
#include <vector>

#include "pages/lamp_waveform/rules/lamp_current.h"
#include "pages/lamp_waveform/rules/pulse_list.h"

// Bringing a waveform's pulses to a changed wheel, and placing them for the drawing. The argument
// is the number of segments of the timeline; every second one has a stored pulse, in another order.

namespace {

using lamp_waveform::SegmentKey;
using SequenceTiming::SeqTimeline;

SeqTimeline Timeline(int segments) {
  SeqTimeline timeline(0, segments * 10.0);
  for (int i = 0; i < segments; ++i) {
    timeline.Segments().push_back(
        {std::string(1, "RGBWCMY"[i % 7]), static_cast<std::uint16_t>(i / 7), 0, i * 10.0, 10.0});
  }
  return timeline;
}

std::vector<PulseInfo> Stored(const SeqTimeline& timeline) {
  std::vector<PulseInfo> pulses;
  for (std::size_t i = timeline.Segments().size(); i-- > 0;) {
    if (i % 2 == 0) pulses.push_back({true, SegmentKey(timeline.Segments()[i]), 1.5, 1, 1, 10});
  }
  return pulses;
}

/// The processor's time for each length.
std::map<double, double>& Measured() {
  static std::map<double, double> measured;
  return measured;
}

/// The slope of the straight line through the logarithms: the exponent of the growth.
double FittedExponent() {
  double n = 0, x = 0, y = 0, xx = 0, xy = 0;
  for (const auto& [length, time] : Measured()) {
    n += 1;
    x += std::log(length);
    y += std::log(time);
    xx += std::log(length) * std::log(length);
    xy += std::log(length) * std::log(time);
  }
  return (n * xy - x * y) / (n * xx - x * x);
}

void Derive(benchmark::State& state) {
  const SeqTimeline timeline = Timeline(static_cast<int>(state.range(0)));
  const std::vector<PulseInfo> stored = Stored(timeline);
  const std::clock_t start = std::clock();
  for (auto _ : state) {
    benchmark::DoNotOptimize(lamp_waveform::DerivePulses(stored, timeline));
  }
  const double clocks = static_cast<double>(std::clock() - start);
  // Measured more than once for a length, the longest and last counts.
  Measured()[static_cast<double>(state.range(0))] =
      clocks / static_cast<double>(state.iterations());
  if (Measured().size() > 2) state.counters["exponent"] = FittedExponent();
}
BENCHMARK(Derive)->RangeMultiplier(2)->Range(512, 8192)->Unit(benchmark::kMicrosecond);

void Draw(benchmark::State& state) {
  const SeqTimeline timeline = Timeline(static_cast<int>(state.range(0)));
  const std::vector<PulseInfo> pulses = Stored(timeline);
  PCGroup group("2D");
  group.Rates = {60};
  group.BitwSelectRateFlags = {true};
  for (auto _ : state) {
    const auto drawn = lamp_waveform::DrawPulses(pulses, timeline, group);
    benchmark::DoNotOptimize(lamp_waveform::LampCurrent(drawn, timeline));
  }
}
BENCHMARK(Draw)->Arg(200)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
