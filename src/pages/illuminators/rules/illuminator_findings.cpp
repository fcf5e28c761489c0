// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/rules/illuminator_findings.h"

#include "pages/illuminators/rules/illuminator_rows.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace illuminators {
namespace {

using platform::Fill;

std::string NameOf(int type) { return std::string(IllumCharacteristics::GetStrForIllumType(type)); }

std::string RowField(int row, const char* field) {
  return Fill("Row %d/%s", {std::to_string(row), field});
}

void CheckTimes(const IllumCharacteristics& illuminator, int type, Findings& findings) {
  for (const TimeField& field : TimeFields()) {
    const double time = illuminator.*field.member;
    if (time >= kMinTimeUs && time <= kMaxTimeUs) {
      continue;
    }
    findings.push_back(
        {Severity::kError, "illuminators.time-range", RowField(illuminator.Row, field.name),
         Fill("%s: %s %g is outside %g to %g usecs",
              {NameOf(type), field.name, platform::GeneralText(time),
               platform::GeneralText(kMinTimeUs), platform::GeneralText(kMaxTimeUs)})});
  }
}

bool RowFits(int row, int type) noexcept {
  if (type < kFixedRows) {
    return row == type;
  }
  return row == IllumCharacteristics::kNotShown || (row >= kFixedRows && row < kRows);
}

void CheckPlace(const IlluminatorsPageData& data, int type, Findings& findings) {
  const IllumCharacteristics& illuminator = data.characteristics[static_cast<std::size_t>(type)];
  const int row = illuminator.Row;
  const std::string field = RowField(row, "Illuminator");
  const std::string name = NameOf(type);
  if (illuminator.Type != type) {
    findings.push_back({Severity::kError, "illuminators.type", field,
                        Fill("%s: the entry is of type %d, not %d",
                             {name, std::to_string(illuminator.Type), std::to_string(type)})});
  }
  if (!RowFits(row, type)) {
    findings.push_back({Severity::kError, "illuminators.row", field,
                        Fill("%s cannot stand in row %d", {name, std::to_string(row)})});
  } else if (row != IllumCharacteristics::kNotShown && ShownIn(data, row) != &illuminator) {
    findings.push_back(
        {Severity::kError, "illuminators.shared-row", field,
         Fill("%s stands in row %d with another illuminator", {name, std::to_string(row)})});
  }
}

void CheckOffer(const IlluminatorsPageData& data, int type, Findings& findings) {
  const int row = data.characteristics[static_cast<std::size_t>(type)].Row;
  if (type < kFixedRows || row == IllumCharacteristics::kNotShown) {
    return;
  }
  if (!data.allowed[static_cast<std::size_t>(type)]) {
    findings.push_back({Severity::kWarning, "illuminators.not-allowed",
                        RowField(row, "Illuminator"),
                        Fill("%s is used but not allowed", {NameOf(type)})});
  }
  if (row >= ShownRows(data)) {
    findings.push_back(
        {Severity::kWarning, "illuminators.hidden-row", RowField(row, "Illuminator"),
         Fill("%s stands in row %d, which is not shown", {NameOf(type), std::to_string(row)})});
  }
}

}  // namespace

Findings Check(const IlluminatorsPageData& data) {
  Findings findings;
  for (int type = 0; type < kRows; ++type) {
    CheckTimes(data.characteristics[static_cast<std::size_t>(type)], type, findings);
    CheckPlace(data, type, findings);
    CheckOffer(data, type, findings);
  }
  return findings;
}

}  // namespace illuminators
