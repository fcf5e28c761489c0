// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "archive/nvp.h"

/// Names the sequence group that something belongs to.
struct SeqGroupType {
  std::string Title;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Title", Title);
  }

  friend bool operator==(const SeqGroupType&, const SeqGroupType&) = default;
};
