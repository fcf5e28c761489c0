// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace platform::filters {

/// Sets libsodium up for this process, once.
void PrepareSodium();

}  // namespace platform::filters
