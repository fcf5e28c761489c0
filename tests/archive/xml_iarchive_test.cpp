// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/xml_iarchive.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "archive/serialize_array.h"
#include "archive/support/round_trip.h"
#include "archive/xml_archive_exception.h"
#include "support/fault_of.h"

namespace {

using archive_test::Document;
using archive_test::Read;
using archive_test::ReadContent;
using boost::archive::archive_exception;
using zel::archive::class_info;
using zel::archive::nvp;
using zel::archive::SerializeArray;
using zel::archive::xml_archive_exception;
using zel::archive::xml_iarchive;
namespace flags = zel::archive::flags;

constexpr std::uint32_t kStrict = flags::kPageTransfer & ~flags::kTolerateMissing;

std::string Fault(auto&& body) { return test::FaultOf<archive_exception>(body); }

/// What the content of an element "value" is read as.
template <class T>
T ReadValue(const std::string& content, T before = T()) {
  return ReadContent("<value>" + content + "</value>", archive_test::Value<T>{before}).value;
}

struct Inner {
  int a = 1;
  int b = 2;
  bool operator==(const Inner&) const = default;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("a", a) & nvp("b", b);
  }
};

struct Outer {
  Inner inner;
  std::string text = "kept";
  std::vector<Inner> list{{8, 9}};
  bool operator==(const Outer&) const = default;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("inner", inner) & nvp("text", text) & nvp("list", list);
  }
};

TEST(XmlIarchive, MissingElementsKeepTheirValues) {
  EXPECT_EQ(ReadContent<Outer>(""), Outer());
  EXPECT_EQ(ReadContent<Outer>("<inner><b>5</b></inner>"), (Outer{{1, 5}, "kept", {{8, 9}}}));
  EXPECT_EQ(ReadContent<Outer>("<text/>"), (Outer{{1, 2}, "", {{8, 9}}}));
  Outer outer;
  Read("<Other><text>x</text></Other>", outer);
  EXPECT_EQ(outer, Outer());
}

TEST(XmlIarchive, MembersAreFoundInAnyOrderByTheirWholeNames) {
  EXPECT_EQ(ReadContent<Outer>("<list><item><b>4</b><a>3</a></item><count>1</count></list>"
                               "<!-- no member --><other/>text<text>T</text>"
                               "<inner><b>6</b><a>5</a></inner>"),
            (Outer{{5, 6}, "T", {{3, 4}}}));
  EXPECT_EQ(ReadContent<Inner>("<p:a xmlns:p=\"urn:x\">5</p:a><B>6</B><bb>7</bb>"), (Inner{5, 2}));
}

TEST(XmlIarchive, EqualNamesAreReadInDocumentOrderAndWrapAround) {
  using Numbers = std::vector<int>;
  const std::pair<const char*, Numbers> cases[] = {
      {"<count>3</count><item>1</item><item>2</item><item>3</item>", {1, 2, 3}},
      {"<item>1</item>", {}},
      {"<count>2</count><item>1</item><item>2</item><item>3</item>", {1, 2}},
      {"<count>5</count><item>1</item><item>2</item>", {1, 2, 1, 2, 1}},
      {"<count>3</count><item>1</item>", {1, 0, 0}}};
  for (const auto& [content, read] : cases) {
    EXPECT_EQ(ReadValue<Numbers>(content, {7}), read) << content;
  }
}

TEST(XmlIarchive, AForgedCountIsRefused) {
  const std::string item = "<item><count>30000</count><item>x</item><item>y</item></item>";
  for (const std::string& content :
       {std::string("<count>4000000000</count><item/>"),
        std::string("<count>18446744073709551615</count><item/><item/>"),
        "<count>30000</count>" + item + item,
        "<count>20000</count><item><count>1</count><item>" + std::string(100'000, 'x') +
            "</item></item><item/>",
        std::string("<count>-1</count>")}) {
    EXPECT_EQ(Fault([&] { ReadValue<std::vector<std::vector<std::string>>>(content); }),
              "can't convert text to data");
  }
}

TEST(XmlIarchive, FixedArraysTakeWhatFits) {
  std::string nine = "<count>9</count>";
  for (int i = 11; i < 20; ++i) nine += "<item>" + std::to_string(i) + "</item>";
  using Plain = std::array<int, 3>;
  EXPECT_EQ(ReadValue<Plain>("<count>2</count><item>5</item><item>6</item>", {1, 2, 3}),
            (Plain{5, 6, 3}));
  EXPECT_EQ(ReadValue<Plain>("<item>5</item>", {1, 2, 3}), (Plain{1, 2, 3}));
  EXPECT_EQ(Fault([&] { ReadValue<Plain>(nine); }), "array size too short");

  struct Wrapped {
    short items[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    void serialize(xml_iarchive& ar, unsigned) {
      SerializeArray<short, short, 8> all(items);
      ar& nvp("all", all);
    }
  };
  const auto read = [](const std::string& content) {
    const Wrapped wrapped = ReadContent<Wrapped>("<all>" + content + "</all>");
    return std::vector<int>(wrapped.items, wrapped.items + 8);
  };
  EXPECT_EQ(read(nine), (std::vector<int>{11, 12, 13, 14, 15, 16, 17, 18}));
  EXPECT_EQ(read("<count>-2</count><item>9</item>"), (std::vector<int>{9, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(read("<count>1</count><item>9</item><item>9</item>"),
            (std::vector<int>{9, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(read("<item>9</item>"), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(Fault([&] { read("<count>40000</count>"); }), "can't convert text to data");
}

TEST(XmlIarchive, SetsDropRepeatedEntries) {
  EXPECT_EQ(ReadValue<std::set<std::string>>(
                "<count>3</count><item>b</item><item>a</item><item>b</item>", {"old"}),
            (std::set<std::string>{"a", "b"}));
}

TEST(XmlIarchive, TextIsThatOfAllDescendants) {
  EXPECT_EQ(ReadValue<std::string>("a<b>c<![CDATA[<d>]]></b><!-- e -->f"), "ac<d>f");
  EXPECT_EQ(ReadValue<std::string>(" x&amp;y "), " x&y ");
  EXPECT_EQ(ReadValue<double>("<i>1</i>.<i>5</i>"), 1.5);
}

TEST(XmlIarchive, NumbersAreCheckedAgainstTheirType) {
  EXPECT_EQ(ReadValue<signed char>("-128"), -128);
  EXPECT_EQ(ReadValue<unsigned char>("255"), 255);
  EXPECT_EQ(ReadValue<char>("65"), 'A');
  EXPECT_EQ(ReadValue<bool>("", true), false);
  EXPECT_EQ(ReadValue<double>("", 5), 0);
  void (*const wrong[])() = {
      [] { ReadValue<signed char>("128"); }, [] { ReadValue<unsigned char>("-1"); },
      [] { ReadValue<short>("32768"); },     [] { ReadValue<int>(""); },
      [] { ReadValue<bool>("2"); },          [] { ReadValue<double>("1.5x"); }};
  for (const auto& read : wrong) EXPECT_EQ(Fault(read), "can't convert text to data");
}

TEST(XmlIarchive, AFaultSaysWhere) {
  Outer outer;
  const auto fault = [&](const char* text, std::uint32_t bits) {
    try {
      Read(text, outer, "Inputs", bits);
    } catch (const xml_archive_exception& error) {
      return std::string(error.what()) + " at " + error.where();
    }
    return std::string("no fault");
  };
  EXPECT_EQ(fault("<Inputs><list><count>1</count><item><a>x1</a></item></list></Inputs>",
                  flags::kPageTransfer),
            "can't convert text to data at Inputs/list/item/a = x1");
  EXPECT_EQ(fault("<Inputs><inner><a>5</a></inner></Inputs>", kStrict),
            "missing element at Inputs/inner/b");
  EXPECT_EQ(outer.inner.a, 5) << "what came before the fault is changed";
}

TEST(XmlIarchive, EachMisuseHasItsText) {
  const Document document = Document::Parse("<Inputs><a>1</a></Inputs>");
  xml_iarchive archive(document, kStrict);
  int number = 0;
  EXPECT_EQ(Fault([&] { archive.load_end("Inputs"); }), "missing curnode");
  EXPECT_EQ(Fault([&] { (void)archive.text(); }), "missing curnode");
  EXPECT_EQ(Fault([&] { archive.load_start("Other"); }), "missing element");
  archive.load_start("Inputs");
  EXPECT_EQ(archive.text(), "1");
  EXPECT_EQ(Fault([&] { archive >> nvp("b", number); }), "missing element");
  EXPECT_EQ(Fault([&] { archive.load_end("a"); }), "element mismatch");
  archive.load_end("Inputs");

  xml_iarchive rooted(Document::Parse("<zel_tessary_archive/>"), flags::kArchive);
  rooted.load_end("zel_tessary_archive");
  EXPECT_EQ(Fault([&] { rooted.load_start("Inputs"); }), "missing curnode");
  EXPECT_EQ(Fault([&] { (void)rooted.load_info(class_info::version); }), "missing curnode");
}

TEST(XmlIarchive, FindsTheRootUnderEachName) {
  const auto version = [](const char* text, std::uint32_t bits) {
    return xml_iarchive(Document::Parse(text), bits).library_version();
  };
  EXPECT_EQ(version("<zel_tessary_archive version=\"2\"/>", 0), 2u);
  EXPECT_EQ(version("<boost_serialization version=\"3\"/>", flags::kLongNames), 3u);
  EXPECT_EQ(version("<ZELTessary_Serialization/>", 0), 1u);
  EXPECT_EQ(version("<ZELTessary_Serialization/>", flags::kLongNames), 1u);
  for (const char* other : {"<boost_serialization/>", "<Inputs/>"}) {
    EXPECT_EQ(Fault([&] { version(other, flags::kTolerateMissing); }), "missing element");
  }
  EXPECT_EQ(Fault([&] { version("<zel_tessary_archive version=\"x\"/>", 0); }),
            "can't convert text to data");
  Outer outer;
  Read("<zel_tessary_archive><O><text>T</text></O></zel_tessary_archive>", outer, "O",
       flags::kNoClassInfo | flags::kTolerateMissing);
  EXPECT_EQ(outer.text, "T");
}

TEST(XmlIarchive, ClassInformationIsReadOnlyWhenItIsThere) {
  const Document document = Document::Parse(
      "<e class_id=\"5\" object_id=\"_6\" class_name=\"Key\"><f clsid=\"1\" version=\"x\"/></e>");
  xml_iarchive plain(document, flags::kPageTransfer);
  plain.load_start("e");
  EXPECT_EQ(plain.load_info(class_info::class_id), 0);
  EXPECT_EQ(plain.load_info(class_info::version), 0);
  EXPECT_EQ(plain.load_class_name(), "");

  xml_iarchive full(document, flags::kNoRoot | flags::kLongNames | flags::kTolerateMissing);
  full.load_start("e");
  EXPECT_EQ(full.load_info(class_info::class_id), 5);
  EXPECT_EQ(full.load_info(class_info::object_id), 6);
  EXPECT_EQ(full.load_info(class_info::tracking_level), 0);
  EXPECT_EQ(full.load_class_name(), "Key");
  EXPECT_EQ(Fault([&] { (void)full.load_info(class_info::version); }), "missing attribute");
  full.load_start("f");
  EXPECT_EQ(full.load_info(class_info::class_id), 0);  // the other naming's attribute
  EXPECT_EQ(Fault([&] { (void)full.load_info(class_info::version); }),
            "can't convert text to data");
  full.load_end("f");
  full.load_start("missing");
  EXPECT_EQ(full.load_info(class_info::version), 0);
}

struct Versioned {
  static constexpr unsigned class_version = 3;
  unsigned seen = 99;
  template <class Archive>
  void serialize(Archive&, unsigned version) {
    seen = version;
  }
};

TEST(XmlIarchive, TheVersionIsTheDocumentsOne) {
  Versioned object;
  Read("<V/>", object, "V");
  EXPECT_EQ(object.seen, 0u);
  Read("<V clsid=\"0\" trklvl=\"0\" version=\"2\"/>", object, "V", flags::kNoRoot);
  EXPECT_EQ(object.seen, 2u);
  EXPECT_EQ(Fault([&] { Read("<V clsid=\"0\"/>", object, "V", flags::kNoRoot); }),
            "missing attribute");
}

}  // namespace
