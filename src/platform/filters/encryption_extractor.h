// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <string>
#include <vector>

#include "platform/filters/key.h"

struct crypto_secretstream_xchacha20poly1305_state;

namespace platform::filters {

/// The content is enciphered in pieces of so many bytes, each with its own seal.
inline constexpr std::size_t kSealedPiece = 4096;

/// Deciphers a stream and proves that it is whole and in order.
class EncryptionExtractor {
 public:
  /// `context` is what the content was bound to. The source must outlive this. Throws FilterError.
  EncryptionExtractor(std::istream& source, const Key& key, std::string context);
  ~EncryptionExtractor();

  /// Up to `size` bytes, 0 only at the end. Throws FilterError for a source that is cut off,
  /// changed, longer than its content, or enciphered with another key or context.
  std::size_t Read(char* to, std::size_t size);

 private:
  void NextPiece();

  std::istream& source_;
  std::string context_;
  std::unique_ptr<crypto_secretstream_xchacha20poly1305_state> state_;
  std::vector<unsigned char> sealed_;
  std::vector<unsigned char> piece_;
  std::size_t taken_ = 0;
  bool isFirst_ = true;
  bool isLast_ = false;
};

}  // namespace platform::filters
