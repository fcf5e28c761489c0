// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <exception>

namespace Framework {

enum class ArchiveDirection { kReading, kWriting };

/// Writes what an archive threw to the standard error stream.
void ReportArchiveFailure(ArchiveDirection direction, const std::exception_ptr& failure);

}  // namespace Framework
