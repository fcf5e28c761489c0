// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string_view>

namespace platform::xml {

struct ReadLimits;

/// Refuses, before anything is parsed, what libxml2 would spend long or much memory on: more
/// elements, attributes or namespaces than the limits, endless comments. Throws XmlError with the
/// line. The text is UTF-8 that XML can carry.
///
/// What is counted holds for the parser also where the text is not well formed, although that goes
/// on behind a fault: markup begins at every '<' outside of comments, character data sections and
/// instructions, and those end where the parser ends them.
void CheckLimits(std::string_view text, const ReadLimits& limits);

}  // namespace platform::xml
