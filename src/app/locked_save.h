// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>

namespace app {

class Session;

/// Saves the session's project while it holds the project's lock. Returns why it was not saved, on
/// one line that names the database: another program holds the lock, or the save failed.
[[nodiscard]] std::optional<std::string> SaveLocked(const Session& session);

}  // namespace app
