// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <QLockFile>
#include <regex>
#include <sstream>
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
using Words = std::vector<std::string>;

const std::string kProject = Command::kProject;
const std::string kDatabase = Command::kDatabase;

std::string Pixmeld(const std::string& root, const std::string& start) {
  return "<" + root + "><StartOfFirstSubframe>" + start +
         "</StartOfFirstSubframe><SubframeSignalLatency>180</SubframeSignalLatency>"
         "<ActuatorSwitchTime>1350</ActuatorSwitchTime></" +
         root + ">";
}

class CommandLine : public testing::Test {
 protected:
  CommandResult RunScript(const std::string& text, const Words& arguments = {}) {
    command_.Write("edit.js", text);
    Words all{"script", kProject, "edit.js"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return command_.Run(all);
  }
  /// Imports the page as it stands but for one value.
  CommandResult Import(const std::string& start) {
    return command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", start));
  }
  /// Types a value and saves; prints "applied saved needToSave VALUE".
  CommandResult EditByScript() {
    return RunScript(R"js(
      const p = sysdef.open("PixmeldPage"), box = p.control("Start of 1st Subframe");
      box.text = "12.5";
      print(p.apply(), sysdef.save(), sysdef.needToSave, box.text);)js");
  }

  Command command_;
};

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

TEST_F(CommandLine, TellsItsVersionAndHelpsEverywhere) {
  const CommandResult version{0, "sysdef " SYSDEF_VERSION "\n", ""};
  EXPECT_EQ(command_.Run({"--version"}), version);
  const CommandResult whole = command_.Run({"--help"});
  EXPECT_EQ(whole, (CommandResult{0, whole.out, ""}));
  for (const char* verb : {"show", "export", "import", "script", "check"}) {
    EXPECT_EQ(command_.Run({verb, "--version"}), version);
    EXPECT_THAT(whole.out, HasSubstr(verb));
    const CommandResult one = command_.Run({verb, "--help"});
    EXPECT_EQ(one, (CommandResult{0, one.out, ""}));
    EXPECT_THAT(one.out, AllOf(HasSubstr(verb), HasSubstr("PROJECT")));
  }
}

TEST_F(CommandLine, WrongUseIsOneLineAndStatusTwo) {
  command_.Write("edit.js", "print('ran')");
  for (const char* line :
       {"--nonsense", "show", "show PROJECT PixmeldPage more", "show --force PROJECT",
        "show PROJECT NoSuchPage", "export", "export PROJECT", "export PROJECT NoSuchPage",
        "import PROJECT", "import PROJECT NoSuchPage", "import PROJECT PixmeldPage a.xml b.xml",
        "script", "script PROJECT", "check"}) {
    Words arguments;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      arguments.push_back(word == "PROJECT" ? kProject : word);
    }
    const CommandResult result = command_.Run(arguments);
    EXPECT_EQ(result, (CommandResult{2, "", result.err})) << line;
    EXPECT_THAT(result.err, IsOneLineWith(Words{})) << line;
  }
  EXPECT_THAT(command_.Run({"show", kProject, "NoSuchPage"}).err,
              IsOneLineWith(Words{"NoSuchPage"}));
}

// What stands in a file, and what the message must name beside the file.
struct Damage {
  std::string file;
  const char* bytes;  ///< null: the file is gone
  Words named;
};

const std::vector<Damage> kDamages = {
    {kProject, nullptr, {}},
    {kProject, "<OstProject>\n  <Key name='a'>1</Key>\n  <Key", {"3"}},
    {kProject, "<Letter/>", {"OstProject"}},
    {kProject, "<!DOCTYPE OstProject [<!ENTITY a 'b'>]>\n<OstProject/>", {"document type"}},
    {kProject, "<OstProject runtimedb=''/>", {"runtimedb"}},
    {kDatabase, "<RunTimeDB>\n<Pixmeld>\n</RunTimeDB>\n", {"3"}},
    {kDatabase, "", {}},
    {kDatabase, "<OstProject/>", {"RunTimeDB"}},
    {kDatabase,
     "<!DOCTYPE RunTimeDB [<!ENTITY a SYSTEM '/etc/hostname'>]>\n<RunTimeDB>&a;</RunTimeDB>",
     {"document type"}},
    {kDatabase + "/file", "", {}}};  // the database is a folder

TEST_F(CommandLine, DamagedProjectsAreOneLineAndStatusThree) {
  for (const Damage& damage : kDamages) {
    Command command;
    command.Write("edit.js", "sysdef.open('PixmeldPage').apply(); print(sysdef.save())");
    Words named = damage.named;
    named.push_back(damage.file.starts_with(kDatabase) ? kDatabase : kProject);
    command.Remove(named.back());
    if (damage.bytes) command.Write(damage.file, damage.bytes);
    const auto before = command.Everything();
    for (const Words& arguments : EveryCommandOn(kProject)) {
      const CommandResult result = command.Run(arguments, "<Inputs/>");
      const std::string what =
          testing::PrintToString(damage.named) + testing::PrintToString(arguments);
      EXPECT_EQ(result, (CommandResult{3, "", result.err})) << what;
      EXPECT_THAT(result.err, IsOneLineWith(named)) << what;
    }
    EXPECT_EQ(command.Everything(), before);
  }
}

// A stylesheet of the project stands in for the installed one, a broken one too: the page must not
// be opened with defaults that the next apply would write over real data.
TEST_F(CommandLine, BrokenStylesheetIsNamedWithItsLine) {
  const std::string sheet =
      "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>\n";
  const std::string table =
      "<PageTable>\n<Page name='PixmeldPage' in='pixmeld_in.xsl' out='gone.xsl'/>\n</PageTable>";
  const std::tuple<std::string, std::string, Words> all[] = {
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
  for (const auto& [file, text, named] : all) {
    Command command;
    command.Write("support/" + file, text);
    const auto before = command.Everything();
    for (const char* verb : {"show", "export", "import"}) {
      const CommandResult result = command.Run({verb, kProject, "PixmeldPage"}, "<Inputs/>");
      EXPECT_EQ(result, (CommandResult{3, "", result.err})) << verb << text;
      EXPECT_THAT(result.err, IsOneLineWith(named)) << verb << text;
    }
    EXPECT_EQ(command.Everything(), before);
  }
}

TEST_F(CommandLine, ShowPrintsThePagesAsTables) {
  const CommandResult one = command_.Run({"show", kProject, "PixmeldPage"});
  EXPECT_EQ(one, (CommandResult{0, one.out, ""}));
  for (const char* row : {"Start of 1st Subframe.*4\\.50.*degrees \\[0-360\\]",
                          "Subframe Signal Latency.*180\\.00.*usecs \\[0-10000\\]",
                          "Actuator Switch Time.*1350\\.00.*usecs \\[0-10000\\]"})
    EXPECT_THAT(one.out, testing::ContainsRegex(row));
  const CommandResult all = command_.Run({"show", kProject});
  EXPECT_EQ(all, (CommandResult{0, all.out, ""}));
  EXPECT_THAT(all.out, HasSubstr(one.out));
}

TEST_F(CommandLine, ExportWritesWhatAnImportTakesWithoutAChange) {
  const CommandResult result = command_.Run({"export", kProject, "PixmeldPage"});
  EXPECT_EQ(result, (CommandResult{0, result.out, ""}));
  EXPECT_EQ(std::regex_replace(result.out, std::regex(R"(>\s+<)"), "><"),
            Pixmeld("ModuleOutputs", "4.5") + "\n");
  const std::string before = command_.Read(kDatabase);
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, result.out),
            (CommandResult{0, "", ""}));
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
  const CommandResult refused = Import("360.01");
  EXPECT_EQ(refused, (CommandResult{1, "", refused.err}));
  EXPECT_THAT(refused.err, IsOneLineWith(Words{"Start of 1st Subframe", "360.01"}));
  EXPECT_EQ(command_.Read(kDatabase), before);

  EXPECT_EQ(
      command_.Run({"import", "--force", kProject, "PixmeldPage"}, Pixmeld("Inputs", "360.01")),
      (CommandResult{0, "", ""}));
  EXPECT_THAT(command_.Read(kDatabase), HasSubstr("degrees=\"360.01\""));
}

TEST_F(CommandLine, ImportRefusesWhatIsNoDataObject) {
  const std::string before = command_.Read(kDatabase);
  for (const std::string& input :
       {std::string("no xml"), std::string("<Letter/>"), Pixmeld("Inputs", "x"),
        "<!DOCTYPE Inputs>\n" + Pixmeld("Inputs", "12.5"), std::string()}) {
    const CommandResult result = command_.Run({"import", kProject, "PixmeldPage"}, input);
    EXPECT_EQ(result, (CommandResult{1, "", result.err})) << input;
    // Diagnostics of the archive may stand before the program's own line.
    EXPECT_THAT(result.err, testing::ContainsRegex("(^|\n)sysdef: [^\n]+\n$")) << input;
    EXPECT_EQ(command_.Read(kDatabase), before) << input;
  }
}

TEST_F(CommandLine, ScriptEditsAppliesAndSaves) {
  EXPECT_EQ(EditByScript(), (CommandResult{0, "true true false 12.50\n", ""}));
  EXPECT_THAT(command_.Run({"show", kProject, "PixmeldPage"}).out, HasSubstr("12.50"));
  EXPECT_THAT(command_.Read(kDatabase), HasSubstr("degrees=\"12.5\""));
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
  EXPECT_EQ(RunScript("print('a');\n\nthrow new Error('Too hot');"),
            (CommandResult{1, "a\n", "sysdef: edit.js:3: Too hot\n"}));
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
  const CommandResult imported = Import("12.5");
  EXPECT_EQ(imported, (CommandResult{3, "", imported.err}));
  EXPECT_THAT(imported.err, IsOneLineWith(Words{kDatabase}));
  EXPECT_EQ(command_.Everything(), before);
  EXPECT_EQ(EditByScript().out, "true false true 12.50\n");
  EXPECT_EQ(command_.Read(kDatabase), before.at(kDatabase));
}

TEST_F(CommandLine, AProjectThatAnotherProgramHoldsIsNotSaved) {
  QLockFile lock(QString::fromStdString(command_.Folder() + "/" + kDatabase + ".lock"));
  ASSERT_TRUE(lock.tryLock(0));
  const std::string before = command_.Read(kDatabase);
  const CommandResult imported = Import("12.5");
  EXPECT_EQ(imported.status, 3) << imported;
  EXPECT_THAT(imported.err, IsOneLineWith(Words{kDatabase, "held by", "process"}));
  EXPECT_EQ(EditByScript().out, "true false true 12.50\n");
  EXPECT_EQ(command_.Read(kDatabase), before);
  EXPECT_EQ(Import("4.5").status, 0) << "nothing to save";
  lock.unlock();
  EXPECT_EQ(Import("12.5").status, 0);
  EXPECT_FALSE(command_.Exists(kDatabase + ".lock"));
  // What a program leaves that is killed while it makes its lock.
  command_.Write(kDatabase + ".lock", "");
  EXPECT_EQ(command_.Run({"import", kProject, "PixmeldPage"}, Pixmeld("Inputs", "4.5")).status, 0);
}

TEST_F(CommandLine, FolderThatTakesNoFileIsSaidOnSave) {
  command_.Replace(kProject, "runtimedb=\"runtimedb.xml\"", "runtimedb=\"/proc/runtimedb.xml\"");
  const CommandResult result = Import("12.5");
  EXPECT_EQ(result.status, 3) << result;
  EXPECT_THAT(result.err, IsOneLineWith(Words{"/proc/runtimedb.xml"}));
}

}  // namespace
