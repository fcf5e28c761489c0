// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <vector>

#include "host/data/s_lamp_record.h"
#include "host/data/s_optics_record.h"
#include "host/text/parse.h"
#include "pages/lamp_optics/rules/load_report.h"

/// The readers of lamp, optics and lamp recycling files.
///
/// All three are lines of a keyword and its value, and blocks of data lines between a start and an
/// end keyword; comments and blank lines do not count. What a reader cannot use it passes over and
/// reports. A file is accepted when it has at least one point, whatever else is in it.
namespace lamp_optics {

struct LampFile {
  SLampRecord record;
  LoadReport report;

  [[nodiscard]] bool Accepted() const noexcept { return record.InUse(); }
};

struct OpticsFile {
  SOpticsRecord record;
  LoadReport report;

  [[nodiscard]] bool Accepted() const noexcept { return record.InUse(); }
};

struct RecyclingFile {
  std::vector<SpectralPoint> points;
  LoadReport report;

  [[nodiscard]] bool Accepted() const noexcept { return !points.empty(); }
};

/// A file that cannot be read has no points; the report says why.
[[nodiscard]] LampFile ReadLampFile(const std::filesystem::path& file);
[[nodiscard]] OpticsFile ReadOpticsFile(const std::filesystem::path& file);
[[nodiscard]] RecyclingFile ReadRecyclingFile(const std::filesystem::path& file);

/// The same from lines at hand.
[[nodiscard]] LampFile ReadLamp(Parse& lines);
[[nodiscard]] OpticsFile ReadOptics(Parse& lines);
[[nodiscard]] RecyclingFile ReadRecycling(Parse& lines);

}  // namespace lamp_optics
