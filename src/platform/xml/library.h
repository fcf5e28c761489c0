// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

struct _xmlError;

namespace platform::xml {

/// Sets libxml2 and libxslt up for this process, once: nothing outside a document is ever opened,
/// written or fetched, and nothing is printed.
void PrepareLibraries();

/// Collects, while it lives, what libxml2 and libxslt report on this thread. They nest.
class ErrorCollector {
 public:
  ErrorCollector();
  ErrorCollector(const ErrorCollector&) = delete;
  ErrorCollector& operator=(const ErrorCollector&) = delete;
  ~ErrorCollector();

  /// The first fault as one line without a line end; empty when there was none.
  [[nodiscard]] const std::string& Text() const noexcept { return text_; }
  /// The first fault's line; 0 when it has none.
  [[nodiscard]] long Line() const noexcept { return line_; }
  /// "LINE: TEXT", or TEXT without a line; without a fault what a stylesheet said last itself, or
  /// else `otherwise`.
  [[nodiscard]] std::string Message(std::string_view otherwise) const;

  /// Makes this the fault, whatever the libraries said or will say.
  void Settle(std::string text, long line);

  void Add(const _xmlError& error);
  /// Takes a piece of libxslt's printed messages: a line that tells the place, then the text.
  void AddPrinted(std::string_view piece);
  /// The collector that lives on this thread last; null without one.
  static ErrorCollector* Current() noexcept;

 private:
  void AddPrintedLine(std::string_view line);
  void Take(std::string text, long line);

  ErrorCollector* outer_;
  std::string text_;
  long line_ = 0;
  bool settled_ = false;
  std::string said_;
  // Of what libxslt prints: a line without its end yet, and the place that the next line is about.
  std::string printed_;
  bool knowsPlace_ = false;
  long place_ = 0;
};

/// The text with every line end and run of blanks around it as one blank.
[[nodiscard]] std::string OneLine(std::string_view text);

}  // namespace platform::xml
