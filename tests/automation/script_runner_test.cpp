// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/script_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "automation/support/test_page.h"
#include "host/gui/page_host.h"
#include "host/gui/tool.h"
#include "host/project/ost_command_line_info.h"
#include "host/project/ost_project.h"
#include "host/project/run_time_db.h"
#include "support/temp_folder.h"

namespace {

using testing::HasSubstr;

class ScriptRunnerTest : public testing::Test {
 protected:
  ScriptRunnerTest() {
    folder_.Write("support/pages.xml",
                  "<PageTable><Page name='TestPage' in='in.xsl' out='out.xsl'/></PageTable>");
    project_ = std::make_unique<OstProject>(folder_.Write("t.ostproj", "<OstProject/>"));
    database_ = std::make_unique<Framework::RunTimeDB>(
        folder_.Write("runtimedb.xml", "<RunTimeDB><Kept/></RunTimeDB>"));
    tool_.SetProject(project_.get());
    tool_.SetRunTimeDB(database_.get());
  }
  ~ScriptRunnerTest() override { OstCommandLineInfo::c_instance.nonInteractive = false; }

  /// What the script prints, or "!" and its error.
  std::string Run(const std::string& text) {
    const auto error = runner_.RunText(text, "edit.js");
    const std::string printed = printed_.str();
    printed_.str({});
    return error ? printed + '!' + *error : printed;
  }
  /// The same with a page `p` open.
  std::string OnPage(const std::string& text) {
    return Run("var p = sysdef.open('TestPage'); " + text);
  }

  test::TempFolder folder_;
  test::TestPageRegistration registration_;
  std::unique_ptr<OstProject> project_;
  std::unique_ptr<Framework::RunTimeDB> database_;
  Framework::Tool tool_{test::kTestTool, "Test", true};
  Framework::PageHost pages_{tool_};
  bool saves_ = true;
  std::ostringstream printed_;
  automation::ScriptRunner runner_{pages_, [this] { return saves_; }, {"one", "2"}, printed_};
};

TEST_F(ScriptRunnerTest, PrintsValuesAsTheirStrings) {
  EXPECT_EQ(Run("print(1, 12.50, true, 'ä', null, undefined, [1, 2]); print(); print(...args)"),
            "1 12.5 true ä null undefined 1,2\n\none 2\n");
}

TEST_F(ScriptRunnerTest, DrivesAPage) {
  EXPECT_EQ(Run("print(sysdef.pages().includes('TestPage'))"), "true\n");
  EXPECT_EQ(OnPage(R"js(
    const rate = p.control("Frame Rate");
    rate.text = 12.5;
    const shown = rate.text;
    print(p.title, shown, p.apply(), sysdef.needToSave, sysdef.needToBuild, sysdef.log());
    rate.text = "1";
    p.reopen();
    print(rate.text, sysdef.log().length);
    sysdef.needToSave = false;
    print(sysdef.needToSave, sysdef.save(), sysdef.database().includes("<Kept/>"));)js"),
            "Test page 12.5 true true false rate 12.5\n12.5 0\nfalse true true\n");
  saves_ = false;
  EXPECT_EQ(Run("print(sysdef.save())"), "false\n");
}

TEST_F(ScriptRunnerTest, OffersEveryMemberOfAControl) {
  EXPECT_EQ(OnPage(R"js(
    const color = p.control("Color"), all = p.control("Enable all & more");
    print(color.items, color.index, color.text);
    color.choose("Blue");
    all.checked = true;
    print(color.index, all.checked, all.enabled, p.control("Secret").visible);
    const width = p.control("Width (mm)");
    width.text = "";
    width.type("4");
    width.leave();
    p.press("Move up");
    p.control("Slow").click();
    print(width.text, width.tooltip, p.control("Slow").checked);)js"),
            "Red,Green,Blue 0 Red\n2 true true false\n4 in mm true\n");
}

TEST_F(ScriptRunnerTest, OffersEveryMemberOfATable) {
  EXPECT_EQ(
      OnPage(R"js(
    const t = p.table("Grid"), s = JSON.stringify;
    print(t.rows, t.columns, t.headers, t.cell(1, 1));
    t.setCell(0, 0, "edited");
    t.toggle(3, 0);
    t.clickCell(0, 1);
    print(t.cell(0, 0), t.checked(3, 0), t.choices(0, 0), t.editable(0, 1), t.enabled(2));
    t.select(0, 1);
    print(s(t.selected()));
    t.select([[0, 0], [2, 3]]);
    print(s(t.selected()), t.background(0, 0), t.tooltip(1, 0));)js"),
      "4 2 Key,Größe 10\nedited true a,b false false\n[[0,1]]\n[[0,0],[2,3]] #ffc800 row 1\n");
}

TEST_F(ScriptRunnerTest, OpensTabsAndTakesPictures) {
  const std::string file = (folder_.Path() / "page.png").string();
  EXPECT_EQ(OnPage("print(JSON.stringify(p.tabs()[1]), p.tab('Third').title, p.tabs()[2].current);"
                   "p.tab('Third').control('Only Third').text = 'x'; p.screenshot('" +
                   file + "');"),
            "{\"text\":\"Extra\",\"enabled\":false,\"current\":false} Third true\n");
  EXPECT_THAT(folder_.Read("page.png"), HasSubstr("PNG"));
}

TEST_F(ScriptRunnerTest, AnswersQuestionsAndKeepsMessages) {
  EXPECT_EQ(OnPage(R"js(
    const rate = p.control("Frame Rate");
    const show = () => sysdef.messages().map(m => [m.text, m.caption, m.style, m.answer].join("|"));
    sysdef.answer("No");
    rate.text = "0";
    print(p.apply(), show(), show().length);
    rate.text = "stop";
    print(p.apply(), show());
    print(p.apply(), show());)js"),
            "false Not 0.|sysdef|16|OK 0\nfalse Really?|Stop|4|No\ntrue Really?|Stop|4|Yes\n")
      << "a plain message takes no answer from the queue";
}

TEST_F(ScriptRunnerTest, ShowsNoMessageWithoutAPerson) {
  OstCommandLineInfo::c_instance.nonInteractive = true;
  EXPECT_EQ(OnPage("sysdef.answer('Yes'); p.control('Frame Rate').text = 'stop';"
                   "print(p.apply(), sysdef.messages().length)"),
            "false 0\n");
}

TEST_F(ScriptRunnerTest, WorksModalDialogs) {
  EXPECT_EQ(OnPage(R"js(
    let kept;
    sysdef.onDialog(d => {
      kept = d;
      d.control("Answer").text = "42";
      d.press("More");
      print(d.title, d.open, d.control("Answer").text);
      d.press("OK");
    });
    sysdef.onDialog(d => { print(d.title); });
    p.press("Ask");
    print(kept.open);)js"),
            "Inner\nQuestion true 42\nfalse\n");
}

TEST_F(ScriptRunnerTest, MovesDataInAndOut) {
  EXPECT_EQ(Run("print(sysdef.exportData('TestPage'))"),
            "<ModuleOutputs><rate>60</rate></ModuleOutputs>\n");
  EXPECT_EQ(OnPage("sysdef.importData('TestPage', '<Inputs><rate>24</rate></Inputs>');"
                   "print(p.control('Frame Rate').text, sysdef.exportData('TestPage'))"),
            "24 <ModuleOutputs><rate>24</rate></ModuleOutputs>\n");
}

TEST_F(ScriptRunnerTest, NamesTheLineOfWhatGoesWrong) {
  const std::pair<const char*, const char*> faults[] = {
      {"\n\nthrow new Error('two\\nlines');", "3: two lines"},
      {"\nfunction f() {\n  throw new TypeError('deep');\n}\n\nf();", "3: deep"},
      {"\nthrow 'text'", "2: text"},
      {"let a = 1;\nlet b = (;\n", "2: Expected token"},
      {"\nnothing.there", "2: nothing is not defined"},
      {"\nsysdef.open('NoPage')", "2: There is no page NoPage"},
      {"\nprint(sysdef.open('TestPage')\n.control('None'))",
       "no control \"None\" in \"Test page\""},
      {"\n\nsysdef.open('TestPage').control('Total').checked", "3: \"Total\" cannot be checked"},
      {"\n\nsysdef.open('TestPage').control('Secret').text = 1", "3: \"Secret\" is hidden"},
      {"\nsysdef.open('TestPage').tab('Extra')", "2: \"tab Extra\" is disabled"},
      {"\nsysdef.open('TestPage').table('Grid').setCell(9, 0, '')", "2: \"Grid\" has no row 9"},
      {"\nsysdef.open('TestPage').table('Grid').select(1.5, 2)", "2: \"1.5\" is no row number"},
      {"\nsysdef.open('TestPage').table('Grid').select([1, 2])", "2: a block is"},
      {"\nsysdef.answer('Maybe')", "2: \"Maybe\" is no button"},
      {"\nsysdef.onDialog('x')", "2: onDialog takes a function"},
      {"\nsysdef.importData('TestPage', '<Inputs/>')", "2: no element rate"},
      {"\nsysdef.importData('TestPage', '<Inputs>')", "2: "},
      {"sysdef.onDialog(d => {\n\n  "
       "d.press('Nothing');\n});\nsysdef.open('TestPage').press('Ask');",
       "3: no control \"Nothing\" in \"Question\""},
      {"sysdef.onDialog(d => { throw 'bare'; });\nsysdef.open('TestPage').press('Ask');",
       "2: bare"},
      {"sysdef.answer('OK');\nvar q = sysdef.open('TestPage');\n"
       "q.control('Frame Rate').text = 'stop';\nq.apply();",
       "4: \"OK\" is no answer to \"Really?\""},
  };
  for (const auto& [script, error] : faults)
    EXPECT_THAT(Run(script), testing::AllOf(testing::StartsWith("!edit.js:"), HasSubstr(error)))
        << script;
  EXPECT_EQ(Run("try { sysdef.open('NoPage') } catch (e) { print(e.message) }"),
            "There is no page NoPage\n");
}

TEST_F(ScriptRunnerTest, RunsFiles) {
  const std::string file =
      folder_.Write("my größe.js", "\xEF\xBB\xBF\nprint('f\xFCr')\nx.y").string();
  EXPECT_EQ(runner_.Run(file), file + ":3: x is not defined");
  EXPECT_EQ(printed_.str(), "für\n");
  const std::string missing = (folder_.Path() / "missing.js").string();
  EXPECT_EQ(runner_.Run(missing), missing + ": there is no such file");
  EXPECT_THAT(runner_.Run(folder_.Path().string()),
              testing::Optional(HasSubstr("not a regular file")));
}

}  // namespace
