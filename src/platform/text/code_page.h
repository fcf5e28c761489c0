// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

namespace platform {

[[nodiscard]] bool IsUtf8(std::string_view bytes) noexcept;
/// Bytes of Windows-1252 as UTF-8 (the five bytes that page leaves undefined become the C1 control
/// of the same number).
[[nodiscard]] std::string Windows1252ToUtf8(std::string_view bytes);
/// The bytes as UTF-8: unchanged when they are valid UTF-8, else read as Windows-1252.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

}  // namespace platform
