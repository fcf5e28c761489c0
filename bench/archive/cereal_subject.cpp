// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cereal/archives/xml.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>
#include <sstream>

#include "measure.h"
#include "subjects.h"

namespace bench {

namespace {

// The same data again: cereal would take our classes' own serialize for one of its own.
struct CerealPulse {
  int version = 0;
  bool isPulse = false;
  std::string segment;
  double amplitude = 0;
  double leadEdge = 0;
  double trailEdge = 0;
  double width = 0;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("m_versionnum", version), cereal::make_nvp("m_IsPulse", isPulse),
       cereal::make_nvp("m_strCWSeg", segment), cereal::make_nvp("m_Amp", amplitude),
       cereal::make_nvp("m_LeadEdge", leadEdge), cereal::make_nvp("m_TrailEdge", trailEdge),
       cereal::make_nvp("m_Width", width));
  }
};

struct CerealAttributes {
  int uartFlag = 0;
  int makerCode = 0;
  int waveformIndex = 0;
  bool isEnabled = false;
  double pulseLength = 0;
  int ratio = 0;
  std::vector<std::string> spokes;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("UARTFlag", uartFlag), cereal::make_nvp("BallastMakerCode", makerCode),
       cereal::make_nvp("BallastWaveformIndex", waveformIndex),
       cereal::make_nvp("CompensationEnabled", isEnabled),
       cereal::make_nvp("PulseLength", pulseLength), cereal::make_nvp("PulsePlateauRatio", ratio),
       cereal::make_nvp("SpokePulses", spokes));
  }
};

struct CerealWaveform {
  std::string title;
  std::string wheel;
  CerealAttributes attributes;
  std::vector<CerealPulse> pulses;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("WaveFormTitle", title), cereal::make_nvp("CWType", wheel),
       cereal::make_nvp("Attributes", attributes), cereal::make_nvp("VecPulses", pulses));
  }
};

struct CerealEntry {
  std::string group;
  double spinFactor = 0;
  std::vector<CerealWaveform> waveforms;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("SeqGrpName", group), cereal::make_nvp("SpinFactor", spinFactor),
       cereal::make_nvp("LWData", waveforms));
  }
};

using CerealWaveforms = std::vector<CerealEntry>;

CerealPulse Mirror(const PulseInfo& pulse) {
  return {pulse.m_versionnum, pulse.m_IsPulse,   pulse.m_strCWSeg, pulse.m_Amp,
          pulse.m_LeadEdge,   pulse.m_TrailEdge, pulse.m_Width};
}

CerealWaveform Mirror(const LampWaveFormData& waveform) {
  const LampWaveform& own = waveform.Attributes;
  CerealWaveform mirror{waveform.WaveFormTitle, waveform.CWType, {}, {}};
  mirror.attributes = {own.GetUARTFlag(),
                       own.GetBallastMakerCode(),
                       own.GetBallastWaveformIndex(),
                       own.CompensationEnabled,
                       own.PulseLength,
                       own.PulsePlateauRatio,
                       {}};
  for (const PulseInfo& pulse : waveform.VecPulses) mirror.pulses.push_back(Mirror(pulse));
  return mirror;
}

CerealWaveforms Mirror(const Waveforms& data) {
  CerealWaveforms mirror;
  for (const LampWaveFormDB& entry : data) {
    mirror.push_back({entry.SeqGrpName, entry.SpinFactor, {}});
    for (const LampWaveFormData& each : entry.LWData) {
      mirror.back().waveforms.push_back(Mirror(each));
    }
  }
  return mirror;
}

std::ostringstream Stored(const CerealWaveforms& data) {
  std::ostringstream text;
  {
    // The archive writes the text when it is destroyed.
    cereal::XMLOutputArchive archive(
        text, cereal::XMLOutputArchive::Options().indent(false).outputType(false));
    archive(cereal::make_nvp(kElement, data));
  }
  return text;
}

CerealWaveforms Loaded(const std::string& text) {
  std::istringstream stream(text);
  CerealWaveforms data;
  cereal::XMLInputArchive archive(stream);
  archive(cereal::make_nvp(kElement, data));
  return data;
}

}  // namespace

void RegisterCereal() {
  Register("cereal store", [](benchmark::State& state) {
    const CerealWaveforms data = Mirror(DataOf(state));
    Measure(state, [&] { return Stored(data); });
  });
  Register("cereal load", [](benchmark::State& state) {
    const std::string text = FromChild([&] { return Stored(Mirror(DataOf(state))).str(); });
    Measure(state, [&] { return Loaded(text); });
  });
}

}  // namespace bench
