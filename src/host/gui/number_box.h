// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "host/text/number_field.h"

class QLineEdit;

namespace Framework {

/// How a number is shown in an edit box and what the box takes.
struct NumberFormat {
  int decimals;
  host::text::FieldRange range;
};

/// Shows the value with the format's decimals and remembers what was shown.
void ShowNumber(QLineEdit& box, double value, const NumberFormat& format);
/// The same for a text of the caller's own.
void ShowText(QLineEdit& box, const std::string& text);
/// The box's value. A text that is still as it was shown gives `stored`, which the shown decimals
/// may round; a refused one is told in a message box, gets the focus, and gives nothing.
[[nodiscard]] std::optional<double> TakeNumber(QLineEdit& box, double stored,
                                               const NumberFormat& format);
/// The box's value, whether its text was edited or not.
[[nodiscard]] std::optional<double> ReadNumber(QLineEdit& box, host::text::FieldRange range);
/// The same for whole numbers, shown without decimals.
void ShowInteger(QLineEdit& box, long long value);
[[nodiscard]] std::optional<long long> TakeInteger(QLineEdit& box, long long stored,
                                                   host::text::FieldRange range);
/// Whether the box's text is no longer as it was shown.
[[nodiscard]] bool IsEdited(const QLineEdit& box);

}  // namespace Framework
