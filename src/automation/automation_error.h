// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <stdexcept>

namespace automation {

/// Something a script asked for that a person at the screen could not do, or that is not there.
/// what() names the control.
class AutomationError : public std::runtime_error {
 public:
  explicit AutomationError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

}  // namespace automation
