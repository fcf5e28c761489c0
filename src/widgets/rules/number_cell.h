// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace GUI {

/// How a number cell shows its value and which values it takes.
struct NumberCellFormat {
  /// 0 for an integer cell, otherwise the number of decimals in fixed notation.
  std::uint16_t decimals = 0;
  double minimum = -1.0;
  double maximum = -1.0;
  bool minimumSet = false;
  bool maximumSet = false;

  /// The printf format of the value: "%d", or "%.2f" for two decimals.
  [[nodiscard]] std::string Format() const;
  /// The text in the cell's own format: its leading numeric part, or 0 when there is none.
  [[nodiscard]] std::string TextOf(std::string_view text) const;
  /// Why the entered text is refused; nothing when it is taken. A bound itself is taken.
  [[nodiscard]] std::optional<std::string> Refusal(std::string_view text) const;

 private:
  [[nodiscard]] std::string BoundText(double bound) const;
};

}  // namespace GUI
