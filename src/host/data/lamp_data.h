// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"
#include "archive/serialize_array.h"
#include "host/data/record_array.h"
#include "host/data/s_lamp_record.h"

/// The device's lamp library.
class LampData {
 public:
  static constexpr short kCapacity = 5;

  RecordArray<SLampRecord, kCapacity> Lamps;
  int CurrentLamp = -1;  ///< place in Lamps; -1 for none

  /// Moves the record in at the index, those from there on one place up, and makes it the current
  /// lamp. False, with nothing changed, for a record without a response, a full library, or an
  /// index behind the first free place.
  bool InsertLampResponse(int index, SLampRecord& record) {
    if (!InsertRecord(Lamps, index, record)) return false;
    CurrentLamp = index;
    return true;
  }
  /// Takes the record out; those behind it go one place down. The current lamp's number stays.
  bool RemoveItem(int index) { return RemoveRecord(Lamps, index); }

  [[nodiscard]] bool operator==(const LampData&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    zel::archive::SerializeArray<SLampRecord, short, kCapacity> lamps(Lamps);
    ar& zel::archive::nvp("Lamps", lamps);
    ar& zel::archive::nvp("CurrentLamp", CurrentLamp);
  }
};
