// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string_view>

namespace platform::xml {

struct ReadLimits;

/// Refuses, before anything is parsed, what libxml2 would take long or much memory to refuse:
/// throws XmlError for bytes past the limits on size, elements and attributes per element, and for
/// an encoding that does not spell markup as ASCII does. Agrees with the parser on every document
/// up to its first fault.
void CheckLimits(std::string_view bytes, const ReadLimits& limits);

}  // namespace platform::xml
