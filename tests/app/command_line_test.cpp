// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <QLockFile>
#include <regex>
#include <string>
#include <vector>

#include "support/command.h"
#include "support/one_line.h"

namespace {

using test::Command;
using test::CommandResult;
using test::IsOneLineWith;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using Words = std::vector<std::string>;

const std::string kProject = Command::kProject;
const std::string kDatabase = Command::kDatabase;

class CommandLine : public testing::Test {
 protected:
  CommandResult RunScript(const std::string& text, const Words& arguments = {}) {
    command_.Write("edit.js", text);
    Words all{"script", kProject, "edit.js"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return command_.Run(all);
  }

  Command command_;
};

const Words kVerbs = {"show", "export", "import", "script", "check"};

/// Every command on one project, in its shortest form.
std::vector<Words> EveryCommandOn(const std::string& project) {
  return {{"show", project},
          {"show", project, "PixmeldPage"},
          {"export", project, "PixmeldPage"},
          {"import", project, "PixmeldPage"},
          {"script", project, "edit.js"},
          {"check", project},
          {"--non-interactive", project}};
}

TEST_F(CommandLine, TellsItsVersionEverywhere) {
  const CommandResult version{0, "sysdef " SYSDEF_VERSION "\n", ""};
  EXPECT_EQ(command_.Run({"--version"}), version);
  for (const std::string& verb : kVerbs) EXPECT_EQ(command_.Run({verb, "--version"}), version);
}

TEST_F(CommandLine, HelpsEverywhere) {
  const CommandResult whole = command_.Run({"--help"});
  EXPECT_EQ(whole.status, 0);
  EXPECT_EQ(whole.err, "");
  for (const std::string& verb : kVerbs) {
    EXPECT_THAT(whole.out, HasSubstr(verb));
    const CommandResult one = command_.Run({verb, "--help"});
    EXPECT_EQ(one.status, 0) << verb;
    EXPECT_EQ(one.err, "") << verb;
    EXPECT_THAT(one.out, AllOf(HasSubstr(verb), HasSubstr("PROJECT"))) << verb;
  }
}

TEST_F(CommandLine, WrongUseIsOneLineAndStatusTwo) {
  command_.Write("edit.js", "print('ran')");
  const std::vector<Words> wrong = {
      {"--nonsense"},
      {"show"},
      {"show", kProject, "PixmeldPage", "more"},
      {"show", "--force", kProject},
      {"show", kProject, "NoSuchPage"},
      {"export"},
      {"export", kProject},
      {"export", kProject, "NoSuchPage"},
      {"import", kProject},
      {"import", kProject, "NoSuchPage"},
      {"import", kProject, "PixmeldPage", "a.xml", "b.xml"},
      {"script"},
      {"script", kProject},
      {"check"},
  };
  for (const Words& arguments : wrong) {
    const CommandResult result = command_.Run(arguments);
    const std::string what = testing::PrintToString(arguments);
    EXPECT_EQ(result.status, 2) << what << result;
    EXPECT_EQ(result.out, "") << what;
    EXPECT_THAT(result.err, IsOneLineWith(Words{})) << what;
  }
  EXPECT_THAT(command_.Run({"show", kProject, "NoSuchPage"}).err,
              IsOneLineWith(Words{"NoSuchPage"}));
}

// What each fault does to the project, and what the message must name.
struct Damage {
  const char* name;
  void (*apply)(Command& command);
  Words named;
};

const std::vector<Damage> kDamages = {
    {"project missing", [](Command& c) { c.Remove(Command::kProject); }, {kProject}},
    {"project cut",
     [](Command& c) {
       c.Write(Command::kProject, "<OstProject>\n  <Key name='a'>1</Key>\n  <Key");
     },
     {kProject, "3"}},
    {"project of another kind",
     [](Command& c) { c.Write(Command::kProject, "<Letter/>"); },
     {kProject, "OstProject"}},
    {"project with a document type",
     [](Command& c) {
       c.Write(Command::kProject, "<!DOCTYPE OstProject [<!ENTITY a 'b'>]>\n<OstProject/>");
     },
     {kProject, "document type"}},
    {"project without a database's name",
     [](Command& c) { c.Write(Command::kProject, "<OstProject runtimedb=''/>"); },
     {kProject, "runtimedb"}},
    {"database cut",
     [](Command& c) { c.Write(Command::kDatabase, "<RunTimeDB>\n<Pixmeld>\n</RunTimeDB>\n"); },
     {kDatabase, "3"}},
    {"database empty", [](Command& c) { c.Write(Command::kDatabase, ""); }, {kDatabase}},
    {"database of another kind",
     [](Command& c) { c.Write(Command::kDatabase, "<OstProject/>"); },
     {kDatabase, "RunTimeDB"}},
    {"database that asks for a file",
     [](Command& c) {
       c.Write(Command::kDatabase,
               "<!DOCTYPE RunTimeDB [<!ENTITY a SYSTEM '/etc/hostname'>]>\n<RunTimeDB>&a;"
               "</RunTimeDB>");
     },
     {kDatabase, "document type"}},
    {"database that is a folder",
     [](Command& c) {
       c.Remove(Command::kDatabase);
       c.Write(std::string(Command::kDatabase) + "/file", "");
     },
     {kDatabase}},
};

TEST_F(CommandLine, DamagedProjectsAreOneLineAndStatusThree) {
  for (const Damage& damage : kDamages) {
    Command command;
    command.Write("edit.js", "sysdef.open('PixmeldPage').apply(); print(sysdef.save())");
    damage.apply(command);
    const auto before = command.Everything();
    for (const Words& arguments : EveryCommandOn(kProject)) {
      const std::string what = damage.name + testing::PrintToString(arguments);
      const CommandResult result = command.Run(arguments, "<Inputs/>");
      EXPECT_EQ(result.status, 3) << what << result;
      EXPECT_EQ(result.out, "") << what;
      EXPECT_THAT(result.err, IsOneLineWith(damage.named)) << what;
    }
    EXPECT_EQ(command.Everything(), before) << damage.name;
  }
}

TEST_F(CommandLine, MissingDatabaseIsAnEmptyOne) {
  command_.Remove(kDatabase);
  EXPECT_EQ(command_.Run({"check", kProject}).status, 0);
  EXPECT_EQ(command_.Run({"show", kProject}).err, "");
  EXPECT_FALSE(command_.Exists(kDatabase));
}

// A stylesheet of the project stands in for the installed one, a broken one too: the page must not
// be opened with defaults that the next apply would write over real data.
TEST_F(CommandLine, BrokenStylesheetIsNamedWithItsLine) {
  struct Broken {
    std::string file;
    std::string text;
    Words named;
  };
  const std::string sheet =
      "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>\n";
  const std::string table =
      "<PageTable>\n<Page name='PixmeldPage' in='pixmeld_in.xsl' out='gone.xsl'/>\n</PageTable>";
  const std::vector<Broken> all = {
      {"pixmeld_in.xsl", sheet + "<xsl:template\n", {"pixmeld_in.xsl", "3"}},
      {"pixmeld_out.xsl", sheet + "\n<xsl:nonsense/></xsl:stylesheet>", {"pixmeld_out.xsl", "3"}},
      {"pixmeld_in.xsl", "<letter/>", {"pixmeld_in.xsl"}},
      {"pixmeld_out.xsl",
       sheet + "<xsl:include href='/etc/hostname'/>\n</xsl:stylesheet>",
       {"pixmeld_out.xsl"}},
      {"pages.xml", "<PageTable>\n<Page>", {"pages.xml", "2"}},
      {"pages.xml", table, {"gone.xsl", "missing"}},
      {"pages.xml", "<PageTable/>", {"pages.xml", "PixmeldPage"}},
  };
  for (const Broken& broken : all) {
    Command command;
    command.Write("support/" + broken.file, broken.text);
    const auto before = command.Everything();
    for (const Words& arguments :
         {Words{"show", kProject, "PixmeldPage"}, Words{"export", kProject, "PixmeldPage"},
          Words{"import", kProject, "PixmeldPage"}}) {
      const CommandResult result = command.Run(arguments, "<Inputs/>");
      const std::string what = broken.text + testing::PrintToString(arguments);
      EXPECT_EQ(result.status, 3) << what << result;
      EXPECT_EQ(result.out, "") << what;
      EXPECT_THAT(result.err, IsOneLineWith(broken.named)) << what;
    }
    EXPECT_EQ(command.Everything(), before);
  }
}

TEST_F(CommandLine, ShowPrintsThePagesAsTables) {
  const CommandResult one = command_.Run({"show", kProject, "PixmeldPage"});
  EXPECT_EQ(one.status, 0);
  EXPECT_EQ(one.err, "");
  for (const char* row : {"Start of 1st Subframe.*4\\.50.*degrees \\[0-360\\]",
                          "Subframe Signal Latency.*180\\.00.*usecs \\[0-10000\\]",
                          "Actuator Switch Time.*1350\\.00.*usecs \\[0-10000\\]"})
    EXPECT_THAT(one.out, testing::ContainsRegex(row));
  const CommandResult all = command_.Run({"show", kProject});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.err, "");
  EXPECT_THAT(all.out, HasSubstr(one.out));
}

std::string Pixmeld(const std::string& root, const std::string& start) {
  return "<" + root + "><StartOfFirstSubframe>" + start +
         "</StartOfFirstSubframe><SubframeSignalLatency>180</SubframeSignalLatency>"
         "<ActuatorSwitchTime>1350</ActuatorSwitchTime></" +
         root + ">";
}

std::string WithoutSpaceBetweenElements(const std::string& xml) {
  static const std::regex space(R"(>\s+<)");
  return std::regex_replace(xml, space, "><");
}

TEST_F(CommandLine, ExportWritesWhatTheArchiveWrites) {
  const CommandResult result = command_.Run({"export", kProject, "PixmeldPage"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(WithoutSpaceBetweenElements(result.out), Pixmeld("ModuleOutputs", "4.5") + "\n");
}

TEST_F(CommandLine, ImportOfTheExportChangesNoByte) {
  const std::string before = command_.Read(kDatabase);
  const std::string page = command_.Run({"export", kProject, "PixmeldPage"}).out;
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, page), (CommandResult{0, "", ""}));
  EXPECT_EQ(command_.Read(kDatabase), before);
}

TEST_F(CommandLine, ImportChangesOneValueAndKeepsWhatOthersWrote) {
  command_.Replace(kDatabase, "</RunTimeDB>",
                   "\t<Other b='2'   a=\"1\"><!-- theirs -->\n<x/> &#x41; </Other>\n</RunTimeDB>");
  const std::string before = command_.Read(kDatabase);
  for (const auto& [root, value] : {std::pair{"Inputs", "12.5"}, {"ModuleOutputs", "360"}}) {
    command_.Write("page.xml", Pixmeld(root, value));
    EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage", "page.xml"}),
              (CommandResult{0, "", ""}));
    std::string expected = before;
    expected.replace(expected.find("4.5"), 3, value);
    EXPECT_EQ(command_.Read(kDatabase), expected);
  }
}

TEST_F(CommandLine, ImportRefusesWhatThePageFindsWrongUnlessForced) {
  const std::string before = command_.Read(kDatabase);
  const std::string wrong = Pixmeld("Inputs", "360.01");
  const CommandResult refused = command_.Run({"import", kProject, "PixmeldPage"}, wrong);
  EXPECT_EQ(refused.status, 1) << refused;
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.err, IsOneLineWith(Words{"Start of 1st Subframe", "360.01"}));
  EXPECT_EQ(command_.Read(kDatabase), before);

  EXPECT_EQ(command_.Run({"import", "--force", kProject, "PixmeldPage"}, wrong),
            (CommandResult{0, "", ""}));
  EXPECT_THAT(command_.Read(kDatabase), HasSubstr("degrees=\"360.01\""));
}

TEST_F(CommandLine, ImportRefusesWhatIsNoDataObject) {
  const std::string before = command_.Read(kDatabase);
  for (const std::string& input :
       {std::string("no xml"), std::string("<Letter/>"), Pixmeld("Inputs", "x"),
        "<!DOCTYPE Inputs>\n" + Pixmeld("Inputs", "12.5"), std::string()}) {
    const CommandResult result = command_.Run({"import", kProject, "PixmeldPage"}, input);
    EXPECT_EQ(result.status, 1) << input << result;
    EXPECT_EQ(result.out, "") << input;
    // Diagnostics of the archive may stand before the program's own line.
    EXPECT_THAT(result.err, testing::ContainsRegex("(^|\n)sysdef: [^\n]+\n$")) << input;
    EXPECT_EQ(command_.Read(kDatabase), before) << input;
  }
}

TEST_F(CommandLine, ScriptEditsAppliesAndSaves) {
  const CommandResult result = RunScript(
      R"js(const p = sysdef.open("PixmeldPage"); p.control("Start of 1st Subframe").text = "12.5"; const ok = p.apply(); print(ok, p.control("Start of 1st Subframe").text, sysdef.save());)js");
  EXPECT_EQ(result, (CommandResult{0, "true 12.50 true\n", ""}));
  EXPECT_THAT(command_.Run({"show", kProject, "PixmeldPage"}).out, HasSubstr("12.50"));
  EXPECT_THAT(command_.Read(kDatabase), HasSubstr("degrees=\"12.5\""));
}

TEST_F(CommandLine, ScriptSeesOneMessageForARefusedEntry) {
  const CommandResult result = RunScript(R"js(
    const p = sysdef.open("PixmeldPage");
    for (const text of ["360", "360.01", "-0.5", "x"]) {
      p.control("Start of 1st Subframe").text = text;
      const taken = p.apply();
      const boxes = sysdef.messages();
      print(text, taken, boxes.length, boxes.map(b => `${b.text}|${b.style}`).join());
    }
    print(sysdef.needToSave, /degrees="([^"]*)"/.exec(sysdef.database())[1]);)js");
  const std::string range = " false 1 Please enter a number between 0 and 360.|48\n";
  EXPECT_EQ(result, (CommandResult{0,
                                   "360 true 0 \n360.01" + range + "-0.5" + range +
                                       "x false 1 Please enter a number.|48\ntrue 360\n",
                                   ""}));
}

TEST_F(CommandLine, ApplyWithoutAChangeLeavesAllAsItWas) {
  const auto before = command_.Everything();
  const CommandResult result = RunScript(R"js(
    for (const name of sysdef.pages()) {
      const p = sysdef.open(name);
      if (!p.apply()) print(name, "was refused");
      p.reopen();
    }
    print(sysdef.needToSave, sysdef.needToBuild, sysdef.messages().length, sysdef.save());)js");
  EXPECT_EQ(result, (CommandResult{0, "false false 0 true\n", ""}));
  command_.Remove("edit.js");
  EXPECT_EQ(command_.Everything(), before);
}

TEST_F(CommandLine, ScriptFailuresNameFileAndLine) {
  struct Failing {
    std::string script;
    std::string out;
    std::string err;
  };
  const std::vector<Failing> all = {
      {"print('a');\n\nthrow new Error('Too hot');", "a\n", "sysdef: edit.js:3: Too hot\n"},
      {"print('a');\nlet = ;", "", "sysdef: edit.js:2: Expected token "},
      {"\nsysdef.open('NoSuchPage');", "", "sysdef: edit.js:2: "},
      {"const p = sysdef.open('PixmeldPage');\np.control('Nothing');", "", "sysdef: edit.js:2: "},
      {"function deep() {\n  undefined.x;\n}\ndeep();", "", "sysdef: edit.js:2: Cannot read "},
  };
  for (const Failing& failing : all) {
    const CommandResult result = RunScript(failing.script);
    EXPECT_EQ(result.status, 1) << failing.script << result;
    EXPECT_EQ(result.out, failing.out) << failing.script;
    EXPECT_THAT(result.err, AllOf(StartsWith(failing.err), IsOneLineWith(Words{})))
        << failing.script;
  }
  const CommandResult missing = command_.Run({"script", kProject, "gone.js"});
  EXPECT_NE(missing.status, 0);
  EXPECT_THAT(missing.err, IsOneLineWith(Words{"gone.js"}));
}

TEST_F(CommandLine, ScriptGetsItsArgumentsAsTheyAre) {
  EXPECT_EQ(RunScript("print(args.length, args.join('|'))", {"a b", "--force", "ä", "", "-x"}),
            (CommandResult{0, "5 a b|--force|ä||-x\n", ""}));
}

TEST_F(CommandLine, CheckPrintsAFindingALineAndTheCounts) {
  const CommandResult clean = command_.Run({"check", kProject});
  EXPECT_EQ(clean.status, 0) << clean;
  EXPECT_EQ(clean.err, "");
  EXPECT_THAT(clean.out,
              testing::ContainsRegex("\n" + kProject + ": checked [0-9]+ pages: 0 errors, "));

  command_.Replace(kDatabase, "degrees=\"4.5\"", "degrees=\"400\"");
  const CommandResult found = command_.Run({"check", kProject});
  EXPECT_EQ(found.status, 1);
  EXPECT_THAT(found.out,
              HasSubstr("PixmeldPage: error pixmeld.start-range: Start of 1st Subframe is 400, "
                        "outside degrees [0-360]\n"));
  EXPECT_THAT(found.out, HasSubstr(": 1 error, "));

  command_.Replace(kDatabase, "microseconds=\"180\"", "microseconds=\"soon\"");
  const CommandResult damaged = command_.Run({"check", kProject});
  EXPECT_EQ(damaged.status, 1);
  EXPECT_THAT(damaged.out, testing::ContainsRegex("RunTimeDB: error [a-z.-]+: line [0-9]+: "));
}

TEST_F(CommandLine, CheckGoesOnAfterAProjectThatFails) {
  command_.Write("broken.ostproj", "<OstProject");
  command_.Write("other.ostproj", "<OstProject runtimedb='other.xml'/>");
  const CommandResult result = command_.Run({"check", "broken.ostproj", kProject, "other.ostproj"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.err, IsOneLineWith(Words{"broken.ostproj"}));
  EXPECT_THAT(result.out, AllOf(HasSubstr(kProject), HasSubstr("other.ostproj")));
}

TEST_F(CommandLine, FullDiskLeavesTheOldDatabase) {
  const auto before = command_.Everything();
  command_.LimitFileSize(64);
  const CommandResult imported =
      command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "12.5"));
  EXPECT_EQ(imported.status, 3) << imported;
  EXPECT_EQ(imported.out, "");
  EXPECT_THAT(imported.err, IsOneLineWith(Words{kDatabase}));
  EXPECT_EQ(command_.Everything(), before);

  const CommandResult scripted = RunScript(R"js(
    const p = sysdef.open("PixmeldPage"); p.control("Start of 1st Subframe").text = "12.5";
    print(p.apply(), sysdef.save(), sysdef.needToSave, p.control("Start of 1st Subframe").text);)js");
  EXPECT_EQ(scripted.out, "true false true 12.50\n") << scripted;
  EXPECT_EQ(command_.Read(kDatabase), before.at(kDatabase));
}

TEST_F(CommandLine, AProjectThatAnotherProgramHoldsIsNotSaved) {
  QLockFile lock(QString::fromStdString(command_.Folder() + "/" + kDatabase + ".lock"));
  ASSERT_TRUE(lock.tryLock(0));
  const std::string before = command_.Read(kDatabase);
  const CommandResult imported =
      command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "12.5"));
  EXPECT_EQ(imported.status, 3) << imported;
  EXPECT_THAT(imported.err, IsOneLineWith(Words{kDatabase, "held by", "process"}));
  const CommandResult scripted = RunScript(R"js(
    const p = sysdef.open("PixmeldPage"); p.control("Start of 1st Subframe").text = "12.5";
    print(p.apply(), sysdef.save(), sysdef.needToSave);)js");
  EXPECT_EQ(scripted.out, "true false true\n") << scripted;
  EXPECT_EQ(command_.Read(kDatabase), before);
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "4.5")).status, 0);
  lock.unlock();
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "12.5")).status, 0);
  EXPECT_FALSE(command_.Exists(kDatabase + ".lock"));
  // What a program leaves that is killed while it makes its lock.
  command_.Write(kDatabase + ".lock", "");
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "4.5")).status, 0);
}

TEST_F(CommandLine, FolderThatTakesNoFileIsSaidOnSave) {
  command_.Replace(kProject, "runtimedb=\"runtimedb.xml\"", "runtimedb=\"/proc/runtimedb.xml\"");
  const CommandResult result =
      command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "12.5"));
  EXPECT_EQ(result.status, 3) << result;
  EXPECT_THAT(result.err, IsOneLineWith(Words{"/proc/runtimedb.xml"}));
}

}  // namespace
