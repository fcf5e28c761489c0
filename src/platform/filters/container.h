// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>

#include "platform/filters/key.h"

namespace platform::filters {

/// What a container's content went through, compression first.
struct ContainerForm {
  bool isCompressed = false;
  bool isEnciphered = false;

  bool operator==(const ContainerForm&) const = default;
};

/// A compressed container that holds more is refused, however small it is itself.
inline constexpr std::size_t kContentLimit = 256u << 20;

/// Reads a container's header off a source that can seek. Nothing, and the source where it was,
/// for bytes that are no container. Throws FilterError for a damaged or newer header.
///
/// The header is 16 bytes: 8B 53 59 53 44 45 46 0A, the version 1, the form (bit 0 compressed, bit
/// 1 enciphered, at least one), two zero bytes and the CRC-32 of these twelve, low byte first.
/// What follows is a zlib stream, a libsodium secret stream of 4096-byte pieces each bound to the
/// header, or the former in the latter.
[[nodiscard]] std::optional<ContainerForm> ReadHeader(std::istream& source);

/// A stream of the content, in bounded memory; the source, which must outlive it, may also be no
/// container and is then read as it is. A source in need of a key that is not given throws
/// FilterError, and so does reading one that is damaged, cut off, past the limit, or was made with
/// another key. Only content that was read to its end is proven whole.
[[nodiscard]] std::unique_ptr<std::istream> OpenContainer(std::istream& source,
                                                          const std::optional<Key>& key,
                                                          std::size_t limit = kContentLimit);

/// Writes all of `plain` as a container: compressed if so wished, enciphered if a key is given.
/// At least one of them is asked for. Throws FilterError; what was written is then worthless.
void PackContainer(std::istream& plain, std::ostream& to, bool compress,
                   const std::optional<Key>& key);

/// Writes a container's content. Throws FilterError, also for bytes that are no container; what
/// was written is then worthless.
void UnpackContainer(std::istream& source, std::ostream& to, const std::optional<Key>& key,
                     std::size_t limit = kContentLimit);

}  // namespace platform::filters
