// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "framework/gui_wrapper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/gui_instantiator.h"
#include "host/project/ost_project.h"
#include "platform/text/number.h"
#include "support/fault_of.h"
#include "support/temp_folder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Data {
  double ratio = 1.5;
  std::string label = "default";

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("ratio", ratio) & zel::archive::nvp("label", label);
  }
};

/// Writes down what it is asked, and answers as it is told.
class Page : public Framework::ToolPropertyPage {
 public:
  Page() : ToolPropertyPage("WrapperTestTool", 1, 0) {}
  void SetData(Data* given) { data = given; }
  void InitDialog() override { calls.emplace_back("init"); }
  int UpdateData(int save) override {
    calls.emplace_back(save ? "save" : "load");
    if (save && data) data->ratio = typed;
    return takes;
  }
  int OnApply() override {
    calls.emplace_back("apply");
    return accepts;
  }
  static Findings CheckData(const Data& data, const OstProject* /*project*/) {
    if (data.ratio >= 0) return {};
    return {{Severity::kError, "test.ratio", "Ratio", "negative"}};
  }

  static inline Data* data = nullptr;
  static inline std::vector<std::string> calls;
  static inline double typed = 2.5;
  static inline int takes = 1;
  static inline int accepts = 1;
};

constexpr const char* kIn =
    R"xml(<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:template match="/"><Inputs><ratio><xsl:value-of select="RunTimeDB/Wheel/@ratio"/></ratio>
<label><xsl:value-of select="count(RunTimeDB/*)"/></label></Inputs></xsl:template></xsl:stylesheet>)xml";
constexpr const char* kOut =
    R"xml(<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:template match="/RunTimeDB"><RunTimeDB><Wheel ratio="{ModuleOutputs/ratio}"/>
</RunTimeDB></xsl:template><xsl:template match="RunTimeDB/Wheel"/></xsl:stylesheet>)xml";

class GUIWrapperTest : public testing::Test {
 protected:
  using In = Framework::XMLInTransformPolicy<Data>;
  using Out = Framework::XMLOutTransformPolicy<Data>;
  using Wrapper = Framework::GUIWrapper<Page, In, Out>;

  GUIWrapperTest() {
    Page::calls.clear();
    Page::data = nullptr;
    Page::typed = 2.5;
    Page::takes = Page::accepts = 1;
    folder_.Write("p.ostproj", "<OstProject/>");
    folder_.Write("support/in.xsl", kIn);
    folder_.Write("support/out.xsl", kOut);
    folder_.Write("runtimedb.xml", kDatabase);
    project_ = std::make_unique<OstProject>(folder_.Path() / "p.ostproj");
    database_ = std::make_unique<Framework::RunTimeDB>(project_->RunTimeDBFile());
    tool_ = std::make_unique<Framework::Tool>("WrapperTestTool", "Test", false);
    tool_->SetProject(project_.get());
    tool_->SetRunTimeDB(database_.get());
    wrapper_ = std::make_unique<Wrapper>();
  }
  void Configure() {
    wrapper_->ConfigureInTransform({"in.xsl"});
    wrapper_->ConfigureOutTransform({"out.xsl"});
  }

  static constexpr const char* kDatabase = "<RunTimeDB><Wheel ratio=\"4\"/><Lamp/></RunTimeDB>\n";
  test::TempFolder folder_;
  std::unique_ptr<OstProject> project_;
  std::unique_ptr<Framework::RunTimeDB> database_;
  std::unique_ptr<Framework::Tool> tool_;
  std::unique_ptr<Wrapper> wrapper_;
};

TEST_F(GUIWrapperTest, MovesTheDataBothWays) {
  Configure();
  wrapper_->InitDialog();
  ASSERT_NE(Page::data, nullptr);
  EXPECT_EQ(Page::data->ratio, 4);
  EXPECT_EQ(Page::data->label, "1");  // of the stylesheet's own fragments, Wheel is there
  EXPECT_EQ(wrapper_->OnApply(), 1);
  EXPECT_THAT(Page::calls, ElementsAre("init", "save", "apply", "load"));
  EXPECT_EQ(database_->Text(), "<RunTimeDB><Wheel ratio=\"2.5\"/><Lamp/></RunTimeDB>\n");
}

TEST_F(GUIWrapperTest, FurtherNamesAreTheFragmentsInTheirOrder) {
  wrapper_->ConfigureInTransform({"in.xsl", "Lamp", "Wheel"});
  wrapper_->InitDialog();
  EXPECT_EQ(Page::data->label, "2");
  In policy("WrapperTestTool");
  policy.LoadTransform({"in.xsl", "Lamp", "Wheel"});
  EXPECT_THAT(policy.GetNeededFragmentNames(), ElementsAre("Lamp", "Wheel"));
  policy.LoadTransform({"in.xsl"});
  EXPECT_THAT(policy.GetNeededFragmentNames(), ElementsAre("Wheel"));
  EXPECT_TRUE(policy.IsXMLIn());
  EXPECT_FALSE(policy.IsXMLOut());
}

TEST_F(GUIWrapperTest, WithoutAStylesheetDefaultsAreShownAndNothingIsStored) {
  for (const std::vector<const char*>& names :
       {std::vector<const char*>{}, {""}, {"missing.xsl"}}) {
    wrapper_->ConfigureInTransform(names);
    wrapper_->ConfigureOutTransform(names);
    EXPECT_FALSE(wrapper_->InTransformLoaded());
    wrapper_->InitDialog();
    EXPECT_EQ(Page::data->label, "default");
    EXPECT_EQ(wrapper_->OnApply(), 1);
    EXPECT_EQ(database_->Text(), kDatabase);
  }
}

TEST_F(GUIWrapperTest, ApplyBeforeItWasShownStoresNothing) {
  Configure();
  EXPECT_EQ(wrapper_->OnApply(), 1);
  EXPECT_TRUE(Page::calls.empty());
  EXPECT_FALSE(database_->Modified());
}

TEST_F(GUIWrapperTest, ARefusalStoresAndRefreshesNothing) {
  Configure();
  wrapper_->InitDialog();
  Page::accepts = 0;
  EXPECT_EQ(wrapper_->OnApply(), 0);
  EXPECT_THAT(Page::calls, ElementsAre("init", "save", "apply"));
  Page::calls.clear();
  Page::takes = 0;
  EXPECT_EQ(wrapper_->OnApply(), 0);
  EXPECT_THAT(Page::calls, ElementsAre("save"));
  EXPECT_FALSE(database_->Modified());
}

TEST_F(GUIWrapperTest, DataThatCannotBeReadAreNotShown) {
  database_.reset();
  folder_.Write("runtimedb.xml", "<RunTimeDB><Wheel ratio=\"4 x\"/></RunTimeDB>");
  database_ = std::make_unique<Framework::RunTimeDB>(project_->RunTimeDBFile());
  tool_->SetRunTimeDB(database_.get());
  Configure();
  testing::internal::CaptureStderr();
  wrapper_->InitDialog();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: can't convert text to data\n");
  EXPECT_EQ(Page::data, nullptr);
  EXPECT_TRUE(Page::calls.empty());
  EXPECT_FALSE(wrapper_->DataShown());
  tool_->SetRunTimeDB(nullptr);
  EXPECT_FALSE(wrapper_->ReadFromRunTimeDB());
  EXPECT_FALSE(wrapper_->WriteToRunTimeDB());
}

TEST_F(GUIWrapperTest, TextThatXmlCannotCarryStoresNothing) {
  Configure();
  wrapper_->InitDialog();
  Page::data->label = "bell \a";
  testing::internal::CaptureStderr();
  EXPECT_EQ(wrapper_->OnApply(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: can't convert data to text\n");
  EXPECT_FALSE(database_->Modified());
}

TEST_F(GUIWrapperTest, AStylesheetThatIsThereAndCannotBeOpenedThrows) {
  const auto folder = folder_.Path() / "support/folder.xsl";
  std::filesystem::create_directory(folder);
  EXPECT_EQ(test::FaultOf<OstException>([&] { wrapper_->ConfigureInTransform({"folder.xsl"}); }),
            "Cannot open archive for input: " + folder.string());
}

TEST_F(GUIWrapperTest, ImportTakesAWholeObjectOrNone) {
  Configure();
  wrapper_->InitDialog();
  const auto import = [&](const char* xml) {
    wrapper_->ImportData(platform::xml::Document::Parse(xml));
  };
  import("<ModuleOutputs><ratio>-1</ratio></ModuleOutputs>");
  EXPECT_EQ(Page::data->ratio, -1);
  EXPECT_EQ(wrapper_->CheckData().size(), 1u);
  EXPECT_THROW(import("<Inputs><label>half</label><ratio>x</ratio></Inputs>"), std::exception);
  EXPECT_THROW(import("<Outputs/>"), OstException);
  EXPECT_EQ(Page::data->label, "1");
  EXPECT_EQ(wrapper_->ExportData().ToText(platform::xml::TextForm::kBare),
            "<ModuleOutputs><ratio>-1</ratio><label>1</label></ModuleOutputs>");
}

TEST(GUIInstantiator, EntersItselfInTheRegistryWhileItLives) {
  {
    const Framework::XMLPageInstantiator<Page, Data> row("InstantiatorTestPage");
    EXPECT_EQ(Framework::GUIPageRegistry().Find("InstantiatorTestPage"), &row);
    EXPECT_THROW(static_cast<void>(row.CreateInstance({})), std::runtime_error);
  }
  EXPECT_EQ(Framework::GUIPageRegistry().Find("InstantiatorTestPage"), nullptr);
}

}  // namespace
