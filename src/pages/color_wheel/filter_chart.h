// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <set>

class ColorWheelData;

namespace GUI {
class LineChart;
}

namespace color_wheel {

/// Titles and ranges of the chart that shows transmissions.
void SetUpFilterChart(GUI::LineChart& chart);
/// Draws the transmission of the filters of these segments; of all when there are none.
void DrawFilters(GUI::LineChart& chart, const ColorWheelData& wheel,
                 const std::set<std::size_t>& segments);

}  // namespace color_wheel
