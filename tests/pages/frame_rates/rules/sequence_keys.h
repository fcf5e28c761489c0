// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "host/project/ost_project.h"

/// Sets the keys of one sequence range of the project, as their texts.
inline void SetRange(OstProject& project, int number, const std::string& base,
                     const std::string& low, const std::string& high,
                     const std::string& multipliers, const std::string& skipped = "") {
  const std::string range = "projectclass.seqrange.group1.seq" + std::to_string(number);
  project.SetKey(range + ".basehz", base);
  project.SetKey(range + ".minhz", low);
  project.SetKey(range + ".maxhz", high);
  project.SetKey(range + ".maxseqmultiplier", multipliers);
  project.SetKey(range + ".skipmult", skipped);
}
