// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <string_view>

/// Color codes of wheel segments and filters. A code is the place in the table; names and letters
/// are what engineers, files and the project's keys call the color by.
namespace color_code {

inline constexpr int kNone = -1;
inline constexpr int kCount = 19;

struct Color {
  std::string_view name;
  char letter;   ///< one-letter code; 0 for a color that no wheel is offered
  bool counted;  ///< a segment of it has a size and counts toward the wheel's 360 degrees
};

/// All colors in code order.
[[nodiscard]] std::span<const Color, kCount> Table() noexcept;

/// The color's name; empty for kNone and every other number that is no code.
[[nodiscard]] std::string_view Name(int code) noexcept;
/// The first color of exactly that name, or kNone.
[[nodiscard]] int FromName(std::string_view name) noexcept;
/// 0 for a code without a letter.
[[nodiscard]] char Letter(int code) noexcept;
/// kNone for a letter of no color; case matters.
[[nodiscard]] int FromLetter(char letter) noexcept;
[[nodiscard]] bool IsCounted(int code) noexcept;

}  // namespace color_code
