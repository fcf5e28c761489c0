// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/xml_oarchive.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "archive/serialize_array.h"
#include "archive/support/round_trip.h"
#include "archive/xml_archive_exception.h"
#include "platform/xml/xml_error.h"
#include "support/fault_of.h"

namespace {

using archive_test::Document;
using archive_test::TextForm;
using archive_test::Written;
using platform::xml::XmlError;
using zel::archive::nvp;
using zel::archive::xml_archive_exception;
using zel::archive::xml_oarchive;
namespace flags = zel::archive::flags;

struct Leaf {
  static constexpr unsigned class_version = 2;
  int index = 7;
  template <class Archive>
  void serialize(Archive& ar, unsigned version) {
    EXPECT_EQ(version, class_version);
    ar& nvp("index", index);
  }
};

struct Pair {
  Leaf first;
  Leaf second;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("first", first) & nvp("second", second);
  }
};

struct Numbers {
  signed char small = -5;
  unsigned char octet = 65;
  char letter = 'A';
  short count = -300;
  unsigned long long huge = ~0ULL;
  enum class Color : unsigned char { kRed, kGreen } color = Color::kGreen;
  double zero = -0.0;
  double large = 1e300;
  std::vector<int> none;
  std::string empty;
  std::string marked = "<&>\"' \t\r\n \xC3\xA9";

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("small", small) & nvp("octet", octet) & nvp("letter", letter) & nvp("count", count);
    ar& nvp("huge", huge) & nvp("color", color) & nvp("zero", zero) & nvp("large", large);
    ar& nvp("none", none) & nvp("empty", empty) & nvp("marked", marked);
  }
};

struct Collections {
  std::vector<bool> flags{true, false};
  std::set<std::string> names{"b", "a"};
  std::vector<std::vector<double>> nested{{0.1, 2}, {}};
  short plain[3] = {1, 2, 3};
  bool allowed[2] = {true};
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    zel::archive::SerializeArray<bool, short, 2> wrapped(allowed);
    ar& nvp("flags", flags) & nvp("names", names) & nvp("nested", nested) & nvp("plain", plain);
    ar& nvp("allowed", wrapped);
  }
};

/// What a test body writes with an archive of those flags.
template <class Body>
std::string Told(std::uint32_t bits, Body body) {
  Document document;
  xml_oarchive archive(document, bits);
  body(archive);
  archive.Finish();
  return document.ToText(TextForm::kBare);
}

TEST(XmlOarchive, WritesEveryKindOfValue) {
  Numbers numbers;
  EXPECT_EQ(Written(numbers, "N"),
            "<N><small>-5</small><octet>65</octet><letter>65</letter><count>-300</count>"
            "<huge>18446744073709551615</huge><color>1</color><zero>0</zero>"
            "<large>1.0000000000000001e+300</large><none><count>0</count></none><empty/>"
            "<marked>&lt;&amp;&gt;\"' \t&#13;\n \xC3\xA9</marked></N>");
}

TEST(XmlOarchive, CollectionsAreCountAndItems) {
  Collections collections;
  EXPECT_EQ(Written(collections, "C"),
            "<C><flags><count>2</count><item>1</item><item>0</item></flags>"
            "<names><count>2</count><item>a</item><item>b</item></names>"
            "<nested><count>2</count><item><count>2</count><item>0.10000000000000001</item>"
            "<item>2</item></item><item><count>0</count></item></nested>"
            "<plain><count>3</count><item>1</item><item>2</item><item>3</item></plain>"
            "<allowed><count>2</count><item>1</item><item>0</item></allowed></C>");
}

TEST(XmlOarchive, RootAndClassInformationFollowTheFlags) {
  Pair pair;
  const auto whole = [&](std::uint32_t bits) { return Written(pair, "P", bits); };
  const std::string members = "<first><index>7</index></first><second><index>7</index></second>";
  EXPECT_EQ(whole(flags::kPageTransfer), "<P>" + members + "</P>");
  EXPECT_EQ(whole(flags::kNoClassInfo),
            "<zel_tessary_archive version=\"2\"><P>" + members + "</P></zel_tessary_archive>");
  EXPECT_EQ(whole(flags::kNoClassInfo | flags::kLongNames),
            "<!DOCTYPE boost_serialization><boost_serialization "
            "signature=\"serialization::archive\" version=\"3\"><P>" +
                members + "</P></boost_serialization>");
  EXPECT_EQ(whole(flags::kNoRoot),
            "<P clsid=\"0\" trklvl=\"0\" version=\"0\">"
            "<first clsid=\"1\" trklvl=\"0\" version=\"2\"><index>7</index></first>"
            "<second><index>7</index></second></P>");
  EXPECT_EQ(whole(flags::kNoRoot | flags::kLongNames),
            "<P class_id=\"0\" tracking_level=\"0\" version=\"0\">"
            "<first class_id=\"1\" tracking_level=\"0\" version=\"2\"><index>7</index></first>"
            "<second><index>7</index></second></P>");
}

TEST(XmlOarchive, AValueCanBecomeAnAttribute) {
  const double half = 0.5;
  const std::string text = "a<b";
  const int seven = 7;
  EXPECT_EQ(Told(flags::kPageTransfer,
                 [&](xml_oarchive& archive) {
                   archive.save_attribute("before", half);
                   archive.save_start("outer");
                   archive.save_attribute("text", text);
                   archive << nvp("inner", seven);
                   archive.save_end("outer");
                 }),
            "<outer before=\"0.5\" text=\"a&lt;b\"><inner>7</inner></outer>");
  EXPECT_EQ(Told(flags::kPageTransfer,
                 [&](xml_oarchive& archive) {
                   archive.save_attribute("on", true);
                   archive << nvp("leaf", seven);
                 }),
            "<leaf on=\"1\">7</leaf>");
  EXPECT_EQ(Told(flags::kNoClassInfo,
                 [&](xml_oarchive& archive) { archive.save_attribute("more", seven); }),
            "<zel_tessary_archive version=\"2\" more=\"7\"/>");
}

TEST(XmlOarchive, ANullNameOpensNoElement) {
  int seven = 7;
  Leaf leaf;
  EXPECT_EQ(Told(flags::kPageTransfer,
                 [&](xml_oarchive& archive) {
                   archive.save_start("outer");
                   archive << nvp(nullptr, leaf) << nvp(nullptr, seven);
                   archive.save_end("outer");
                 }),
            "<outer><index>7</index>7</outer>");
}

TEST(XmlOarchive, FinishReportsWhatTheDestructorDoesNot) {
  Document document;
  {
    xml_oarchive archive(document, flags::kPageTransfer);
    archive.save_start("open");
    archive.save_start("inner");
    archive.save_end("inner");
  }
  EXPECT_EQ(document.ToText(TextForm::kBare), "<open><inner/></open>");
  Document other;
  xml_oarchive archive(other, flags::kNoClassInfo);
  archive.save_start("open");
  EXPECT_THROW(archive.Finish(), XmlError);
}

TEST(XmlOarchive, TheTreesOwnFaultsAreXmlErrors) {
  const int seven = 7;
  Document document;
  xml_oarchive archive(document, flags::kPageTransfer);
  EXPECT_THROW(archive << nvp("not a name", seven), XmlError);
  EXPECT_THROW(archive << nvp("a:b", seven), XmlError);
  archive << nvp("only", seven);
  EXPECT_THROW(archive << nvp("second", seven), XmlError);
  EXPECT_THROW(archive.save_end("only"), XmlError);
  EXPECT_THROW(xml_oarchive(document, flags::kPageTransfer), XmlError);
}

TEST(XmlOarchive, TextThatXmlCannotCarryIsRefusedWhole) {
  const std::string tooLong(10'000'001, 'x');
  for (const std::string& text :
       {std::string("a\x01"), std::string("\xff"), std::string("\xed\xa0\x80"),
        std::string("\xef\xbf\xbf"), tooLong}) {
    Document document;
    xml_oarchive archive(document, flags::kPageTransfer);
    archive.save_start("e");
    EXPECT_THROW(archive.save_attribute("a", text), xml_archive_exception);
    EXPECT_THROW(archive << nvp("inner", text), xml_archive_exception);
    EXPECT_THROW(archive.save_text(text), xml_archive_exception);
    archive.save_end("e");
    archive.Finish();
    EXPECT_EQ(document.ToText(TextForm::kBare), "<e/>");
  }
  Document document;
  xml_oarchive archive(document, flags::kPageTransfer);
  const std::vector<std::string> texts{"good", "a\x01"};
  try {
    archive << nvp("texts", texts);
    FAIL();
  } catch (const xml_archive_exception& fault) {
    EXPECT_STREQ(fault.what(), "can't convert data to text");
    EXPECT_STREQ(fault.where(), "texts/item = a\x01");
  }
  EXPECT_EQ(document.ToText(TextForm::kBare), "<texts><count>2</count><item>good</item></texts>");
}

TEST(XmlOarchive, StopsWhereNoReaderWouldFollow) {
  Document document;
  xml_oarchive archive(document, flags::kPageTransfer);
  for (int depth = 0; depth < 256; ++depth) archive.save_start("e");
  archive.save_text("x");
  EXPECT_NO_THROW(Document::Parse(document.ToText(TextForm::kBare)));
  EXPECT_EQ(test::FaultOf<xml_archive_exception>([&] { archive.save_start("e"); }),
            "elements nested deeper than 256");
}

}  // namespace
