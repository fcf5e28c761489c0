// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>

#include "measure.h"
#include "waveforms.h"

/// What is measured; each registers its benchmarks.
namespace bench {

void RegisterArchive();
void RegisterCereal();
void RegisterPugixml();
/// The tree alone, from texts that are ready, and libxml2's parser alone.
void RegisterFloors();

/// The data of the size the benchmark is run at.
inline Waveforms DataOf(const benchmark::State& state) {
  return MakeWaveforms(static_cast<std::size_t>(state.range(0)));
}

/// `store` makes something of the data.
template <class Store>
void RegisterStore(const char* name, Store store) {
  Register(name, [store](benchmark::State& state) {
    Waveforms data = DataOf(state);
    Measure(state, [&] { return store(data); });
  });
}

/// `load` makes something of what `prepare` makes of the data.
template <class Prepare, class Load>
void RegisterLoad(const char* name, Prepare prepare, Load load) {
  Register(name, [prepare, load](benchmark::State& state) {
    Waveforms data = DataOf(state);
    const auto source = prepare(data);
    Measure(state, [&] { return load(source); });
  });
}

}  // namespace bench
