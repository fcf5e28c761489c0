// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/finding_report.h"

#include "platform/text/number.h"

bool FindingReport::Within(double value, double low, double high, const std::string& rule,
                           const std::string& field, const std::string& what) {
  if (value >= low && value <= high) return true;
  Error(rule, field,
        what + " is " + platform::GeneralText(value) + ", outside " + platform::GeneralText(low) +
            " to " + platform::GeneralText(high));
  return false;
}
