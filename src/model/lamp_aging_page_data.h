// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/data/seq_group_type.h"

/// One bin: the ballast feedback values of an aging lamp for which a pulse amplitude is used. Bins
/// are ordered by their lower value alone, so a table holds no two bins with the same.
class SlrPulseAmpData {
 public:
  static constexpr unsigned class_version = 1;

  SlrPulseAmpData() = default;
  SlrPulseAmpData(std::uint16_t lower, std::uint16_t upper, double amplitude)
      : m_lowerBallastVal(lower), m_upperBallastVal(upper), m_avgPulseAmplitude(amplitude) {}
  SlrPulseAmpData(const SlrPulseAmpData&) = default;
  SlrPulseAmpData& operator=(const SlrPulseAmpData&) = default;
  virtual ~SlrPulseAmpData() = default;

  std::uint16_t m_lowerBallastVal = 0;  ///< lowest feedback value of the bin
  std::uint16_t m_upperBallastVal = 0;  ///< highest feedback value of the bin
  double m_avgPulseAmplitude = 0.0;     ///< average pulse amplitude ratio

  friend bool operator<(const SlrPulseAmpData& one, const SlrPulseAmpData& other) noexcept {
    return one.m_lowerBallastVal < other.m_lowerBallastVal;
  }
  friend bool operator==(const SlrPulseAmpData&, const SlrPulseAmpData&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    int layout = 1;  // written as it is and read for nothing
    ar& zel::archive::nvp("Version", layout);
    ar& zel::archive::nvp("m_avgPulseAmplitude", m_avgPulseAmplitude);
    ar& zel::archive::nvp("m_lowerBallastVal", m_lowerBallastVal);
    ar& zel::archive::nvp("m_upperBallastVal", m_upperBallastVal);
  }
};

/// Ascending by lower value; a bin's number is its place, from 0.
using SlrPulseAmpDataTable = std::set<SlrPulseAmpData>;

/// The table of one spin factor.
class SlrPulseAmpDataGroup {
 public:
  static constexpr unsigned class_version = 1;

  SlrPulseAmpDataGroup() = default;
  SlrPulseAmpDataGroup(const SlrPulseAmpDataGroup&) = default;
  SlrPulseAmpDataGroup& operator=(const SlrPulseAmpDataGroup&) = default;
  virtual ~SlrPulseAmpDataGroup() = default;

  double m_spinFactor = -1.0;  ///< matched exactly
  SeqGroupType m_seqType;
  std::string m_title;
  SlrPulseAmpDataTable m_SlrPulseAmpDataTable;

  friend bool operator==(const SlrPulseAmpDataGroup&, const SlrPulseAmpDataGroup&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    int layout = 1;  // written as it is and read for nothing
    ar& zel::archive::nvp("Version", layout);
    ar& zel::archive::nvp("m_spinFactor", m_spinFactor);
    ar& zel::archive::nvp("m_seqType", m_seqType);
    ar& zel::archive::nvp("m_title", m_title);
    ar& zel::archive::nvp("m_SlrPulseAmpDataTable", m_SlrPulseAmpDataTable);
  }
};

/// The groups in the order they were made; of two with one spin factor the first counts.
class SlrPulseAmpDataGroupVec : public std::vector<SlrPulseAmpDataGroup> {
 public:
  SlrPulseAmpDataGroupVec() = default;
  SlrPulseAmpDataGroupVec(const SlrPulseAmpDataGroupVec&) = default;
  SlrPulseAmpDataGroupVec& operator=(const SlrPulseAmpDataGroupVec&) = default;
  virtual ~SlrPulseAmpDataGroupVec() = default;
};

/// Which pulse amplitude the lamp drive uses as the lamp ages, for every spin factor.
class LampAgingPageData {
 public:
  static constexpr unsigned class_version = 1;

  SlrPulseAmpDataGroupVec m_VecpulseAmpDataFeedBackGroup;    ///< used with a ballast that reports
  SlrPulseAmpDataGroupVec m_VecpulseAmpDataNoFeedBackGroup;  ///< used with one that does not
  std::uint32_t m_ballast_type = 1;  ///< 0: the ballast sends feedback; 1: it does not

  friend bool operator==(const LampAgingPageData&, const LampAgingPageData&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    using Groups = std::vector<SlrPulseAmpDataGroup>;
    ar& zel::archive::nvp("m_VecpulseAmpDataFeedBackGroup",
                          static_cast<Groups&>(m_VecpulseAmpDataFeedBackGroup));
    ar& zel::archive::nvp("m_VecpulseAmpDataNoFeedBackGroup",
                          static_cast<Groups&>(m_VecpulseAmpDataNoFeedBackGroup));
    ar& zel::archive::nvp("m_ballast_type", m_ballast_type);
  }
};
