// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/project/finding.h"
#include "model/illuminators_page_data.h"

namespace illuminators {

/// What there is to say of the stored illuminators. Errors: times out of range, and types and rows
/// that the page cannot show as they are. Warnings: illuminators in rows that are hidden, or that
/// the device does not allow.
[[nodiscard]] Findings Check(const IlluminatorsPageData& data);

}  // namespace illuminators
