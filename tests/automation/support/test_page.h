// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <string>

#include "automation/support/test_form.h"
#include "host/gui/gui_registry.h"
#include "host/gui/page_services.h"
#include "host/gui/tool_property_page.h"

namespace test {

inline constexpr const char* kTestTool = "AutomationTestTool";

/// A page around a TestForm. Its data are one text, the field "Frame Rate"; "0" is refused, and
/// "stop" as well but with a question.
class TestPage : public Framework::ToolPropertyPage, public Framework::PageServices {
 public:
  TestPage() : ToolPropertyPage(kTestTool, 1, 0) { SetTitle("Test page"); }

  void InitDialog() override;
  int OnApply() override;
  bool ConfigureInTransform(const std::vector<const char*>&) override { return true; }
  bool ConfigureOutTransform(const std::vector<const char*>&) override { return true; }
  bool CommitToRunTimeDB() override { return true; }
  bool ReadFromRunTimeDB() override { return true; }
  [[nodiscard]] bool DataShown() const override { return true; }
  [[nodiscard]] bool InTransformLoaded() const override { return true; }
  [[nodiscard]] bool OutTransformLoaded() const override { return true; }
  [[nodiscard]] platform::xml::Document ExportData() const override;
  void ImportData(const platform::xml::Document& document) override;
  [[nodiscard]] Findings CheckData() const override { return {}; }
  [[nodiscard]] std::optional<std::string> Explain(const std::string&) const override {
    return std::nullopt;
  }

 protected:
  void CreateControls(QWidget* window) override;

 private:
  void Show();

  std::string rate_ = "60";
  TestForm* form_ = nullptr;
};

/// Registers TestPage under its class name while it lives.
class TestPageRegistration : public Framework::GUIInstantiatorBase {
 public:
  TestPageRegistration() { Framework::GUIPageRegistry().AddInstantiator("TestPage", this); }
  ~TestPageRegistration() override { Framework::GUIPageRegistry().RemoveInstantiator(this); }
  [[nodiscard]] Framework::ToolPropertyPage* CreateInstance(
      const Framework::GUIArguments&) const override {
    return new TestPage;
  }
};

}  // namespace test
