// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>

namespace zel::archive {

/// The flag word both archives are constructed with; the bits are ORed together.
namespace flags {
/// Long attribute names and the root element "boost_serialization" after its document type
/// declaration; clear: short names and the root "zel_tessary_archive".
inline constexpr std::uint32_t kLongNames = 0x80000000u;
/// No class information: no attributes, all such values read as 0.
inline constexpr std::uint32_t kNoClassInfo = 0x40000000u;
/// No root element: the first named value is the document element.
inline constexpr std::uint32_t kNoRoot = 0x20000000u;
/// No XML declaration; means nothing to a document that is no text.
inline constexpr std::uint32_t kNoDeclaration = 0x10000000u;
/// Input only: a missing element is tolerated and leaves its value as it was.
inline constexpr std::uint32_t kTolerateMissing = 0x08000000u;
/// Set by convention in every archive; changes nothing.
inline constexpr std::uint32_t kArchive = 0x00000001u;

/// What page data are moved with: plain nested elements, missing ones tolerated.
inline constexpr std::uint32_t kPageTransfer =
    kNoClassInfo | kNoRoot | kNoDeclaration | kTolerateMissing | kArchive;
}  // namespace flags

}  // namespace zel::archive
