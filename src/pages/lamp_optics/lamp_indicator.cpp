// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/lamp_indicator.h"

#include <QPainter>

#include "host/gui/slow_tool_tip.h"
#include "widgets/icons.h"

namespace lamp_optics {

LampIndicator::LampIndicator(QWidget* parent) : QWidget(parent) {
  constexpr int kSide = 18;
  setFixedSize(kSide, kSide);
  // The list beside it keeps its width.
  QSizePolicy policy = sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  const QString words = tr("The lamp's response was measured behind optics.");
  setAccessibleDescription(words);
  Framework::SetSlowToolTip(*this, words);
}

void LampIndicator::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  GUI::Icon(GUI::Image::kLens).paint(&painter, rect());
}

}  // namespace lamp_optics
