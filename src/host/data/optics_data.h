// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"
#include "archive/serialize_array.h"
#include "host/data/optics_model.h"
#include "host/data/record_array.h"
#include "host/data/s_optics_record.h"

/// The device's optics library and its parametric optics model.
class OpticsData {
 public:
  static constexpr short kCapacity = 5;

  RecordArray<SOpticsRecord, kCapacity> Optics;
  int CurrentOptics = -1;               ///< place in Optics; -1 for none
  double FullOnContrastRatio = 1000.0;  ///< 1 to 1000000, of the whole library
  OpticsModel Model;

  /// Moves the record in at the index, those from there on one place up, and makes it the current
  /// one. False, with nothing changed, for a record without a response, a full library, or an
  /// index behind the first free place.
  bool InsertOpticsResponse(int index, SOpticsRecord& record) {
    if (!InsertRecord(Optics, index, record)) return false;
    CurrentOptics = index;
    return true;
  }
  /// Takes the record out; those behind it go one place down. The current number stays.
  bool RemoveItem(int index) { return RemoveRecord(Optics, index); }

  [[nodiscard]] bool operator==(const OpticsData&) const = default;
  /// Whether the other describes the same optics in every value.
  [[nodiscard]] bool IsEquivalent(const OpticsData& other) const { return *this == other; }

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    zel::archive::SerializeArray<SOpticsRecord, short, kCapacity> optics(Optics);
    ar& zel::archive::nvp("Optics", optics);
    ar& zel::archive::nvp("CurrentOptics", CurrentOptics);
    ar& zel::archive::nvp("FullOnContrastRatio", FullOnContrastRatio);
    ar& zel::archive::nvp("Model", Model);
  }
};
