// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/gui/tool_property_page.h"
#include "host/project/finding.h"
#include "pages/lamp_aging/rules/bin_rules.h"
#include "pages/lamp_aging/rules/spin_factors.h"
#include "pages/lamp_aging/rules/working_tables.h"

class OstProject;
class QAbstractButton;
class QComboBox;
class QLabel;

namespace lamp_aging {
class AgingCurve;
class BinList;
}  // namespace lamp_aging

/// The pulse amplitudes over the lamp's life, a table for each spin factor. Every completed edit is
/// in the data at once.
class SlrPulsePage : public Framework::ToolPropertyPage {
 public:
  static constexpr unsigned class_version = 1;

  SlrPulsePage();

  /// The object to edit; it stays the wrapper's.
  void SetData(LampAgingPageData* data) noexcept { data_ = data; }
  void InitDialog() override;
  /// Without stored tables of a spin factor the page goes on with those that it shows.
  void DropEdits() override { tables_ = {}; }
  int UpdateData(int save) override;

  [[nodiscard]] static Findings CheckData(const LampAgingPageData& data, const OstProject* project);

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("BallastType", ballastType_);
  }

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void FillSpinFactors();
  [[nodiscard]] double SelectedSpinFactor() const;
  void LoadTables();
  void StoreTables();
  void RefreshList();
  void ShowBallastType();

  void ChooseSpinFactor();
  void ChooseFeedback();
  void ChooseNoFeedback();
  void AddBin();
  void ChangeBin();
  void ChangeSelectedBin(std::size_t number);
  void ChangeOnlyBin();
  void DeleteBin();
  /// The bin the person left in the dialog; nothing when it was cancelled.
  [[nodiscard]] std::optional<lamp_aging::Bin> AskForBin(const lamp_aging::Bin& shown,
                                                         bool limitsEditable);
  [[nodiscard]] bool SendsFeedback() const noexcept {
    return ballastType_ == lamp_aging::kSendsFeedback;
  }

  LampAgingPageData* data_ = nullptr;
  std::vector<lamp_aging::SpinFactor> spinFactors_;  ///< as offered, in the order added
  std::uint32_t ballastType_ = lamp_aging::kNoFeedback;
  lamp_aging::WorkingTables tables_;
  lamp_aging::Limits limits_;

  QComboBox* spinFactorBox_ = nullptr;
  QAbstractButton* feedbackButton_ = nullptr;
  QAbstractButton* noFeedbackButton_ = nullptr;
  QAbstractButton* addButton_ = nullptr;
  QAbstractButton* deleteButton_ = nullptr;
  QLabel* caption_ = nullptr;
  lamp_aging::BinList* list_ = nullptr;
  lamp_aging::AgingCurve* curve_ = nullptr;
};
