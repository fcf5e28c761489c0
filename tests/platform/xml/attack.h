// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace test {

inline std::string Repeat(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// Text made by `make(i)` for i from 1 on.
template <class Make>
std::string Numbered(int times, Make make) {
  std::string all;
  for (int i = 1; i <= times; ++i) all += make(i);
  return all;
}

/// Processor time since it was made, in seconds: tests run side by side on a busy machine.
class Stopwatch {
 public:
  [[nodiscard]] double Seconds() const {
    return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC;
  }

 private:
  std::clock_t start_ = std::clock();
};

}  // namespace test
