// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QStringList>

namespace app {

/// The projects opened last, newest first, kept in the person's settings.
class RecentProjects {
 public:
  static constexpr int kMost = 8;

  /// Only those that are still there.
  [[nodiscard]] static QStringList Files();
  static void Add(const QString& file);
};

}  // namespace app
