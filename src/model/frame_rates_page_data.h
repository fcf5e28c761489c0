// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "archive/nvp.h"

/// One source frame-rate bin: which sequence range serves a span of incoming frame periods, and
/// how. Frame periods are counted in ticks of a 15 MHz clock, so the largest count is the lowest
/// rate.
struct FreqBinData {
  std::uint32_t MaxFrameCount = 0;
  std::uint32_t MinFrameCount = 0;
  std::uint8_t LookBinIndex = 0;           ///< the serving range's place in the list, from 0
  std::uint8_t SequenceMultiplier = 0;     ///< sequence repetitions a source frame
  std::uint8_t IsLockToInternalVsync = 0;  ///< 1: internal sync ("LIV"); 0: the source's ("LEV")
  std::uint8_t Enable3d = 0;               ///< 1: the serving range holds 120 Hz

  // Not stored; the rules give them anew with every table.
  std::string label;     ///< the serving range's base rate as the project writes it
  double minRateHz = 0;  ///< lowest rate of the bin
  double maxRateHz = 0;  ///< highest rate of the bin

  friend bool operator==(const FreqBinData&, const FreqBinData&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("MaxFrameCount", MaxFrameCount);
    ar& zel::archive::nvp("MinFrameCount", MinFrameCount);
    ar& zel::archive::nvp("LookBinIndex", LookBinIndex);
    ar& zel::archive::nvp("SequenceMultiplier", SequenceMultiplier);
    ar& zel::archive::nvp("IsLockToInternalVsync", IsLockToInternalVsync);
    ar& zel::archive::nvp("Enable3d", Enable3d);
  }
};

/// The sequence rates chosen for a device and the source frame-rate bins that follow from them.
class SysDefFrameRatesPageData {
 public:
  static constexpr unsigned class_version = 1;

  SysDefFrameRatesPageData() = default;
  SysDefFrameRatesPageData(const SysDefFrameRatesPageData&) = default;
  SysDefFrameRatesPageData& operator=(const SysDefFrameRatesPageData&) = default;
  virtual ~SysDefFrameRatesPageData() = default;

  std::vector<double> FrameRates;         ///< base rates (Hz) of the selected ranges, in list order
  std::vector<FreqBinData> FreqBinTable;  ///< in ascending rate order
  std::vector<FreqBinData> displayTable;  ///< the table as it is shown; not stored

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("FrameRates", FrameRates);
    ar& zel::archive::nvp("FreqBinTable", FreqBinTable);
  }
};
