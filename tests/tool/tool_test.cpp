// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "host/gui/class_registry.h"
#include "host/gui/extension_module.h"
#include "host/gui/gui_registry.h"
#include "host/gui/ost_doc_template.h"
#include "host/gui/tool.h"
#include "host/gui/tool_document.h"
#include "host/gui/tool_frame.h"
#include "host/gui/tool_property_page.h"
#include "host/gui/tool_view.h"
#include "host/project/ost_exception.h"
#include "host/project/ost_project.h"
#include "host/project/run_time_db.h"
#include "support/fault_of.h"
#include "support/open_project.h"

namespace {

using Framework::ClassRegistry;
using Framework::Tool;
using testing::ElementsAre;

constexpr const char* kName = "VeskSysDefTool";

/// Writes down what a tool asks of its project.
class RecordingProject : public OstProject {
 public:
  explicit RecordingProject(bool accepts) : accepts_(accepts) {}
  bool AcceptsTools() override {
    calls.emplace_back("accepts?");
    return accepts_;
  }
  void OnToolAttach(OstTool* tool, bool attached) override {
    calls.push_back(std::string(tool->GetToolName()) + (attached ? " attached" : " refused"));
  }
  void OnBeforeSave() override { calls.emplace_back("before save"); }

  std::vector<std::string> calls;

 private:
  bool accepts_;
};

/// The tool as the host makes it from the loaded library.
class ToolTest : public testing::Test {
 protected:
  ToolTest() {
    { const test::OpenProject loadsTheLibrary("<RunTimeDB/>"); }
    tool_.reset(dynamic_cast<Tool*>(ClassRegistry::Instance().Create("VeskSystemDefinitionTool")));
  }
  std::unique_ptr<Tool> tool_;
};

TEST_F(ToolTest, AttachesOnlyToProjectsThatAccept) {
  RecordingProject yes(true);
  RecordingProject no(false);
  tool_->SetProject(nullptr);
  EXPECT_EQ(tool_->GetProject(), nullptr);
  tool_->SetProject(&no);
  EXPECT_EQ(tool_->GetProject(), nullptr);
  EXPECT_THAT(no.calls, ElementsAre("accepts?", "VeskSysDefTool refused"));
  tool_->SetProject(&yes);
  EXPECT_EQ(tool_->GetProject(), &yes);
  EXPECT_THAT(yes.calls, ElementsAre("accepts?", "VeskSysDefTool attached"));
  no.calls.clear();
  tool_->SetProject(&no);
  tool_->SetProject(nullptr);
  EXPECT_EQ(tool_->GetProject(), &yes);
  // What was attached before is what a save still goes to.
  EXPECT_EQ(tool_->Save(), 1);
  EXPECT_EQ(yes.calls.back(), "before save");
  EXPECT_THAT(no.calls, ElementsAre("accepts?", "VeskSysDefTool refused"));
}

TEST_F(ToolTest, SavesWhatTheBaseSavesAlsoWithoutAProject) {
  const test::TempFolder folder;
  Framework::RunTimeDB database(folder.Path() / "db.xml");
  platform::xml::Document document;
  document.CreateRoot("RunTimeDB").AppendElement("A");
  database.SetDOM(document);
  tool_->SetRunTimeDB(&database);
  tool_->SetNeedToSave(1);
  EXPECT_EQ(tool_->Save(), 1);
  EXPECT_FALSE(tool_->NeedToSave());
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "db.xml"));
}

TEST_F(ToolTest, KnowsEveryPartByOneName) {
  EXPECT_EQ(Tool::GetInstance(kName), tool_.get());
  EXPECT_EQ(tool_->GetTitle(), "System Definition");
  const auto* frame = dynamic_cast<Framework::ToolFrame*>(tool_->OpenGui());
  ASSERT_NE(frame, nullptr);
  const OstDocTemplate& made = *tool_->GetDocTemplate();
  EXPECT_EQ(made.ResourceId(), 18001u);
  EXPECT_EQ(made.Document()->ToolName(), kName);
  EXPECT_EQ(made.Document()->DocType(), "veskdef");
  EXPECT_EQ(frame->ToolName(), kName);
  EXPECT_EQ(frame->View()->ToolName(), kName);
  EXPECT_THROW(std::unique_ptr<Framework::DynamicObject>(
                   ClassRegistry::Instance().Create("VeskSystemDefinitionTool")),
               OstException);
  tool_.reset();
  EXPECT_EQ(Tool::GetInstance(kName), nullptr);
}

TEST_F(ToolTest, TheLibraryIsAnExtensionWhileItIsAttached) {
  const auto* module = Framework::FindExtensionModule("VeskSystemDefinition");
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(module->strings.at(1), "VeskSystemDefinitionTool");
  EXPECT_FALSE(Framework::RegisterExtensionModule(*module));
}

TEST_F(ToolTest, PagesThatFindNoToolCannotBeMade) {
  tool_.reset();
  for (const std::string& name : Framework::GUIPageRegistry().Names()) {
    const auto* instantiator = Framework::GUIPageRegistry().Find(name);
    EXPECT_EQ(test::FaultOf<std::exception>([&] { (void)instantiator->CreateInstance({}); }),
              "Invalid toolname")
        << name;
  }
}

}  // namespace
