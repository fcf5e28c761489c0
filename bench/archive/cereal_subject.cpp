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
  Pulse data;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("m_versionnum", data.version), cereal::make_nvp("m_IsPulse", data.isPulse),
       cereal::make_nvp("m_strCWSeg", data.segment), cereal::make_nvp("m_Amp", data.amplitude),
       cereal::make_nvp("m_LeadEdge", data.leadEdge),
       cereal::make_nvp("m_TrailEdge", data.trailEdge), cereal::make_nvp("m_Width", data.width));
  }
};

struct CerealBallast {
  Ballast data;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("UART", data.uart), cereal::make_nvp("BallastMakerCode", data.makerCode),
       cereal::make_nvp("BallastWaveform", data.waveform),
       cereal::make_nvp("Compensates", data.compensates),
       cereal::make_nvp("PulseRatio", data.pulseRatio),
       cereal::make_nvp("PulseLength", data.pulseLength));
  }
};

struct CerealWaveform {
  std::string title;
  std::string wheel;
  CerealBallast ballast;
  std::vector<CerealPulse> pulses;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("WaveFormTitle", title), cereal::make_nvp("CWType", wheel),
       cereal::make_nvp("Attributes", ballast), cereal::make_nvp("VecPulses", pulses));
  }
};

struct CerealList {
  std::string group;
  double spinFactor = 0;
  std::vector<CerealWaveform> waveforms;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("SeqGrpName", group), cereal::make_nvp("SpinFactor", spinFactor),
       cereal::make_nvp("LWData", waveforms));
  }
};

struct CerealWaveforms {
  std::vector<CerealList> lists;
  bool applyDarkPulse = false;
  template <class Archive>
  void serialize(Archive& ar) {
    ar(cereal::make_nvp("LampWaveformDB", lists),
       cereal::make_nvp("ApplyVIDarkPulse", applyDarkPulse));
  }
};

CerealWaveforms Mirror(const Waveforms& data) {
  CerealWaveforms mirror{{}, data.applyDarkPulse};
  for (const WaveformList& list : data.lists) {
    CerealList& made = mirror.lists.emplace_back(CerealList{list.group, list.spinFactor, {}});
    for (const Waveform& each : list.waveforms) {
      CerealWaveform& waveform =
          made.waveforms.emplace_back(CerealWaveform{each.title, each.wheel, {each.ballast}, {}});
      for (const Pulse& pulse : each.pulses) waveform.pulses.push_back({pulse});
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
    archive(cereal::make_nvp("Inputs", data));
  }
  return text;
}

CerealWaveforms Loaded(const std::string& text) {
  std::istringstream stream(text);
  CerealWaveforms data;
  cereal::XMLInputArchive archive(stream);
  archive(cereal::make_nvp("Inputs", data));
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
