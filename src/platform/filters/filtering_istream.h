// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <istream>
#include <streambuf>
#include <utility>
#include <vector>

namespace platform::filters {

/// Reads through an extractor, a buffer at a time. `Extractor::Read(char* to, std::size_t size)`
/// gives at least one byte, or 0 at the end, and throws FilterError.
template <class Extractor>
class FilteringStreambuf : public std::streambuf {
 public:
  template <class... Arguments>
  FilteringStreambuf(std::istream& source, std::size_t bufferSize, Arguments&&... arguments)
      : extractor_(source, std::forward<Arguments>(arguments)...), buffer_(bufferSize) {}

 protected:
  int_type underflow() override {
    const std::size_t got = extractor_.Read(buffer_.data(), buffer_.size());
    setg(buffer_.data(), buffer_.data(), buffer_.data() + got);
    return got == 0 ? traits_type::eof() : traits_type::to_int_type(buffer_[0]);
  }

 private:
  Extractor extractor_;
  std::vector<char> buffer_;
};

/// A stream of what an extractor makes of a source, which must outlive it. It holds one buffer and
/// what the extractor needs, however long the content. Reading throws the extractor's FilterError;
/// only what was read to its end without one is whole.
template <class Extractor>
class FilteringIstream : public std::istream {
 public:
  /// The buffer has at least one byte. What follows it is the extractor's.
  template <class... Arguments>
  FilteringIstream(std::istream& source, std::size_t bufferSize, Arguments&&... arguments)
      : std::istream(nullptr), buffer_(source, bufferSize, std::forward<Arguments>(arguments)...) {
    rdbuf(&buffer_);
    // A stream would else keep the reason to itself.
    exceptions(std::ios::badbit);
  }

 private:
  FilteringStreambuf<Extractor> buffer_;
};

}  // namespace platform::filters
