// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/encryption_extractor.h"

#include <sodium.h>

#include <algorithm>
#include <utility>

#include "platform/filters/filter_error.h"
#include "platform/filters/sodium.h"
#include "platform/filters/source.h"

namespace platform::filters {
namespace {

constexpr std::size_t kSeal = crypto_secretstream_xchacha20poly1305_ABYTES;

std::size_t ReadBytes(std::istream& source, std::vector<unsigned char>& to) {
  return ReadSource(source, reinterpret_cast<char*>(to.data()), to.size());
}

}  // namespace

EncryptionExtractor::EncryptionExtractor(std::istream& source, const Key& key, std::string context)
    : source_(source),
      context_(std::move(context)),
      state_(std::make_unique<crypto_secretstream_xchacha20poly1305_state>()),
      sealed_(crypto_secretstream_xchacha20poly1305_HEADERBYTES) {
  PrepareSodium();
  if (ReadBytes(source_, sealed_) < sealed_.size()) throw FilterError("the container is cut off");
  crypto_secretstream_xchacha20poly1305_init_pull(state_.get(), sealed_.data(), key.Bytes());
  sealed_.resize(kSealedPiece + kSeal);
}

EncryptionExtractor::~EncryptionExtractor() {
  sodium_memzero(state_.get(), sizeof *state_);
  sodium_memzero(piece_.data(), piece_.size());
}

void EncryptionExtractor::NextPiece() {
  const std::size_t got = ReadBytes(source_, sealed_);
  if (got < kSeal) throw FilterError("the container is cut off");
  piece_.resize(got - kSeal);
  taken_ = 0;
  unsigned char tag = 0;
  const int result = crypto_secretstream_xchacha20poly1305_pull(
      state_.get(), piece_.data(), nullptr, &tag, sealed_.data(), got,
      reinterpret_cast<const unsigned char*>(context_.data()), context_.size());
  if (result != 0 && isFirst_)
    throw FilterError("the container was made with another key, or is damaged");
  if (result != 0) throw FilterError("the container is damaged or cut off");
  isFirst_ = false;
  isLast_ = tag == crypto_secretstream_xchacha20poly1305_TAG_FINAL;
  if (isLast_ && !IsAtEnd(source_)) throw FilterError("bytes follow the container");
}

std::size_t EncryptionExtractor::Read(char* to, std::size_t size) {
  while (taken_ == piece_.size() && !isLast_) NextPiece();
  const std::size_t step = std::min(size, piece_.size() - taken_);
  std::copy_n(piece_.data() + taken_, step, to);
  taken_ += step;
  return step;
}

}  // namespace platform::filters
