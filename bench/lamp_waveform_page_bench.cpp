// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>

#include "offscreen_main.h"
#include "pages/lamp_waveform/rules/pulse_list.h"
#include "pages/lamp_waveform/rules/selection.h"
#include "pages/lamp_waveform/sys_def_lamp_waveform_page.h"

// The lamp waveform page on a pair of 100 waveforms of 200 pulses: refreshing it, and choosing
// another waveform, each with all that is drawn anew. At most 50 ms are allowed.

namespace {

constexpr double kMostMs = 50.0;
constexpr int kWaveforms = 100;

/// A wheel of 20 segments that turns 10 times in a frame.
GUIInputsData MakeData() {
  GUIInputsData data;
  for (int i = 0; i < 20; ++i) {
    data.ColorWheel.Segments.push_back(SSegGeom{.Color = i % 7, .Size = 18});
  }
  data.ColorWheel.SpokeSize = 4;
  PCGroup& group = data.PCGroups.emplace_back("2D");
  group.Rates = {60};
  group.BitwSelectRateFlags = {true};
  group.SpinFactors = {10};
  for (int i = 0; i < kWaveforms; ++i) {
    lamp_waveform::AddWaveform(data, "2D", 10, "Waveform " + std::to_string(i));
    auto& pulses = data.LampWaveformDB[0].LWData.back().VecPulses;
    for (std::size_t row = 0; row < pulses.size(); ++row) {
      if ((row + static_cast<std::size_t>(i)) % 3 == 0) continue;
      pulses[row] = PulseInfo(true, pulses[row].m_strCWSeg, 1.2, 0.2, 0.2, 0.5);
    }
  }
  return data;
}

struct ShownPage {
  ShownPage() {
    if (data.LampWaveformDB[0].LWData[0].VecPulses.size() != 200) std::abort();
    page.SetData(&data);
    page.Window()->resize(1000, 760);
    page.Window()->show();
    page.UpdateData(0);
    QApplication::processEvents();
  }

  GUIInputsData data = MakeData();
  VeskSystemDefinition::SysDefLampWaveformPage page;
};

/// Runs `change` and draws what it changed, and the whole window, under the clock.
template <class Change>
void Measure(benchmark::State& state, ShownPage& shown, Change change) {
  int turn = 0;
  for (auto _ : state) {
    change(++turn);
    QApplication::processEvents();
    benchmark::DoNotOptimize(shown.page.Window()->grab());
  }
  state.counters["at_most_ms"] = kMostMs;
}

void Refresh(benchmark::State& state) {
  ShownPage shown;
  Measure(state, shown, [&](int) { shown.page.UpdateData(0); });
}
BENCHMARK(Refresh)->Unit(benchmark::kMillisecond);

void ChooseWaveform(benchmark::State& state) {
  ShownPage shown;
  QComboBox* const list = shown.page.Window()->findChild<QComboBox*>(QStringLiteral("waveform"));
  Measure(state, shown, [&](int turn) { list->setCurrentIndex(turn % kWaveforms); });
}
BENCHMARK(ChooseWaveform)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) { return bench::RunOffscreen(argc, argv); }
