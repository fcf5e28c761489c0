// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <zlib.h>

#include <algorithm>
#include <climits>
#include <new>
#include <utility>
#include <vector>

#include "platform/filters/filter_error.h"
#include "platform/filters/sink.h"

namespace platform::filters {
namespace {

class CompressionSink final : public Sink {
 public:
  explicit CompressionSink(std::unique_ptr<Sink> below) : below_(std::move(below)), packed_(16384) {
    if (deflateInit(&state_, Z_BEST_COMPRESSION) != Z_OK) throw std::bad_alloc();
  }
  CompressionSink(const CompressionSink&) = delete;
  CompressionSink& operator=(const CompressionSink&) = delete;
  ~CompressionSink() override { deflateEnd(&state_); }

  void Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const std::size_t step = std::min<std::size_t>(bytes.size(), UINT_MAX);
      // zlib's interface lacks the const.
      state_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
      state_.avail_in = static_cast<uInt>(step);
      while (state_.avail_in > 0) Step(Z_NO_FLUSH);
      bytes.remove_prefix(step);
    }
  }

  void Finish() override {
    while (Step(Z_FINISH) != Z_STREAM_END) {
    }
    below_->Finish();
  }

 private:
  int Step(int flush) {
    state_.next_out = reinterpret_cast<Bytef*>(packed_.data());
    state_.avail_out = static_cast<uInt>(packed_.size());
    const int result = deflate(&state_, flush);
    below_->Write({packed_.data(), packed_.size() - state_.avail_out});
    return result;
  }

  std::unique_ptr<Sink> below_;
  std::vector<char> packed_;
  z_stream state_ = {};
};

}  // namespace

std::unique_ptr<Sink> MakeCompressionSink(std::unique_ptr<Sink> below) {
  return std::make_unique<CompressionSink>(std::move(below));
}

}  // namespace platform::filters
