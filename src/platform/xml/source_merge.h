// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

#include "platform/xml/element.h"
#include "platform/xml/numeric_fields.h"
#include "platform/xml/source_map.h"

namespace platform::xml {

/// True when both elements say the same: name, attributes whatever their order, child elements in
/// order, and text. White space between elements, comments and instructions say nothing.
[[nodiscard]] bool SameContent(Element a, Element b, const NumericFields& numbers);

/// The text of `now` written over the bytes of `before`: whatever says the same keeps its bytes,
/// down to comments and white space, and what is new is indented like its neighbours. In numeric
/// fields a new value is written in the shortest text that reads back as the same double.
/// `place` maps `before` in `bytes` with all its levels.
[[nodiscard]] std::string MergeSource(Element now, Element before, const SourceElement& place,
                                      std::string_view bytes, const NumericFields& numbers);

/// The text of an element that was not there before, indented from `level` on; the first line
/// is not indented and no line end follows the last.
[[nodiscard]] std::string NewSource(Element now, int level, const NumericFields& numbers);

}  // namespace platform::xml
