// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <cstddef>
#include <map>
#include <optional>
#include <vector>

#include "pages/lamp_aging/rules/bin_rules.h"
#include "pages/lamp_aging/rules/curve.h"

class QLabel;
class QLineEdit;
class QSlider;

namespace GUI {
class LineChart;
}

namespace lamp_aging {

/// The amplitude over the feedback value: the bins as steps with their overlaps, the limits of the
/// amplitude, the selected bin, and a probe that reads one feedback value, typed or dragged.
class AgingCurve : public QWidget {
  Q_OBJECT

 public:
  explicit AgingCurve(QWidget* parent = nullptr);

  void ShowFeedback(const BinTable& table, const Limits& limits);
  /// One amplitude whatever the feedback value; there is nothing to probe.
  void ShowNoFeedback(const BinTable& table, const Limits& limits);
  /// Highlights a bin, or none.
  void HighlightBin(std::optional<std::size_t> number);

 signals:
  /// The person clicked on a bin of the curve.
  void binClicked(std::size_t number);

 private:
  void Draw();
  void DrawSteps();
  void DrawLane(const std::vector<CurveStep>& lane, const QString& name);
  /// What the curve of a ballast without feedback is.
  [[nodiscard]] std::vector<CurveStep> FlatStep() const;
  void DrawOverlaps();
  void DrawLimits();
  void DrawSelection();
  void DrawProbe();
  /// The largest feedback value that the table covers, at least 1.
  [[nodiscard]] double LastFeedback() const;
  void SetHome();
  void TakeTypedProbe(const QString& text);
  void MoveProbe(int feedback);
  void EmitClicked(int series, int index);

  BinTable table_;
  Limits limits_;
  bool feedback_ = true;
  std::optional<std::size_t> selected_;
  int probe_ = 0;

  GUI::LineChart* chart_ = nullptr;
  QLineEdit* probeBox_ = nullptr;
  QSlider* probeSlider_ = nullptr;
  QLabel* probeText_ = nullptr;
  /// For each series that draws bins, the bin number of each of its points.
  std::map<int, std::vector<std::size_t>> binsOfSeries_;
  int selectionSeries_ = -1;
  int probeSeries_ = -1;
};

}  // namespace lamp_aging
