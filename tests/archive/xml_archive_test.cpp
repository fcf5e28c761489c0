// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "archive/serialize_array.h"
#include "archive/support/round_trip.h"
#include "archive/xml_archive_exception.h"

namespace {

using archive_test::Document;
using archive_test::Read;
using archive_test::ReadContent;
using archive_test::Written;
using zel::archive::nvp;
using zel::archive::SerializeArray;
using zel::archive::xml_archive_exception;
namespace flags = zel::archive::flags;

struct Group {
  static constexpr unsigned class_version = 3;
  int index = 7;
  unsigned seenVersion = 99;

  template <class Archive>
  void serialize(Archive& ar, unsigned version) {
    seenVersion = version;
    ar& nvp("index", index);
  }
};

struct Page {
  double ratio = 1.5;
  std::vector<double> values{2.5, 0.1};
  Group group;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("ratio", ratio);
    ar& nvp("values", values);
    ar& nvp("group", group);
  }
};

struct Collections {
  std::vector<bool> flags{true, false};
  std::set<std::string> names{"b", "a"};
  std::vector<std::vector<int>> nested{{1, 2}, {}};
  short plain[3] = {1, 2, 3};
  bool allowed[8] = {true};

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    SerializeArray<bool, short, 8> wrapped(allowed);
    ar& nvp("flags", flags);
    ar& nvp("names", names);
    ar& nvp("nested", nested);
    ar& nvp("plain", plain);
    ar& nvp("allowed", wrapped);
  }
};

const char* const kPage =
    "<ratio>1.5</ratio>"
    "<values><count>2</count><item>2.5</item><item>0.10000000000000001</item></values>"
    "<group><index>7</index></group>";

TEST(XmlArchive, PageTransferWritesPlainNestedElements) {
  Page page;
  EXPECT_EQ(Written(page), std::string("<ModuleOutputs>") + kPage + "</ModuleOutputs>");
  EXPECT_EQ(page.group.seenVersion, 3u);
}

TEST(XmlArchive, PageTransferReadsThemBack) {
  Page page{0, {}, {0}};
  Read(std::string("<Inputs>") + kPage + "</Inputs>", page);
  EXPECT_EQ(page.ratio, 1.5);
  EXPECT_EQ(page.values, (std::vector<double>{2.5, 0.1}));
  EXPECT_EQ(page.group.index, 7);
  EXPECT_EQ(page.group.seenVersion, 0u);
}

TEST(XmlArchive, CollectionsAreCountAndItems) {
  Collections collections;
  EXPECT_EQ(Written(collections, "C"),
            "<C><flags><count>2</count><item>1</item><item>0</item></flags>"
            "<names><count>2</count><item>a</item><item>b</item></names>"
            "<nested><count>2</count><item><count>2</count><item>1</item><item>2</item></item>"
            "<item><count>0</count></item></nested>"
            "<plain><count>3</count><item>1</item><item>2</item><item>3</item></plain>"
            "<allowed><count>8</count><item>1</item><item>0</item><item>0</item><item>0</item>"
            "<item>0</item><item>0</item><item>0</item><item>0</item></allowed></C>");
  Collections read{{}, {}, {}, {}, {}};
  Read(Written(collections, "Inputs"), read);
  EXPECT_EQ(Written(read, "C"), Written(collections, "C"));
}

TEST(XmlArchive, TextThatXmlCannotCarryIsRefusedWhole) {
  for (const char* bad : {"a\x01", "\xff", "\xed\xa0\x80", "\xef\xbf\xbf"}) {
    std::vector<std::string> texts{"good", bad};
    Document document;
    zel::archive::xml_oarchive archive(document, flags::kPageTransfer);
    try {
      archive << nvp("texts", texts);
      FAIL();
    } catch (const xml_archive_exception& fault) {
      EXPECT_STREQ(fault.what(), "can't convert data to text");
      EXPECT_EQ(std::string(fault.where()), std::string("texts/item = ") + bad);
    }
    EXPECT_EQ(document.ToText(platform::xml::TextForm::kBare),
              "<texts><count>2</count><item>good</item></texts>");
  }
}

}  // namespace
