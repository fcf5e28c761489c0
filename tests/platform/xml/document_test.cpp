// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/document.h"

#include <gmock/gmock.h>

#include "platform/xml/attack.h"
#include "platform/xml/xml_error.h"

namespace {

using platform::xml::Document;
using platform::xml::IsXmlText;
using platform::xml::ReadLimits;
using platform::xml::TextForm;
using platform::xml::XmlError;
using test::Numbered;
using test::Repeat;
using testing::HasSubstr;
using testing::StartsWith;

/// "MESSAGE", or "taken" for a document that was read. The line is part of the message.
std::string FaultOf(std::string_view bytes, const ReadLimits& limits = {}) {
  try {
    Document::Parse(bytes, limits);
  } catch (const XmlError& error) {
    const std::string message = error.what();
    EXPECT_EQ(message.find('\n'), message.npos) << message;
    const std::string line = error.Line() > 0 ? std::to_string(error.Line()) + ": " : "";
    EXPECT_THAT(message, StartsWith(line));
    return message;
  }
  return "taken";
}

std::string Rewritten(std::string_view bytes, TextForm form) {
  return Document::Parse(bytes).ToText(form);
}

TEST(DocumentParse, RefusesWhatIsNotWellFormedWithTheLine) {
  const struct {
    std::string bytes;
    const char* fault;
  } cases[] = {
      {"", "empty"},
      {" \n ", "Start tag expected"},
      {"text", "1: Start tag expected"},
      {"<a>\n<b></a>", "2: Opening and ending tag mismatch"},
      {"<a>", "Premature end of data"},
      {"<a/>\n<b/>", "2: Extra content"},
      {"<a>\n\n&nbsp;</a>", "3: Entity 'nbsp' not defined"},
      {"<a b='1' b='2'/>", "1: Attribute b redefined"},
      {"\n<p:a/>", "2: Namespace prefix p on a is not defined"},
      {"<a b='<'/>", "1: '<' in an attribute's value"},
      {"<a>\x01</a>", "1: bytes that are not text in UTF-8"},
      {"<a>\n\xE4</a>", "2: bytes that are not text in UTF-8"},
      {"<a>&#1;</a>", "1: xmlParseCharRef: invalid xmlChar value 1"},
      {std::string("<\0a\0/\0>\0", 8), "1: bytes that are not text in UTF-8"},
      {"<?xml version='1.0' encoding='UTF-16'?><a/>", "1: the document's encoding is not UTF-8"},
      {"<?xml version='1.0' encoding='UTF-7'?><a/>", "1: the document's encoding is not UTF-8"},
      {"<?xml version='1.0 encoding='utf-8'' encoding='UTF-7'?><a/>",
       "1: the XML declaration cannot be read"},
      {"<?xml encoding='utf-8'?><a/>", "1: the XML declaration cannot be read"},
      {Repeat("\n", 70'000) + "<a></b>", "70001: Opening and ending tag mismatch"},
  };
  for (const auto& each : cases)
    EXPECT_THAT(FaultOf(each.bytes), HasSubstr(each.fault)) << each.bytes.substr(0, 80);
}

TEST(DocumentParse, TakesEncodingsThatAreAsciiPlus) {
  const struct {
    std::string bytes;
    const char* text;
  } cases[] = {
      {"<a>\xC3\xA4</a>", "\xC3\xA4"},
      {"\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>\xC3\xA4</a>", "\xC3\xA4"},
      {"<?xml version='1.0' encoding = 'ISO-8859-1' standalone='yes' ?>\n<a>\xE4</a>", "\xC3\xA4"},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA4</a>", "\xC3\x83\xC2\xA4"},
      {"<?xml version='1.0' encoding='windows-1252'?><a>\x80</a>", "\xE2\x82\xAC"},
      {"<?xml-stylesheet href='none.xsl'?><a>x</a>", "x"},
  };
  for (const auto& each : cases) EXPECT_EQ(Document::Parse(each.bytes).Root().Text(), each.text);
  const auto declared = "<?xml version='1.0'\nencoding='latin1'?>\n<a/>";
  EXPECT_EQ(Document::Parse(declared).Root().Line(), 3);
}

TEST(DocumentParse, OpensNothingAndRefusesEveryDoctype) {
  const char* refused = "a document type declaration is not allowed";
  const std::string laughs = Numbered(40, [](int i) {
    const auto inner = "&x" + std::to_string(i - 1) + ";";
    return "<!ENTITY x" + std::to_string(i) + " '" + Repeat(inner, 10) + "'>";
  });
  for (const std::string& doctype :
       {std::string("<!DOCTYPE a>"), "<!DOCTYPE a [<!ENTITY x0 'x'>" + laughs + "]>",
        std::string("<!DOCTYPE a SYSTEM 'file:///etc/passwd'>"),
        std::string("<!DOCTYPE a [<!ENTITY % p SYSTEM 'http://127.0.0.1:9/'>%p;]>"),
        std::string("<!DOCTYPE a [<!ENTITY x0 SYSTEM 'file:///etc/passwd'>]>")})
    EXPECT_EQ(FaultOf("\n" + doctype + "<a>&x0;</a>"), "2: " + std::string(refused));
  EXPECT_EQ(FaultOf("<!-- <!DOCTYPE a> --><a><![CDATA[<!DOCTYPE a>]]></a>"), "taken");
  const std::string include =
      "<a xmlns:i='http://www.w3.org/2001/XInclude'><i:include href='file:///etc/passwd'/></a>";
  EXPECT_THAT(Rewritten(include, TextForm::kBare), HasSubstr("<i:include"));
}

TEST(DocumentParse, HoldsTheLimits) {
  ReadLimits few;
  few.bytes = 1000;
  few.elements = 6;
  few.attributesPerElement = 2;
  const struct {
    std::string bytes;
    const char* fault;
  } cases[] = {
      {"<a>" + std::string(993, 'x') + "</a>", "taken"},
      {"<a>" + std::string(994, 'x') + "</a>", "the document is longer than 1000 bytes"},
      {"<a><b/><b/><b/><b/><b/></a>", "taken"},
      {"<a>\n<b/><b/><b/><b/><b/><b/></a>", "2: more elements and attributes than 6"},
      {"<a b='' c=''><b b='' c=''/></a>", "taken"},
      {"<a b='' c=''><b b='' c=''/><c/></a>", "more elements and attributes than 6"},
      {"<a><!----><!----><?p?><?p?><b/></a>", "taken"},
      {"<a><!----><!----><?p?><?p?><b/><![CDATA[]]></a>", "more elements and attributes than 6"},
      {"<a b='' c='' d=''/>", "1: more attributes in an element than 2"},
      {"<a b = '=' c\n=\n\"'=='\"><!-- <x b='' c='' d=''/> --></a>", "taken"},
      {"<a><![CDATA[<x b='' c='' d=''/>]]>= = = = ''=''</a>", "taken"},
  };
  for (const auto& each : cases) EXPECT_THAT(FaultOf(each.bytes, few), HasSubstr(each.fault));
}

TEST(DocumentParse, TakesAsDeepAsTheParserAndNoDeeper) {
  EXPECT_EQ(FaultOf(Repeat("<a>", 256) + Repeat("</a>", 256)), "taken");
  EXPECT_EQ(FaultOf(Repeat("<a>", 257) + Repeat("</a>", 257)),
            "1: elements nested deeper than 256");
  EXPECT_EQ(FaultOf("<r>" + Repeat(Repeat("<a>", 200) + Repeat("</a>", 200), 3) + "</r>"), "taken");
}

// Each would keep the parser busy for long, most of them behind a fault that it does not stop at.
TEST(DocumentParse, RefusesBombsAtOnce) {
  const std::string wide =
      "<x " + Numbered(60'000, [](int i) { return "a" + std::to_string(i) + "='' "; }) + "/>";
  const auto scopes = [](int i) {
    const auto name = [i](int j) { return "n" + std::to_string(i) + "_" + std::to_string(j); };
    return "<a " + Numbered(200, [&](int j) { return "xmlns:" + name(j) + "='u' "; }) + ">";
  };
  const std::string inScope = Numbered(250, scopes);
  const std::string bombs[] = {
      wide,
      "<a b='1' b='2'>" + wide,
      "<a b=\"" + wide + "\"/>",
      "<a b=\"" + wide,
      "<a b c=\">" + wide + "\"/>",
      "<a ' " + wide + "'/>",
      "<a><!-- \x01 " + wide + "--></a>",
      "<a><!-- -- " + wide,
      "<a><? " + wide + "?></a>",
      "<a><?-p " + wide + "?></a>",
      "<a><![CDATA[\xFF" + wide + "]]></a>",
      "<a><!--" + std::string(10'000'001, ' ') + wide + "--></a>",
      "<a><![CDATA[" + std::string(10'000'001, ' ') + wide + "]]></a>",
      "<a><?p " + std::string(10'000'001, ' ') + wide + "?></a>",
      "<a b='" + std::string(10'000'001, ' ') + "'>" + wide,
      "<a>&#1;&none; ]]> " + wide,
      "<" + std::string(60'000, 'a') + "/><a>" + wide,
      Repeat("<a>", 1'000'000),
      inScope + Repeat("<n1_1:a/>", 200'000),
      Repeat("</a>", 100) + inScope + Repeat("<n1_1:a/>", 200'000),
  };
  for (const std::string& bomb : bombs) {
    const test::Stopwatch watch;
    EXPECT_NE(FaultOf(bomb), "taken");
    EXPECT_LT(watch.Seconds(), 2.0) << bomb.substr(0, 60);
  }
}

TEST(DocumentText, IndentsElementsAndNothingElse) {
  const struct {
    const char* what;
    const char* bytes;
    const char* indented;
  } cases[] = {
      {"elements only", "<a><b><c/></b><d>t</d></a>",
       "<a>\n  <b>\n    <c/>\n  </b>\n  <d>t</d>\n</a>\n"},
      {"text between elements", "<a><b>x<c><d/></c></b><b/></a>",
       "<a>\n  <b>x<c><d/></c></b>\n  <b/>\n</a>\n"},
      {"text behind elements", "<a><b><c/>x</b></a>", "<a>\n  <b><c/>x</b>\n</a>\n"},
      {"white space as a value", "<a><b> </b><c>\n</c></a>",
       "<a>\n  <b> </b>\n  <c>\n</c>\n</a>\n"},
      {"white space that is there", "<a>\n\t<b><c/></b>\n\n</a>",
       "<a>\n\t<b>\n    <c/>\n  </b>\n\n</a>\n"},
      {"white space to keep", "<a xml:space='preserve'><b><c/></b></a>",
       "<a xml:space=\"preserve\"><b><c/></b></a>\n"},
      {"comments and instructions", "<?p q?><!--x--><a><!--y--><b/><?p?></a><!--z-->",
       "<?p q?>\n<!--x-->\n<a>\n  <!--y-->\n  <b/>\n  <?p?>\n</a>\n<!--z-->\n"},
      {"a section", "<a><b><![CDATA[<&]]></b></a>", "<a>\n  <b><![CDATA[<&]]></b>\n</a>\n"},
      {"namespaces", "<p:a xmlns='u&amp;' xmlns:p='v' p:b='1'><c/></p:a>",
       "<p:a xmlns=\"u&amp;\" xmlns:p=\"v\" p:b=\"1\">\n  <c/>\n</p:a>\n"},
      {"no content", "<a></a>", "<a/>\n"},
  };
  const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  for (const auto& each : cases) {
    EXPECT_EQ(Rewritten(each.bytes, TextForm::kIndented), declaration + each.indented) << each.what;
    EXPECT_EQ(Rewritten(declaration + each.indented, TextForm::kIndented),
              declaration + each.indented)
        << each.what;
  }
}

TEST(DocumentText, BareAddsNothing) {
  const std::string bytes = "<?p q?><a b=\"1\"> <b>x</b>\n<c/><!--y--></a>";
  EXPECT_EQ(Rewritten(bytes, TextForm::kBare), bytes);
  const Document document = Document::Parse(bytes);
  EXPECT_EQ(ToText(document.Root().Child("b"), TextForm::kBare), "<b>x</b>");
  EXPECT_EQ(ToText(document.Root().Child("b"), TextForm::kIndented), "<b>x</b>\n");
  EXPECT_EQ(ToText(platform::xml::Element(), TextForm::kIndented), "");
  EXPECT_EQ(Document().ToText(TextForm::kBare), "");
}

TEST(DocumentText, CarriesEveryText) {
  for (const char* text : {"&<>\"'", "a\tb\nc\rd\r\n", " outer ", "]]>", "&amp;", "\x7F",
                           "\xC2\x85", "\xEF\xBF\xBD", "\xF0\x9F\x92\xA1"}) {
    Document document;
    auto root = document.CreateRoot("a");
    root.SetText(text);
    root.SetAttribute("b", text);
    for (const TextForm form : {TextForm::kIndented, TextForm::kBare}) {
      const Document read = Document::Parse(document.ToText(form));
      EXPECT_EQ(read.Root().Text(), text);
      EXPECT_EQ(read.Root().Attribute("b"), text);
    }
  }
}

TEST(DocumentText, WritesATreeOfAnyDepth) {
  Document document;
  auto element = document.CreateRoot("a");
  for (int i = 1; i < 100'000; ++i) element = element.AppendElement("a");
  EXPECT_EQ(document.ToText(TextForm::kBare),
            Repeat("<a>", 99'999) + "<a/>" + Repeat("</a>", 99'999));
}

TEST(Document, CopiesShareTheTreeAndClonesDoNot) {
  Document document;
  EXPECT_FALSE(document.Root());
  document.CreateRoot("a");
  EXPECT_THROW(document.CreateRoot("b"), XmlError);
  EXPECT_THROW(Document().CreateRoot("no name"), XmlError);
  Document copy = document;
  Document clone = document.Clone();
  copy.Root().AppendElement("b");
  EXPECT_EQ(document.ToText(TextForm::kBare), "<a><b/></a>");
  EXPECT_EQ(clone.ToText(TextForm::kBare), "<a/>");
}

TEST(XmlText, IsWhatXmlCanCarry) {
  for (const std::string& text :
       {std::string(), std::string("a\t\n\r z"), std::string("\x7F\xC2\x80"),
        std::string("\xEF\xBF\xBD\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF"), std::string(100, ' ')})
    EXPECT_TRUE(IsXmlText(text)) << text;
  for (const std::string& bad :
       {std::string(1, '\0'), std::string("\x01"), std::string("\x0B"), std::string("\x1F"),
        std::string("\xFF"), std::string("\xC3"), std::string("\xC0\x80"), std::string("\xE2\x82"),
        std::string("\xED\xA0\x80"), std::string("\xEF\xBF\xBE"), std::string("\xEF\xBF\xBF"),
        std::string("\xF4\x90\x80\x80")})
    for (const std::size_t place : {0, 1, 7, 8, 9, 20}) {
      std::string text(20, 'x');
      text.insert(place, bad);
      EXPECT_FALSE(IsXmlText(text)) << place << ' ' << bad;
    }
}

}  // namespace
