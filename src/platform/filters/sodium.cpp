// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/sodium.h"

#include <sodium.h>

#include "platform/filters/filter_error.h"

namespace platform::filters {

void PrepareSodium() {
  // Safe to call again and from any thread; fails only without a random source.
  if (sodium_init() < 0) throw FilterError("the system gives no random numbers");
}

}  // namespace platform::filters
