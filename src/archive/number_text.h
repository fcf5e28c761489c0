// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string_view>

/// Numbers as the archives write and read them, independent of the locale.
namespace zel::archive {

/// Room for the text of any number.
using number_buffer = char[32];

/// The text stands in the buffer, or is a literal. Doubles take 17 significant digits in general
/// notation; zeros and denormals are "0"; "+INF", "-INF", "QNaN" and "SNaN" are what they say.
[[nodiscard]] std::string_view format(double value, number_buffer& buffer) noexcept;
[[nodiscard]] std::string_view format(long long value, number_buffer& buffer) noexcept;
[[nodiscard]] std::string_view format(unsigned long long value, number_buffer& buffer) noexcept;
[[nodiscard]] std::string_view format(bool value, number_buffer& buffer) noexcept;

/// False when the whole text is not one value of that type; the value is then as it was. Empty
/// text is 0 and false, but no integer. Numbers take one leading sign ("-" only where the type
/// has negative values); a double may have white space before it, is finite, and is 0 when it is
/// smaller than every double.
[[nodiscard]] bool parse(std::string_view text, double& value) noexcept;
[[nodiscard]] bool parse(std::string_view text, long long& value) noexcept;
[[nodiscard]] bool parse(std::string_view text, unsigned long long& value) noexcept;
[[nodiscard]] bool parse(std::string_view text, bool& value) noexcept;

}  // namespace zel::archive
