// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <utility>

#include "host/project/finding.h"

/// Gathers what a check has to say.
class FindingReport {
 public:
  void Error(std::string rule, std::string field, std::string text) {
    Add(Severity::kError, std::move(rule), std::move(field), std::move(text));
  }
  void Warning(std::string rule, std::string field, std::string text) {
    Add(Severity::kWarning, std::move(rule), std::move(field), std::move(text));
  }
  /// An error unless the value lies in the range, bounds included: "WHAT is 9, outside 0 to 5".
  /// True when it does.
  bool Within(double value, double low, double high, const std::string& rule,
              const std::string& field, const std::string& what);

  [[nodiscard]] Findings Take() { return std::move(findings_); }

 private:
  void Add(Severity severity, std::string rule, std::string field, std::string text) {
    findings_.push_back({severity, std::move(rule), std::move(field), std::move(text)});
  }

  Findings findings_;
};
