// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>

#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"

class OstProject;
class QLineEdit;
struct PixmeldControlData;

/// The timing of the pixel-shift actuator. Values are taken when the page is applied.
class PixmeldPage : public Framework::ToolPropertyPage {
 public:
  PixmeldPage();

  /// The object to edit; it stays the wrapper's.
  void SetData(PixmeldControlData* data) noexcept { data_ = data; }
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const PixmeldControlData& data,
                                          const OstProject* project);

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void Show();
  bool Take();

  PixmeldControlData* data_ = nullptr;
  std::array<QLineEdit*, 3> boxes_{};
};
