// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <stdexcept>
#include <string>

/// A failure of the host that a caller cannot go on from; what() is for people.
class OstException : public std::runtime_error {
 public:
  explicit OstException(const std::string& message) : std::runtime_error(message) {}
};
