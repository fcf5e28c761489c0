// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "archive/nvp.h"

/// A waveform database in the shape of the lamp waveform page's data object.
namespace bench {

struct Pulse {
  int version = 1;
  bool isPulse = false;
  std::string segment;
  double amplitude = 1.0;
  double leadEdge = 0.0;
  double trailEdge = 0.0;
  double width = 0.0;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("m_versionnum", version);
    ar& zel::archive::nvp("m_IsPulse", isPulse);
    ar& zel::archive::nvp("m_strCWSeg", segment);
    ar& zel::archive::nvp("m_Amp", amplitude);
    ar& zel::archive::nvp("m_LeadEdge", leadEdge);
    ar& zel::archive::nvp("m_TrailEdge", trailEdge);
    ar& zel::archive::nvp("m_Width", width);
  }
};

struct Ballast {
  int uart = 0;
  unsigned char makerCode = 255;
  unsigned char waveform = 0;
  bool compensates = false;
  double pulseRatio = 1.0;
  double pulseLength = 0.0;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("UART", uart);
    ar& zel::archive::nvp("BallastMakerCode", makerCode);
    ar& zel::archive::nvp("BallastWaveform", waveform);
    ar& zel::archive::nvp("Compensates", compensates);
    ar& zel::archive::nvp("PulseRatio", pulseRatio);
    ar& zel::archive::nvp("PulseLength", pulseLength);
  }
};

struct Waveform {
  std::string title;
  std::string wheel;
  Ballast ballast;
  std::vector<Pulse> pulses;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("WaveFormTitle", title);
    ar& zel::archive::nvp("CWType", wheel);
    ar& zel::archive::nvp("Attributes", ballast);
    ar& zel::archive::nvp("VecPulses", pulses);
  }
};

struct WaveformList {
  std::string group;
  double spinFactor = 2.0;
  std::vector<Waveform> waveforms;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("SeqGrpName", group);
    ar& zel::archive::nvp("SpinFactor", spinFactor);
    ar& zel::archive::nvp("LWData", waveforms);
  }
};

struct Waveforms {
  std::vector<WaveformList> lists;
  bool applyDarkPulse = false;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("LampWaveformDB", lists);
    ar& zel::archive::nvp("ApplyVIDarkPulse", applyDarkPulse);
  }
};

/// The sizes that are measured, in pulses.
inline constexpr std::array<std::size_t, 3> kSizes{200, 10'000, 120'000};

/// A database of about that many pulses: up to 50 waveforms of 24 pulses a list. The numbers are
/// what people type: half of them need all 17 digits, half are exact.
[[nodiscard]] Waveforms MakeWaveforms(std::size_t pulses);
[[nodiscard]] std::size_t CountPulses(const Waveforms& waveforms);

}  // namespace bench
