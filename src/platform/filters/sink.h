// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <ostream>
#include <string_view>

#include "platform/filters/key.h"

namespace platform::filters {

/// Takes bytes and passes them on, changed, to where it was made over.
class Sink {
 public:
  virtual ~Sink() = default;
  /// Throws FilterError when they cannot be written.
  virtual void Write(std::string_view bytes) = 0;
  /// To be called once, behind the last byte; ends what lies below too.
  virtual void Finish() = 0;
};

/// Writes to a stream, which must outlive it.
[[nodiscard]] std::unique_ptr<Sink> MakeStreamSink(std::ostream& to);
/// The pack side of CompressionExtractor.
[[nodiscard]] std::unique_ptr<Sink> MakeCompressionSink(std::unique_ptr<Sink> below);
/// The pack side of EncryptionExtractor.
[[nodiscard]] std::unique_ptr<Sink> MakeEncryptionSink(std::unique_ptr<Sink> below, const Key& key,
                                                       std::string_view context);

}  // namespace platform::filters
