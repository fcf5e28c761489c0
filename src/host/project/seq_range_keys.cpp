// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/seq_range_keys.h"

#include "platform/text/fill.h"

std::string SeqRangeKey(std::string_view pattern, int group, int number) {
  return platform::Fill(pattern, {std::to_string(group), std::to_string(number)});
}
