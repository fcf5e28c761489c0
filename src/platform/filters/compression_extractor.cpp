// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/compression_extractor.h"

#include <zlib.h>

#include <algorithm>
#include <climits>
#include <new>
#include <string>

#include "platform/filters/filter_error.h"
#include "platform/filters/source.h"

namespace platform::filters {

void CompressionExtractor::End::operator()(z_stream_s* state) const noexcept {
  inflateEnd(state);
  delete state;
}

CompressionExtractor::CompressionExtractor(std::istream& source, std::size_t limit)
    : source_(source), left_(limit), packed_(16384), state_(new z_stream_s{}) {
  if (inflateInit(state_.get()) != Z_OK) throw std::bad_alloc();
}

void CompressionExtractor::Refill() {
  if (state_->avail_in > 0) return;
  const std::size_t got = ReadSource(source_, packed_.data(), packed_.size());
  if (got == 0) throw FilterError("the container is cut off");
  state_->next_in = reinterpret_cast<Bytef*>(packed_.data());
  state_->avail_in = static_cast<uInt>(got);
}

void CompressionExtractor::CheckEnd() {
  ended_ = true;
  if (state_->avail_in > 0 || !IsAtEnd(source_)) throw FilterError("bytes follow the container");
}

std::size_t CompressionExtractor::Read(char* to, std::size_t size) {
  size = std::min<std::size_t>(size, UINT_MAX);
  state_->next_out = reinterpret_cast<Bytef*>(to);
  state_->avail_out = static_cast<uInt>(size);
  while (!ended_ && state_->avail_out == size) {
    Refill();
    const int result = inflate(state_.get(), Z_NO_FLUSH);
    if (result == Z_STREAM_END)
      CheckEnd();
    else if (result != Z_OK && result != Z_BUF_ERROR)
      throw FilterError("the container is damaged");
  }
  const std::size_t got = size - state_->avail_out;
  if (got > left_) throw FilterError("the container holds more than is allowed");
  left_ -= got;
  return got;
}

}  // namespace platform::filters
