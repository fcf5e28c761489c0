// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "archive/nvp.h"

/// The pulse entry of one segment of the sequence timeline. A pulse ends with its segment.
/// Durations are degrees of color wheel rotation.
class PulseInfo {
 public:
  PulseInfo() = default;
  PulseInfo(bool isPulse, std::string segmentKey, double amplitude, double leadEdge,
            double trailEdge, double width)
      : m_IsPulse(isPulse),
        m_strCWSeg(std::move(segmentKey)),
        m_Amp(amplitude),
        m_LeadEdge(leadEdge),
        m_TrailEdge(trailEdge),
        m_Width(width) {}
  PulseInfo(const PulseInfo&) = default;
  PulseInfo(PulseInfo&&) noexcept = default;

  /// Equality and assignment are about the pulse and leave the layout number alone.
  virtual bool operator==(const PulseInfo& other) const {
    return m_IsPulse == other.m_IsPulse && m_strCWSeg == other.m_strCWSeg && m_Amp == other.m_Amp &&
           m_LeadEdge == other.m_LeadEdge && m_TrailEdge == other.m_TrailEdge &&
           m_Width == other.m_Width;
  }
  virtual PulseInfo& operator=(const PulseInfo& other) {
    m_IsPulse = other.m_IsPulse;
    m_strCWSeg = other.m_strCWSeg;
    m_Amp = other.m_Amp;
    m_LeadEdge = other.m_LeadEdge;
    m_TrailEdge = other.m_TrailEdge;
    m_Width = other.m_Width;
    return *this;
  }
  virtual ~PulseInfo() = default;

  bool m_IsPulse = false;
  std::string m_strCWSeg;  ///< key of the timeline segment that carries the pulse
  double m_Amp = 1.0;      ///< gain ratio
  double m_LeadEdge = 0.0;
  double m_TrailEdge = 0.0;
  double m_Width = 0.0;
  std::int32_t m_versionnum = 0;  ///< layout number of the stored pulse

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    m_versionnum = Archive::is_saving ? 1 : 0;
    ar& zel::archive::nvp("m_versionnum", m_versionnum);
    // An older layout has names of its own; it is read, never written.
    const bool current = m_versionnum == 1;
    ar& zel::archive::nvp(current ? "m_IsPulse" : "IsPulse", m_IsPulse);
    ar& zel::archive::nvp(current ? "m_strCWSeg" : "CWSegStr", m_strCWSeg);
    ar& zel::archive::nvp(current ? "m_Amp" : "Amp", m_Amp);
    ar& zel::archive::nvp(current ? "m_LeadEdge" : "LeadEdge", m_LeadEdge);
    ar& zel::archive::nvp(current ? "m_TrailEdge" : "TrailEdge", m_TrailEdge);
    ar& zel::archive::nvp(current ? "m_Width" : "Width", m_Width);
  }
};
