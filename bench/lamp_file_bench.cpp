// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <malloc.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "pages/lamp_optics/rules/spectrum_files.h"

// Reading a lamp file of 1,000,000 data lines, beside the least that any reader must do: read the
// file's bytes and convert its numbers. Both in turn in one run; the best of some rounds counts.
// Exit status 1 when the reader's rate falls below a third of the bare loop's, or when it needs
// more than three times the memory that its points take.

namespace {

std::size_t g_allocated = 0;
std::size_t g_peak = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  g_allocated += malloc_usable_size(memory);
  g_peak = std::max(g_peak, g_allocated);
  return memory;
}
void operator delete(void* memory) noexcept {
  g_allocated -= malloc_usable_size(memory);
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace {

namespace fs = std::filesystem;

constexpr int kLines = 1'000'000;
constexpr int kRounds = 7;

void WriteLampFile(const fs::path& file) {
  std::ofstream out(file, std::ios::binary);
  out << "LAMP_NAME Bench\nRESPONSE_DATA_START\n";
  unsigned value = 1;
  for (int nm = 1; nm <= kLines; ++nm) {
    value = value * 1664525 + 1013904223;
    out << nm << " 0." << value % 1000000 << '\n';
  }
  out << "RESPONSE_DATA_END\n";
}

/// The sum keeps the loop from being optimized away.
double BareLoop(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::string text(fs::file_size(file), '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  double sum = 0;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    int nm = 0;
    double value = 0;
    at = std::from_chars(at, end, nm).ptr;
    if (at != end && *at == ' ') at = std::from_chars(at + 1, end, value).ptr;
    sum += nm * value;
    at = std::find(at, end, '\n');
    if (at != end) ++at;
  }
  return sum;
}

template <class Work>
double Milliseconds(Work work) {
  // Processor time: what other programs do meanwhile must not decide.
  const std::clock_t start = std::clock();
  work();
  return 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

int main() {
  const fs::path file = fs::temp_directory_path() / "lamp_file_bench.lmp";
  WriteLampFile(file);
  double bare = 1e300;
  double reader = 1e300;
  double sum = 0;
  std::size_t points = 0;
  std::size_t memory = 0;
  for (int round = 0; round < kRounds; ++round) {
    bare = std::min(bare, Milliseconds([&] { sum += BareLoop(file); }));
    const std::size_t before = g_peak = g_allocated;
    reader = std::min(reader, Milliseconds([&] {
                        const auto lamp = lamp_optics::ReadLampFile(file);
                        points = lamp.record.Response.size();
                        memory = g_peak - before;
                      }));
  }
  fs::remove(file);
  const double pointBytes = static_cast<double>(points * sizeof(SpectralPoint));
  const double rateRatio = bare / reader;
  const double memoryRatio = static_cast<double>(memory) / pointBytes;
  std::printf("bare read and from_chars  %8.1f ms (sum %g)\n", bare, sum);
  std::printf("lamp file reader          %8.1f ms, %zu points\n", reader, points);
  std::printf("rate, reader to bare      %8.2f (at least 0.33)\n", rateRatio);
  std::printf("peak memory to points     %8.2f (at most 3)\n", memoryRatio);
  return points == kLines && rateRatio >= 1.0 / 3 && memoryRatio <= 3 ? 0 : 1;
}
