// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace Framework {

/// What the host's page selector tells a view.
class PageSelection {
 public:
  virtual ~PageSelection() = default;
  /// A page was chosen by its registration name; false when it cannot be shown.
  virtual bool Activated(const char* pageName) = 0;
};

}  // namespace Framework
