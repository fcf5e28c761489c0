// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "archive/collections.h"
#include "archive/nvp.h"

namespace fuzz {

/// Fills an object with what bytes say, through the object's own `serialize`. Past the end of the
/// bytes everything is 0 or empty.
class ByteArchive {
 public:
  static constexpr bool is_loading = true;
  static constexpr bool is_saving = false;

  ByteArchive(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

  template <class T>
  ByteArchive& operator>>(const zel::archive::name_value_pair<T>& pair) {
    Fill(*pair.value);
    return *this;
  }
  template <class T>
  ByteArchive& operator&(const zel::archive::name_value_pair<T>& pair) {
    return *this >> pair;
  }

  std::uint8_t Next() { return at_ < end_ ? *at_++ : 0; }
  std::size_t load_count() { return Next() % 16; }
  void refuse_repeated_entry() const {}

 private:
  template <class T>
  void Fill(T& value) {
    if constexpr (std::is_same_v<T, bool>) {
      value = Next() % 2 != 0;
    } else if constexpr (std::is_arithmetic_v<T>) {
      FillNumber(value);
    } else if constexpr (std::is_same_v<T, std::string>) {
      value.clear();
      for (std::size_t left = Next() % 24; left > 0; --left) value += static_cast<char>(Next());
    } else {
      zel::archive::serialization<T>::load(*this, value, 0);
    }
  }

  /// Small ones from one byte, or any from as many as it has.
  template <class T>
  void FillNumber(T& value) {
    const std::uint8_t first = Next();
    if (first < 0xC0) {
      value = static_cast<T>(first);
      return;
    }
    std::uint8_t bytes[sizeof(T)];
    for (std::uint8_t& each : bytes) each = Next();
    std::memcpy(&value, bytes, sizeof(T));
  }

  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

}  // namespace fuzz
