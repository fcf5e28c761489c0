// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <sodium.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/filters/encryption_extractor.h"
#include "platform/filters/sink.h"
#include "platform/filters/sodium.h"

namespace platform::filters {
namespace {

std::string_view View(const std::vector<unsigned char>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class EncryptionSink final : public Sink {
 public:
  EncryptionSink(std::unique_ptr<Sink> below, const Key& key, std::string_view context)
      : below_(std::move(below)), context_(context) {
    PrepareSodium();
    std::vector<unsigned char> header(crypto_secretstream_xchacha20poly1305_HEADERBYTES);
    crypto_secretstream_xchacha20poly1305_init_push(&state_, header.data(), key.Bytes());
    below_->Write(View(header));
  }
  EncryptionSink(const EncryptionSink&) = delete;
  EncryptionSink& operator=(const EncryptionSink&) = delete;
  ~EncryptionSink() override { sodium_memzero(&state_, sizeof state_); }

  void Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      // A full piece waits until it is known whether it is the last.
      if (piece_.size() == kSealedPiece) Seal(crypto_secretstream_xchacha20poly1305_TAG_MESSAGE);
      const auto step = bytes.substr(0, kSealedPiece - piece_.size());
      piece_ += step;
      bytes.remove_prefix(step.size());
    }
  }

  void Finish() override {
    Seal(crypto_secretstream_xchacha20poly1305_TAG_FINAL);
    below_->Finish();
  }

 private:
  void Seal(unsigned char tag) {
    std::vector<unsigned char> sealed(piece_.size() + crypto_secretstream_xchacha20poly1305_ABYTES);
    crypto_secretstream_xchacha20poly1305_push(
        &state_, sealed.data(), nullptr, reinterpret_cast<const unsigned char*>(piece_.data()),
        piece_.size(), reinterpret_cast<const unsigned char*>(context_.data()), context_.size(),
        tag);
    below_->Write(View(sealed));
    piece_.clear();
  }

  std::unique_ptr<Sink> below_;
  std::string context_;
  std::string piece_;
  crypto_secretstream_xchacha20poly1305_state state_ = {};
};

}  // namespace

std::unique_ptr<Sink> MakeEncryptionSink(std::unique_ptr<Sink> below, const Key& key,
                                         std::string_view context) {
  return std::make_unique<EncryptionSink>(std::move(below), key, context);
}

}  // namespace platform::filters
