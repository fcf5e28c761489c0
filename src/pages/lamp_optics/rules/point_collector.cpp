// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/point_collector.h"

#include <algorithm>
#include <string>

#include "host/text/leading_number.h"

namespace lamp_optics {
namespace {

/// Wavelengths up to here are remembered to find doubled ones anywhere in a file; beyond, only
/// neighbours are compared.
constexpr int kMaxRememberedNm = 1 << 20;
/// Room for points grows by half, so that growing never holds three times what is there.
constexpr std::size_t kFirstPoints = 1024;

/// Whether the text says the whole number and no more, as "450" and "450.0" do.
bool IsAll(const leading_number::Field<int>& number, std::string_view text) {
  if (number.whole) return true;
  const auto exact = leading_number::LeadingDouble(text);
  return exact && exact->whole && exact->value == number.value;
}

}  // namespace

void PointCollector::TakeLine(const FileLine& line) {
  const auto nm = leading_number::LeadingInt(line.first);
  const auto value = leading_number::LeadingDouble(line.rest);
  if (!nm || !value) {
    report_.Add(line.number, "no data line, left out: " + Quoted(line.text));
    return;
  }
  if (!value->whole || !IsAll(*nm, line.first)) {
    report_.Add(line.number, "only the beginning of the numbers was taken: " + Quoted(line.text));
  }
  Add(line.number, {nm->value, value->value});
}

void PointCollector::Add(std::size_t line, SpectralPoint point) {
  NoteOrder(line, point.Wavelength);
  if (points_.size() == points_.capacity()) {
    points_.reserve(std::max(kFirstPoints, points_.capacity() + points_.capacity() / 2));
  }
  if (points_.empty() || point.Value > report_.peak.Value) report_.peak = point;
  report_.lowest = points_.empty() ? point.Wavelength : std::min(report_.lowest, point.Wavelength);
  report_.highest =
      points_.empty() ? point.Wavelength : std::max(report_.highest, point.Wavelength);
  points_.push_back(point);
  report_.points = points_.size();
}

void PointCollector::NoteOrder(std::size_t line, int wavelength) {
  const bool doubled = SeenBefore(wavelength);
  if (points_.empty()) return;
  const int last = points_.back().Wavelength;
  if (doubled || wavelength == last) {
    report_.Add(line, "wavelength " + std::to_string(wavelength) + " occurs again");
  } else if (wavelength < last) {
    report_.Add(line, "wavelength " + std::to_string(wavelength) + " is out of order, behind " +
                          std::to_string(last));
  }
}

bool PointCollector::SeenBefore(int wavelength) {
  if (wavelength < 0 || wavelength >= kMaxRememberedNm) return false;
  const auto place = static_cast<std::size_t>(wavelength);
  if (place >= seen_.size()) seen_.resize(std::max(place + 1, 2 * seen_.size()));
  const bool seen = seen_[place];
  seen_[place] = true;
  return seen;
}

}  // namespace lamp_optics
