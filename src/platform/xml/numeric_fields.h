// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace platform::xml {

/// The attributes of a vocabulary that hold numbers: pairs of element name and attribute name.
/// Two spellings of the same double are one value there, and nowhere else.
class NumericFields {
 public:
  void Add(std::string element, std::string attribute) {
    fields_.emplace(std::move(element), std::move(attribute));
  }
  [[nodiscard]] bool Contains(std::string_view element, std::string_view attribute) const {
    return fields_.contains(std::pair(element, attribute));
  }
  [[nodiscard]] bool Empty() const noexcept { return fields_.empty(); }

 private:
  struct Less {
    using is_transparent = void;
    template <class A, class B>
    bool operator()(const A& a, const B& b) const {
      return std::pair<std::string_view, std::string_view>(a.first, a.second) <
             std::pair<std::string_view, std::string_view>(b.first, b.second);
    }
  };
  std::set<std::pair<std::string, std::string>, Less> fields_;
};

}  // namespace platform::xml
