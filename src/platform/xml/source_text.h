// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

namespace platform::xml {

/// A document's bytes as UTF-8 that XML can carry, line for line.
class SourceText {
 public:
  /// Keeps no copy of bytes that are UTF-8 already: they must outlive this. Throws XmlError with
  /// the line for another encoding than UTF-8, ASCII, ISO 8859-1 and Windows-1252, for an XML
  /// declaration that is not one, and for a character that XML forbids.
  explicit SourceText(std::string_view bytes);
  SourceText(const SourceText&) = delete;
  SourceText& operator=(const SourceText&) = delete;

  [[nodiscard]] std::string_view View() const noexcept { return view_; }

 private:
  std::string converted_;
  std::string_view view_;
};

/// The line that byte stands on, from 1.
[[nodiscard]] long LineOf(std::string_view bytes, std::size_t at);

}  // namespace platform::xml
