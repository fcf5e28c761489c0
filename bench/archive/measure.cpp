// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "measure.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace bench {

namespace {

/// A line of /proc/self/status in bytes.
std::size_t Status(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    std::size_t kilobytes = 0;
    if (word == key && status >> kilobytes) return kilobytes * 1024;
  }
  return 0;
}

}  // namespace

PeakMemory::PeakMemory() {
  std::ofstream("/proc/self/clear_refs") << "5";  // the peak starts again from here
  before_ = Status("VmRSS:");
}

std::size_t PeakMemory::Rise() const {
  const std::size_t peak = Status("VmHWM:");
  return peak > before_ ? peak - before_ : 0;
}

double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::string FromChild(const std::function<std::string()>& make) {
  int ends[2];
  if (pipe(ends) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) {
    close(ends[0]);
    const std::string made = make();
    for (std::size_t done = 0; done < made.size();) {
      const ssize_t count = write(ends[1], made.data() + done, made.size() - done);
      if (count <= 0) _exit(1);
      done += static_cast<std::size_t>(count);
    }
    _exit(0);
  }
  close(ends[1]);
  std::string made;
  std::array<char, 1 << 16> part;
  for (ssize_t count; (count = read(ends[0], part.data(), part.size())) > 0;) {
    made.append(part.data(), static_cast<std::size_t>(count));
  }
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (status != 0) throw std::runtime_error("the child process failed");
  return made;
}

}  // namespace bench
