// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/cw_seg.h"

#include "host/calc/color_code.h"

std::string CWSeg::getName() const {
  const char letter = color_code::Letter(color_);
  return letter == 0 ? std::string() : std::string(1, letter);
}

bool CWSeg::hasPlace() const noexcept { return color_code::IsCounted(color_) && size_ > 0; }

std::vector<CWSeg> CWSegsOf(std::span<const SSegGeom> segments) {
  std::vector<CWSeg> wheel;
  wheel.reserve(segments.size());
  for (const SSegGeom& segment : segments) wheel.emplace_back(segment.Color, segment.Size);
  return wheel;
}
