// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QWidget>

namespace lamp_optics {

/// The icon that stands beside a lamp whose response was measured behind optics.
class LampIndicator : public QWidget {
  Q_OBJECT

 public:
  explicit LampIndicator(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace lamp_optics
