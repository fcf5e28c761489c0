// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

namespace Framework {
class PageServices;
}

namespace app {

class Session;

/// Throws WrongUse when no page of that name is registered.
void RequirePage(const std::string& page);

/// A page with its data object read from the run-time database and not shown. Throws OstException
/// when there is no such page or its data cannot be read.
Framework::PageServices& ReadPage(const Session& session, const std::string& page);

}  // namespace app
