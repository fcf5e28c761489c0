// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>

#include "framework/gui_wrapper_base.h"
#include "host/gui/tool.h"
#include "host/project/ost_exception.h"

namespace Framework {

/// Forwards the page operations to a page that has no data object.
template <class Page>
class GUIWrapperNoOp : public GUIWrapperBase {
 public:
  GUIWrapperNoOp() : GUIWrapperBase(std::make_unique<Page>()) {}

  void InitDialog() override {
    loaded_ = false;
    dataShown_ = ReadFromRunTimeDB();
    if (dataShown_) {
      HandDataToPage();
      page_->InitDialog();
    }
    loaded_ = true;
  }
  void DropEdits() override { page_->DropEdits(); }
  int OnSetActive() override { return page_->OnSetActive(); }
  int OnKillActive() override { return page_->OnKillActive(); }
  int OnApply() override {
    if (!loaded_) return 1;
    if (!page_->UpdateData(1)) return 0;
    if (!page_->OnApply()) return 0;
    page_->UpdateData(0);
    return CommitToRunTimeDB() ? 1 : 0;
  }
  int UpdateData(int save) override { return page_->UpdateData(save); }

  bool CommitToRunTimeDB() override { return WriteToRunTimeDB(); }
  virtual void HandDataToPage() {}
  bool ReadFromRunTimeDB() override { return Database() != nullptr; }
  virtual bool WriteToRunTimeDB() { return Database() != nullptr; }

  [[nodiscard]] bool InTransformLoaded() const override { return true; }
  [[nodiscard]] bool OutTransformLoaded() const override { return true; }
  [[nodiscard]] platform::xml::Document ExportData() const override {
    platform::xml::Document empty;
    empty.CreateRoot("ModuleOutputs");
    return empty;
  }
  void ImportData(const platform::xml::Document& /*document*/) override {
    throw OstException("The page " + page_->Title().toStdString() + " has no data");
  }
  [[nodiscard]] Findings CheckData() const override { return {}; }
  [[nodiscard]] std::optional<std::string> Explain(const std::string& /*what*/) const override {
    return std::nullopt;
  }

 protected:
  [[nodiscard]] Page& WrappedAs() const { return static_cast<Page&>(*page_); }
  /// The run-time database of the page's tool, or null.
  [[nodiscard]] RunTimeDB* Database() const {
    Tool* tool = page_->GetTool();
    return tool ? tool->GetRunTimeDB() : nullptr;
  }
  [[nodiscard]] const OstProject* Project() const {
    const Tool* tool = page_->GetTool();
    return tool ? tool->GetProject() : nullptr;
  }
};

}  // namespace Framework
