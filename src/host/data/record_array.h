// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

/// A library of a few records in a fixed array: those in use stand first, the others are empty. A
/// record has InUse().
template <class Record, std::size_t Capacity>
using RecordArray = std::array<Record, Capacity>;

template <class Record, std::size_t Capacity>
[[nodiscard]] int CountInUse(const RecordArray<Record, Capacity>& records) {
  return static_cast<int>(
      std::count_if(records.begin(), records.end(), [](const Record& r) { return r.InUse(); }));
}

/// Moves the record in at the index; those from there on go one place up. False, with nothing
/// moved, when the record is empty, the library is full, or the index lies behind the first free
/// place.
template <class Record, std::size_t Capacity>
bool InsertRecord(RecordArray<Record, Capacity>& records, int index, Record& record) {
  const int count = CountInUse(records);
  if (!record.InUse() || records.back().InUse() || index < 0 || index > count) return false;
  std::move_backward(records.begin() + index, records.end() - 1, records.end());
  records[static_cast<std::size_t>(index)] = std::exchange(record, Record());
  return true;
}

/// Empties the place; the records behind it go one place down. False when there is no such place.
template <class Record, std::size_t Capacity>
bool RemoveRecord(RecordArray<Record, Capacity>& records, int index) {
  if (index < 0 || index >= static_cast<int>(Capacity)) return false;
  std::move(records.begin() + index + 1, records.end(), records.begin() + index);
  records.back() = Record();
  return true;
}
