// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

enum class Severity { kWarning, kError };

/// One thing that a check of a page's data has to say.
struct Finding {
  Severity severity = Severity::kError;
  std::string rule;   ///< stable id such as "pixmeld.start-range"
  std::string field;  ///< the control or cell it is about, by its accessible name
  std::string text;   ///< one line for people
};

using Findings = std::vector<Finding>;
