// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>
#include <optional>

#include "host/data/illum_characteristics.h"

namespace illuminators {

/// A picture of what the three times of an illuminator mean, drawn to scale from its own values:
/// the drive signal over the light that follows it.
class TimingDiagram : public QWidget {
  Q_OBJECT

 public:
  explicit TimingDiagram(QWidget* parent = nullptr);

  /// Nothing shows that the row has no illuminator.
  void Show(const std::optional<IllumCharacteristics>& illuminator);

  [[nodiscard]] QSize sizeHint() const override { return {560, 250}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {380, 210}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Frame;

  [[nodiscard]] Frame MakeFrame() const;
  void DrawTraces(QPainter& painter, const Frame& frame) const;
  void DrawTimes(QPainter& painter, const Frame& frame) const;
  void DrawScale(QPainter& painter, const Frame& frame) const;
  void DrawWords(QPainter& painter) const;

  std::optional<IllumCharacteristics> illuminator_;
  QString words_;
};

}  // namespace illuminators
