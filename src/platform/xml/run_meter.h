// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

namespace platform::xml {

/// Bounds what libxml2 and libxslt use on this thread while it lives. One at a time a thread.
class RunMeter {
 public:
  /// Calls `stop` once, with "memory" or "time", when this thread holds more bytes than that or
  /// has worked for longer: from inside an allocation, so it may set flags and little else. Past
  /// twice the bytes allocations fail.
  RunMeter(std::size_t bytes, std::chrono::nanoseconds work,
           std::function<void(const char* what)> stop);
  RunMeter(const RunMeter&) = delete;
  RunMeter& operator=(const RunMeter&) = delete;
  ~RunMeter();

  /// Puts the counting allocator in place of libxml2's own. It may free what that one allocated.
  static void Install();

 private:
  static void* Allocate(std::size_t size);
  static void* Reallocate(void* block, std::size_t size);
  static void Free(void* block);
  static char* Duplicate(const char* text);

  /// Whether `size` bytes more may be had.
  bool Admit(std::size_t size);
  void Stop(const char* what);
  void CheckTime();

  long long limit_;
  long long held_ = 0;
  std::size_t ticks_ = 0;
  std::chrono::nanoseconds end_;
  std::function<void(const char*)> stop_;
};

}  // namespace platform::xml
