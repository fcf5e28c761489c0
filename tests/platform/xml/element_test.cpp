// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/element.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/xml/document.h"
#include "platform/xml/xml_error.h"

namespace {

using platform::xml::Document;
using platform::xml::Element;
using platform::xml::TextForm;
using platform::xml::ToText;
using platform::xml::XmlError;

constexpr const char* kLamps =
    "<p:lamps xmlns:p='u' p:kind='other' kind='own' empty=''>\n"
    "<!-- first --> <lamp>a<b>c</b><![CDATA[<d>]]></lamp> text\n"
    "<p:lamp/><rest/>\n"
    "</p:lamps>";

TEST(Element, FindsItsWay) {
  const Document document = Document::Parse(kLamps);
  const Element root = document.Root();
  EXPECT_EQ(root.BaseName(), "lamps");
  EXPECT_FALSE(root.Parent());
  const Element lamp = root.FirstChild();
  EXPECT_EQ(lamp.Text(), "ac<d>");
  EXPECT_EQ(lamp.Line(), 2);
  EXPECT_EQ(lamp.Parent(), root);
  EXPECT_EQ(root.Child("lamp"), lamp);
  EXPECT_EQ(lamp.NextSibling().BaseName(), "lamp");
  EXPECT_EQ(root.Child("rest"), lamp.NextSibling().NextSibling());
  EXPECT_FALSE(root.Child("rest").NextSibling());
  EXPECT_FALSE(root.Child("b"));
  EXPECT_FALSE(root.Child("rest").FirstChild());
  EXPECT_EQ(root.Child("rest").Text(), "");
}

TEST(Element, TellsAttributesApartByTheirPrefix) {
  const Document document = Document::Parse(kLamps);
  const Element root = document.Root();
  EXPECT_EQ(root.Attribute("kind"), "own");
  EXPECT_EQ(root.Attribute("p:kind"), "other");
  EXPECT_EQ(root.Attribute("none"), std::nullopt);
  EXPECT_EQ(root.Attribute("empty", "otherwise"), "");
  EXPECT_EQ(root.Attribute("none", "otherwise"), "otherwise");
}

TEST(Element, NoneHasNothing) {
  const Element none;
  EXPECT_FALSE(none);
  EXPECT_EQ(none.BaseName(), "");
  EXPECT_EQ(none.Text(), "");
  EXPECT_EQ(none.Attribute("a"), std::nullopt);
  EXPECT_EQ(none.Line(), 0);
  EXPECT_FALSE(none.Parent() || none.FirstChild() || none.NextSibling() || none.Child("a"));
  Element removed;
  removed.Remove();
}

TEST(Element, LinesAreKeptPastSixteenBits) {
  const Document document =
      Document::Parse("<a>" + std::string(70'000, '\n') + "<b>x</b>\n<c/>\n</a>");
  EXPECT_EQ(document.Root().FirstChild().Line(), 70'001);
}

TEST(Element, ChangesAndIsWritten) {
  Document document;
  Element root = document.CreateRoot("a");
  root.SetAttribute("b", "1");
  root.SetAttribute("b", "<&\"");
  Element child = root.AppendElement("c");
  child.SetText("<&amp;>");
  root.AppendElement("d").SetText("");
  EXPECT_EQ(document.ToText(TextForm::kBare),
            "<a b=\"&lt;&amp;&quot;\"><c>&lt;&amp;amp;&gt;</c><d/></a>");
  EXPECT_EQ(child.Line(), 0);
  root.SetText("all");
  EXPECT_EQ(document.ToText(TextForm::kBare), "<a b=\"&lt;&amp;&quot;\">all</a>");
}

TEST(Element, CopiesAndRemoves) {
  Document from = Document::Parse("<p:a xmlns:p='u'><p:b c='1'>x<d/></p:b></p:a>");
  Document to = Document::Parse("<r><gone/></r>");
  Element copy = to.Root().AppendCopy(from.Root().FirstChild());
  Element gone = to.Root().Child("gone");
  gone.Remove();
  EXPECT_FALSE(gone);
  copy.SetAttribute("c", "2");
  EXPECT_EQ(to.ToText(TextForm::kBare), "<r><p:b xmlns:p=\"u\" c=\"2\">x<d/></p:b></r>");
  to.Root().AppendCopy(to.Root());
  from = Document();
  EXPECT_EQ(to.ToText(TextForm::kBare),
            "<r><p:b xmlns:p=\"u\" c=\"2\">x<d/></p:b>"
            "<r><p:b xmlns:p=\"u\" c=\"2\">x<d/></p:b></r></r>");
}

TEST(Element, JoinsTheNamespacesInScope) {
  Document document = Document::Parse("<p:a xmlns='u' xmlns:p='v'><b/></p:a>");
  document.Root().AppendElement("p:c").AppendElement("d").SetAttribute("p:e", "1");
  const Document again = Document::Parse(document.ToText(TextForm::kBare));
  EXPECT_EQ(ToText(again.Root(), TextForm::kBare),
            "<p:a xmlns=\"u\" xmlns:p=\"v\"><b/><p:c><d p:e=\"1\"/></p:c></p:a>");
  EXPECT_EQ(document.Root().Child("c").FirstChild().Attribute("p:e"), "1");
  EXPECT_THROW(document.Root().AppendElement("q:c"), XmlError);
  EXPECT_THROW(document.Root().SetAttribute("q:c", ""), XmlError);
}

TEST(Element, RefusalsChangeNothing) {
  Document document = Document::Parse("<a b='1'>x</a>");
  Element root = document.Root();
  const std::function<void()> refused[] = {
      [&] { root.SetText("a\x01"); },
      [&] { root.SetText("\xFF"); },
      [&] { root.SetText(std::string_view("a\0b", 3)); },
      [&] { root.SetAttribute("b", "\xEF\xBF\xBF"); },
      [&] { root.SetAttribute("b b", "2"); },
      [&] { root.SetAttribute("", "2"); },
      [&] { root.AppendElement("1"); },
      [&] { root.AppendElement("<"); },
      [&] { root.AppendElement("\xC3"); },
      [&] { root.AppendCopy(Element()); },
      [] { Element().SetText("x"); },
      [] { Element().SetAttribute("a", "x"); },
      [] { Element().AppendElement("a"); },
      [&] { Element().AppendCopy(root); },
  };
  for (const auto& act : refused) EXPECT_THROW(act(), XmlError);
  EXPECT_EQ(document.ToText(TextForm::kBare), "<a b=\"1\">x</a>");
}

}  // namespace
