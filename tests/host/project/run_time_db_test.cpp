// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/run_time_db.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/project/ost_exception.h"
#include "support/temp_folder.h"

namespace {

using Framework::RunTimeDB;
using platform::xml::Document;
using platform::xml::Element;
using testing::HasSubstr;

constexpr const char* kTwoTools =
    "<?xml version='1.0'  encoding=\"UTF-8\"?>\n"
    "<!-- kept -->\n"
    "<RunTimeDB >\n"
    "\t<Other  b='2' a=\"1\"><x/>tail &#x41;<![CDATA[<raw>]]></Other>\n"
    "  <Wheel>\n"
    "    <!-- red first -->\n"
    "    <Segment   color='red' degrees=\"120.0\" />\n"
    "    <Segment color=\"green\" degrees=\"100\"/>\n"
    "    <Foreign><keep me='\"'/></Foreign>\n"
    "  </Wheel>\n"
    "</RunTimeDB>\n";

platform::xml::NumericFields Degrees() {
  platform::xml::NumericFields numbers;
  numbers.Add("Segment", "degrees");
  return numbers;
}

/// A database's document with one empty element.
Document With(const char* name) {
  Document document;
  document.CreateRoot("RunTimeDB").AppendElement(name);
  return document;
}

struct Edit {
  const char* name;
  void (*change)(Element wheel);
  const char* before;  ///< this part of the text ...
  const char* after;   ///< ... becomes this one; nothing else changes
};

class RunTimeDBEdits : public testing::TestWithParam<Edit> {};

TEST_P(RunTimeDBEdits, ChangeOnlyTheirBytes) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Write("db.xml", kTwoTools), Degrees());
  const Document document = database.GetDOM({"Wheel"});
  GetParam().change(document.Root().Child("Wheel"));
  ASSERT_TRUE(database.SetDOM(document));
  std::string expected = kTwoTools;
  const auto at = expected.find(GetParam().before);
  ASSERT_NE(at, std::string::npos);
  expected.replace(at, std::string(GetParam().before).size(), GetParam().after);
  EXPECT_EQ(database.Text(), expected);
  database.Save();
  EXPECT_EQ(folder.Read("db.xml"), expected);
  EXPECT_FALSE(database.Modified());
}

INSTANTIATE_TEST_SUITE_P(
    All, RunTimeDBEdits,
    testing::Values(
        Edit{"Nothing", [](Element) {}, "<Wheel>", "<Wheel>"},
        Edit{"AnotherSpellingOfANumber",
             [](Element wheel) { wheel.FirstChild().SetAttribute("degrees", "120"); }, "<Wheel>",
             "<Wheel>"},
        Edit{"ANewNumberInItsShortestForm",
             [](Element wheel) {
               wheel.FirstChild().NextSibling().SetAttribute("degrees", "0.10000000000000001");
             },
             "degrees=\"100\"", "degrees=\"0.1\""},
        Edit{"TextIsNoNumber",
             [](Element wheel) { wheel.FirstChild().SetAttribute("color", "1.0"); },
             "<Segment   color='red' degrees=\"120.0\" />",
             "<Segment color=\"1.0\" degrees=\"120.0\"/>"},
        Edit{"AChildAtTheEnd",
             [](Element wheel) { wheel.AppendElement("New").SetAttribute("a", "<&\">"); },
             "</Foreign>\n", "</Foreign>\n    <New a=\"&lt;&amp;&quot;&gt;\"/>\n"},
        Edit{"AChildLess", [](Element wheel) { wheel.FirstChild().NextSibling().Remove(); },
             "\n    <Segment color=\"green\" degrees=\"100\"/>", ""}),
    [](const auto& each) { return each.param.name; });

TEST(RunTimeDB, KeepsTheOrderOfRepeatedElements) {
  std::string text = "<RunTimeDB>\n  <List>\n";
  for (int i = 0; i < 6; ++i) text += "    <Item name=\"" + std::to_string(i) + "\"/>\n";
  text += "  </List>\n</RunTimeDB>\n";
  const test::TempFolder folder;
  RunTimeDB database(folder.Write("db.xml", text));
  Document document;
  Element list = document.CreateRoot("RunTimeDB").AppendElement("List");
  for (const char* name : {"3", "0", "1", "2", "4", "5"}) {
    list.AppendElement("Item").SetAttribute("name", name);
  }
  ASSERT_TRUE(database.SetDOM(document));
  const Document read = Document::Parse(database.Text());
  std::string order;
  for (Element item = read.Root().FirstChild().FirstChild(); item; item = item.NextSibling()) {
    order += item.Attribute("name", "?");
  }
  EXPECT_EQ(order, "301245");
}

TEST(RunTimeDB, UndoneChangesLeaveNothingToSave) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Write("db.xml", kTwoTools), Degrees());
  const Document original = database.GetDOM({"Wheel"});
  const Document changed = database.GetDOM({"Wheel"});
  changed.Root().FirstChild().FirstChild().SetAttribute("degrees", "7");
  ASSERT_TRUE(database.SetDOM(changed));
  EXPECT_TRUE(database.Modified());
  ASSERT_TRUE(database.SetDOM(original));
  EXPECT_FALSE(database.Modified());
  EXPECT_EQ(database.Text(), kTwoTools);
}

TEST(RunTimeDB, AMissingFileIsAnEmptyDatabase) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Path() / "db.xml");
  EXPECT_FALSE(database.GetDOM({"Wheel"}).Root().FirstChild());
  database.Save();
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "db.xml"));
  const Document document = With("Wheel");
  document.Root().FirstChild().AppendElement("Spoke");
  ASSERT_TRUE(database.SetDOM(document));
  database.Save();
  EXPECT_EQ(folder.Read("db.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<RunTimeDB>\n  <Wheel>\n    <Spoke/>\n"
            "  </Wheel>\n</RunTimeDB>\n");
}

TEST(RunTimeDB, FragmentsComeAsAskedFor) {
  const test::TempFolder folder;
  const RunTimeDB database(folder.Write("db.xml", "<RunTimeDB><A/><B/><C/></RunTimeDB>"));
  const Document document = database.GetDOM({"C", "Missing", "A"});
  EXPECT_EQ(platform::xml::ToText(document.Root(), platform::xml::TextForm::kBare),
            "<RunTimeDB><C/><A/></RunTimeDB>");
}

TEST(RunTimeDB, ForeignDocumentsAreNotStored) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Write("db.xml", kTwoTools));
  EXPECT_FALSE(database.SetDOM(Document()));
  EXPECT_FALSE(database.SetDOM(Document::Parse("<Other/>")));
  EXPECT_FALSE(database.Modified());
}

TEST(RunTimeDB, AnotherProgramsChangeIsNotOverwrittenUnasked) {
  const test::TempFolder folder;
  const char* theirs = "<RunTimeDB><Theirs/></RunTimeDB>";
  RunTimeDB database(folder.Write("db.xml", kTwoTools));
  EXPECT_FALSE(database.ChangedOnDisk());
  ASSERT_TRUE(database.SetDOM(With("Mine")));
  folder.Write("db.xml", theirs);
  EXPECT_TRUE(database.ChangedOnDisk());
  EXPECT_THROW(database.Save(), OstException);
  EXPECT_EQ(folder.Read("db.xml"), theirs);
  database.KeepMine();
  database.Save();
  EXPECT_THAT(folder.Read("db.xml"), HasSubstr("<Mine/>"));
  EXPECT_FALSE(database.ChangedOnDisk());
  folder.Write("db.xml", theirs);
  database.Reload();
  EXPECT_EQ(database.Text(), theirs);
  EXPECT_FALSE(database.ChangedOnDisk());
}

TEST(RunTimeDB, OneBackupOfWhatWasOpened) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Write("db.xml", kTwoTools));
  for (const char* name : {"First", "Second"}) {
    ASSERT_TRUE(database.SetDOM(With(name)));
    database.Save();
    EXPECT_EQ(folder.Read("db.xml.bak"), kTwoTools);
  }
}

TEST(RunTimeDB, ADatabaseInAnotherEncodingIsCarriedOnAsUtf8) {
  const test::TempFolder folder;
  RunTimeDB database(folder.Write(
      "db.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><RunTimeDB><A n='\xE4'/></RunTimeDB>"));
  ASSERT_TRUE(database.SetDOM(With("B")));
  database.Save();
  EXPECT_THAT(folder.Read("db.xml"), HasSubstr("<A n=\"\xC3\xA4\"/>"));
}

}  // namespace
