// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/data/illumination_configuration_data.h"
#include "host/project/finding.h"

namespace illumination_config {

/// What the rules say of sources and wheels. Errors: sources and wheels that the page cannot show
/// or store as they are, and wheels of more than a turn. Warnings: what no source uses.
[[nodiscard]] Findings CheckConfiguration(const IlluminationConfigurationData& data);

}  // namespace illumination_config
