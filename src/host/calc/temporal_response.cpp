// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/temporal_response.h"

void TemporalResponse::Load(double leadingEdgeUs, double widthUs, double trailingEdgeUs,
                            double amplitude) {
  times_.clear();
  gains_.clear();
  if (leadingEdgeUs == 0 && widthUs == 0 && trailingEdgeUs == 0) return;
  const double widthEnd = leadingEdgeUs + widthUs;
  Add(0.0, 1.0);
  Add(leadingEdgeUs, amplitude);
  Add(widthEnd, amplitude);
  Add(widthEnd + trailingEdgeUs, 1.0);
}

void TemporalResponse::Add(double time, double gain) {
  if (!times_.empty() && times_.back() == time && gains_.back() == gain) return;
  times_.push_back(time);
  gains_.push_back(gain);
}
