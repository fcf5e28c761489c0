// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <vector>

struct z_stream_s;

namespace platform::filters {

/// Undoes zlib's compression of a stream that ends with it.
class CompressionExtractor {
 public:
  /// Content of more than `limit` bytes is refused while it is read. The source must outlive this.
  CompressionExtractor(std::istream& source, std::size_t limit);

  /// Up to `size` bytes, 0 only at the end. Throws FilterError for a source that is cut off,
  /// damaged, longer than its content, or past the limit.
  std::size_t Read(char* to, std::size_t size);

 private:
  struct End {
    void operator()(z_stream_s* state) const noexcept;
  };

  void Refill();
  void CheckEnd();

  std::istream& source_;
  std::size_t left_;
  std::vector<char> packed_;
  std::unique_ptr<z_stream_s, End> state_;
  bool ended_ = false;
};

}  // namespace platform::filters
