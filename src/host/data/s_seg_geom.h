// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// One segment of a color wheel.
struct SSegGeom {
  int Color = -1;                   ///< color code; -1 for no color
  double Size = 0.0;                ///< degrees, 0 to 360
  double SegmentGain = 1.0;         ///< 0 to 5
  double SpokeGain = 1.0;           ///< 0 to 5; the spoke behind the segment
  double MeasuredSegmentPwm = 1.0;  ///< efficiencies, 0 to 1
  double MeasuredSpokePwm = 1.0;
  double ModeledSegmentPwm = 1.0;
  double ModeledSpokePwm = 1.0;
  /// The grid row that shows the segment. It belongs to one showing of a page, so it is neither
  /// stored nor compared.
  int RowTag = 0;

  /// Whether all stored values are the same.
  [[nodiscard]] bool operator==(const SSegGeom& other) const noexcept {
    return Color == other.Color && Size == other.Size && SegmentGain == other.SegmentGain &&
           SpokeGain == other.SpokeGain && MeasuredSegmentPwm == other.MeasuredSegmentPwm &&
           MeasuredSpokePwm == other.MeasuredSpokePwm &&
           ModeledSegmentPwm == other.ModeledSegmentPwm && ModeledSpokePwm == other.ModeledSpokePwm;
  }

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Color", Color);
    ar& zel::archive::nvp("Size", Size);
    ar& zel::archive::nvp("SegmentGain", SegmentGain);
    ar& zel::archive::nvp("SpokeGain", SpokeGain);
    ar& zel::archive::nvp("MeasuredSegmentPwm", MeasuredSegmentPwm);
    ar& zel::archive::nvp("MeasuredSpokePwm", MeasuredSpokePwm);
    ar& zel::archive::nvp("ModeledSegmentPwm", ModeledSegmentPwm);
    ar& zel::archive::nvp("ModeledSpokePwm", ModeledSpokePwm);
  }
};
