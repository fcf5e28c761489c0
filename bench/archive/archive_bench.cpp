// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "subjects.h"

// Without arguments the program runs each of its benchmarks several times, each time in a process
// of its own and all of them by turns, and prints medians and ratios. With arguments it is an
// ordinary Google Benchmark program; that is also what a sample runs.

namespace {

struct Sample {
  double seconds = 0;
  double peakBytes = 0;
};

using Samples = std::map<std::pair<std::string, std::size_t>, std::vector<Sample>>;

constexpr int kRounds = 7;

const char* const kNames[] = {"archive store",          "archive load", "archive store with text",
                              "archive load with text", "cereal store", "cereal load",
                              "pugixml store",          "pugixml load", "tree build alone",
                              "libxml2 parse alone"};

Sample RunOne(const std::string& program, const std::string& name, std::size_t size) {
  const std::string command = "'" + program + "' '--benchmark_filter=^" + name + "/" +
                              std::to_string(size) + "/' --benchmark_format=csv 2>/dev/null";
  FILE* output = popen(command.c_str(), "r");
  if (output == nullptr) return {};
  // name,iterations,real_time,cpu_time,time_unit,...,"peak"
  Sample sample;
  char line[1024];
  while (std::fgets(line, sizeof line, output) != nullptr) {
    double nanoseconds = 0;
    if (std::sscanf(line, "\"%*[^\"]\",%*d,%lf", &nanoseconds) != 1) continue;
    sample.seconds = nanoseconds / 1e9;
    sample.peakBytes = std::strtod(std::strrchr(line, ',') + 1, nullptr);  // the last column
  }
  pclose(output);
  return sample;
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values.empty() ? 0 : values[values.size() / 2];
}

/// The medians of what the rounds measured at one size.
class Table {
 public:
  Table(const Samples& samples, std::size_t size) : samples_(samples), size_(size) {}

  [[nodiscard]] double Milliseconds(const std::string& name) const {
    return 1e3 * Median(Each(name, [](const Sample& sample) { return sample.seconds; }));
  }
  [[nodiscard]] double PeakBytes(const std::string& name) const {
    return Median(Each(name, [](const Sample& sample) { return sample.peakBytes; }));
  }
  /// The sum of some over the sum of others, round by round.
  [[nodiscard]] double Ratio(const std::vector<std::string>& some,
                             const std::vector<std::string>& others) const {
    std::vector<double> ratios;
    for (int round = 0; round < kRounds; ++round) {
      ratios.push_back(Sum(some, round) / Sum(others, round));
    }
    return Median(ratios);
  }

 private:
  [[nodiscard]] const std::vector<Sample>& Rounds(const std::string& name) const {
    return samples_.at({name, size_});
  }
  template <class Field>
  [[nodiscard]] std::vector<double> Each(const std::string& name, Field field) const {
    std::vector<double> values;
    for (const Sample& sample : Rounds(name)) values.push_back(field(sample));
    return values;
  }
  [[nodiscard]] double Sum(const std::vector<std::string>& names, int round) const {
    double sum = 0;
    for (const std::string& name : names) sum += Rounds(name)[round].seconds;
    return sum;
  }

  const Samples& samples_;
  std::size_t size_;
};

void PrintSize(const Table& table, std::size_t size) {
  std::printf("\n| %zu pulses | ms | to cereal | to pugixml | peak, bytes a pulse |\n", size);
  std::printf("|---|---|---|---|---|\n");
  for (const std::string name : kNames) {
    const bool isLoad = name.find("load") != std::string::npos || name.starts_with("libxml2");
    const char* way = isLoad ? "load" : "store";
    std::printf("| %s | %.3g | %.2f | %.2f | %.0f |\n", name.c_str(), table.Milliseconds(name),
                table.Ratio({name}, {std::string("cereal ") + way}),
                table.Ratio({name}, {std::string("pugixml ") + way}),
                table.PeakBytes(name) / static_cast<double>(size));
  }
}

void PrintTargets(const Samples& samples) {
  const Table large(samples, bench::kSizes[2]);
  const Table middle(samples, bench::kSizes[1]);
  const auto growth = [&](const char* name) {
    return std::log(large.Milliseconds(name) / middle.Milliseconds(name)) /
           std::log(static_cast<double>(bench::kSizes[2]) / static_cast<double>(bench::kSizes[1]));
  };
  std::printf("\n| At %zu pulses | measured | at most |\n|---|---|---|\n", bench::kSizes[2]);
  const auto row = [](const char* what, double measured, double most) {
    std::printf("| %s | %.3g | %g |\n", what, measured, most);
  };
  row("object to document, to cereal's store", large.Ratio({"archive store"}, {"cereal store"}),
      0.30);
  row("document to object, to cereal's load", large.Ratio({"archive load"}, {"cereal load"}), 0.20);
  row("store and load with text, to cereal's",
      large.Ratio({"archive store with text", "archive load with text"},
                  {"cereal store", "cereal load"}),
      0.70);
  row("growth of a store, exponent from 10,000 pulses", growth("archive store"), 1.15);
  row("growth of a load, exponent from 10,000 pulses", growth("archive load"), 1.15);
  row("peak memory of a store above the data, MiB",
      large.PeakBytes("archive store") / (1024 * 1024), 280);
}

Samples MeasureAll(const std::string& program) {
  Samples samples;
  for (int round = 1; round <= kRounds; ++round) {
    std::fprintf(stderr, "round %d of %d\n", round, kRounds);
    for (const std::size_t size : bench::kSizes) {
      for (const char* name : kNames) samples[{name, size}].push_back(RunOne(program, name, size));
    }
  }
  return samples;
}

}  // namespace

int main(int argc, char** argv) {
  bench::RegisterArchive();
  bench::RegisterCereal();
  bench::RegisterPugixml();
  bench::RegisterFloors();
  if (argc > 1) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
  }
  const Samples samples = MeasureAll("/proc/" + std::to_string(getpid()) + "/exe");
  for (const std::size_t size : bench::kSizes) PrintSize(Table(samples, size), size);
  PrintTargets(samples);
  return 0;
}
