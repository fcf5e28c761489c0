// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illumination_config/list_cell.h"

namespace illumination_config {

QString ListCell(std::string_view choices, const std::string& chosen) {
  std::string cell(choices);
  // The cell takes the last piece for the chosen one: with nothing behind it, that is a choice.
  cell += chosen.empty() ? choices.substr(0, choices.find('|')) : std::string_view(chosen);
  return QString::fromStdString(cell);
}

}  // namespace illumination_config
