// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/rules/illuminator_rows.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace illuminators {
namespace {

std::string NameOf(std::int32_t type) {
  return std::string(IllumCharacteristics::GetStrForIllumType(type));
}

/// The illuminators beyond red, green and blue.
template <class Data>
auto Extra(Data& data) noexcept {
  return std::span(data.characteristics).subspan(kFixedRows);
}

bool StoreTimes(IllumCharacteristics& illuminator, const TimeEdits& edits) {
  bool changed = false;
  for (std::size_t i = 0; i < edits.size(); ++i) {
    double& stored = illuminator.*TimeFields()[i].member;
    if (edits[i] && *edits[i] != stored) {
      stored = *edits[i];
      changed = true;
    }
  }
  return changed;
}

// Whether it belongs into the row, when it is not there, or out of it, when it is.
bool MustMove(const IllumCharacteristics& illuminator, int row,
              std::optional<std::string_view> chosen) {
  if (row < kFixedRows || !chosen) {
    return false;
  }
  const bool isChosen = !chosen->empty() && NameOf(illuminator.Type) == *chosen;
  return isChosen != (illuminator.Row == row);
}

}  // namespace

std::optional<Rgb> ColorOf(std::int32_t type) noexcept {
  static constexpr std::array<Rgb, IllumCharacteristics::kTypeCount> kColors{{
      {255, 128, 128},
      {128, 255, 128},
      {128, 128, 255},
      {255, 255, 128},
      {128, 255, 255},
      {255, 128, 255},
      {255, 255, 255},
      {208, 208, 208},
  }};
  if (type < 0 || type >= IllumCharacteristics::kTypeCount) {
    return std::nullopt;
  }
  return kColors[static_cast<std::size_t>(type)];
}

const std::array<TimeField, 3>& TimeFields() noexcept {
  static constexpr std::array<TimeField, 3> kFields{{
      {"Enable Delay", "Enable Delay (see A below)",
       "Enter the enable delay for this illuminator in microseconds.",
       &IllumCharacteristics::EnableDelay},
      {"Disable Delay", "Disable Delay (see B below)",
       "Enter the disable delay for this illuminator in microseconds.",
       &IllumCharacteristics::DisableDelay},
      {"Fall Margin", "Fall Margin (see C below)",
       "Enter the fall margin for this illuminator in microseconds.",
       &IllumCharacteristics::FallMargin},
  }};
  return kFields;
}

int ShownRows(const IlluminatorsPageData& data) noexcept {
  const auto offered = std::span(data.allowed).subspan(kFixedRows);
  return kFixedRows + static_cast<int>(std::ranges::count(offered, true));
}

std::vector<std::string> ShownNames(const IlluminatorsPageData& data) {
  std::vector<std::string> names;
  for (const IllumCharacteristics& illuminator : Extra(data)) {
    if (illuminator.Row != IllumCharacteristics::kNotShown) {
      names.push_back(NameOf(illuminator.Type));
    }
  }
  return names;
}

std::vector<std::string> DropDownContents(const IlluminatorsPageData& data, int row) {
  const std::vector<std::string> shown = ShownNames(data);
  std::vector<std::string> contents{""};
  for (int type = kFixedRows; type < kRows; ++type) {
    const auto place = static_cast<std::size_t>(type);
    std::string name = NameOf(type);
    const bool isFree = data.allowed[place] && std::ranges::find(shown, name) == shown.end();
    if (data.characteristics[place].Row == row || isFree) {
      contents.push_back(std::move(name));
    }
  }
  return contents;
}

bool RowEnabled(const IlluminatorsPageData& data, int row) noexcept {
  return std::ranges::any_of(Extra(data), [row](const IllumCharacteristics& illuminator) {
    return illuminator.Row == row;
  });
}

const IllumCharacteristics* ShownIn(const IlluminatorsPageData& data, int row) noexcept {
  const auto found = std::ranges::find(data.characteristics, row, &IllumCharacteristics::Row);
  return found == data.characteristics.end() ? nullptr : &*found;
}

bool StoreRow(IlluminatorsPageData& data, int row, std::optional<std::string_view> chosen,
              const TimeEdits& edits) {
  bool changed = false;
  for (IllumCharacteristics& illuminator : data.characteristics) {
    const bool wasShown = illuminator.Row == row;
    if (wasShown) {
      changed |= StoreTimes(illuminator, edits);
    }
    if (MustMove(illuminator, row, chosen)) {
      illuminator.Row = wasShown ? IllumCharacteristics::kNotShown : static_cast<std::int16_t>(row);
      changed = true;
    }
  }
  return changed;
}

}  // namespace illuminators
