// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/lamp_optics_check.h"

#include <algorithm>
#include <string>

#include "host/project/finding_report.h"
#include "pages/lamp_optics/rules/library.h"
#include "pages/lamp_optics/rules/model_curve.h"
#include "pages/lamp_optics/rules/name_limit.h"

namespace lamp_optics {
namespace {

/// How the records of one library are called in findings.
struct Wording {
  const char* field;
  const char* record;
  const char* prefix;
};
constexpr Wording kLamps{"Lamp/Name", "lamp ", "lamp."};
constexpr Wording kOptics{"Optics/Name", "optics ", "optics."};

template <class Record>
void CheckRecord(const Record& record, const std::string& name, const Wording& wording,
                 FindingReport& report) {
  const std::string prefix = wording.prefix;
  if (CharacterCount(record.Name) > kMaxNameCharacters) {
    report.Error(prefix + "name-length", wording.field,
                 name + " has a name of more than 255 characters");
  }
  const auto fallsBack = [](const SpectralPoint& a, const SpectralPoint& b) {
    return a.Wavelength >= b.Wavelength;
  };
  if (std::ranges::adjacent_find(record.Response, fallsBack) != record.Response.end()) {
    report.Warning(prefix + "response-order", wording.field,
                   "the wavelengths of " + name + " do not rise from point to point");
  }
}

template <class Records>
void CheckRecords(const Records& records, int current, const Wording& wording,
                  FindingReport& report) {
  const std::string prefix = wording.prefix;
  const int used = CountInUse(records);
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (!records[i].InUse()) continue;
    const std::string name = wording.record + std::to_string(i + 1);
    CheckRecord(records[i], name, wording, report);
    const auto same = [&](const auto& other) {
      return other.InUse() && other.Name == records[i].Name;
    };
    if (std::any_of(records.begin(), records.begin() + static_cast<std::ptrdiff_t>(i), same)) {
      report.Warning(prefix + "name-twice", wording.field,
                     name + " has the name \"" + records[i].Name + "\" of another one");
    }
    if (static_cast<int>(i) >= used) {
      report.Warning(prefix + "hole", wording.field, name + " stands behind a free place");
    }
  }
  const bool none = current == -1;
  const bool known = current >= 0 && current < static_cast<int>(records.size()) &&
                     records[static_cast<std::size_t>(current)].InUse();
  if (!none && !known) {
    report.Error(
        prefix + "current", wording.field,
        "the current one is number " + std::to_string(current + 1) + ", which is not there");
  } else if (none && used > 0) {
    report.Warning(prefix + "no-current", wording.field, "none is current");
  }
}

void CheckModel(const OpticsModel& model, FindingReport& report) {
  for (const ModelField& field : ModelFields()) {
    report.Within(model.*field.member, field.low, field.high, "optics.model-range", field.name,
                  field.name);
  }
  if (model.Sw50Intersect > model.Lw50Intersect) {
    report.Warning("optics.model-edges", "50% Intersect SW",
                   "the optics model passes nothing: its SW edge is above its LW edge");
  }
}

}  // namespace

Findings CheckLampOptics(const LampOpticsData& data) {
  FindingReport report;
  CheckRecords(data.Lamp.Lamps, data.Lamp.CurrentLamp, kLamps, report);
  for (const SLampRecord& lamp : data.Lamp.Lamps) {
    if (!lamp.InUse()) continue;
    report.Within(lamp.TotalLumens, 0, kMaxTotalLumens, "lamp.lumens-range", "Total Lumens",
                  "the total of lumens of \"" + lamp.Name + "\"");
  }
  CheckRecords(data.Optics.Optics, data.Optics.CurrentOptics, kOptics, report);
  report.Within(data.Optics.FullOnContrastRatio, kMinContrast, kMaxContrast,
                "optics.contrast-range", "Full-On Contrast Ratio", "the full-on contrast ratio");
  CheckModel(data.Optics.Model, report);
  return report.Take();
}

}  // namespace lamp_optics
