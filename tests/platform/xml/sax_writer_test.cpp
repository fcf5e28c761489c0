// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/sax_writer.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include "platform/xml/xml_error.h"

namespace {

using platform::xml::Document;
using platform::xml::SaxAttribute;
using platform::xml::SaxWriter;
using platform::xml::TextForm;
using platform::xml::XmlError;

std::string Told(const std::function<void(SaxWriter&)>& tell) {
  Document document;
  SaxWriter writer(document);
  writer.StartDocument();
  tell(writer);
  writer.EndDocument();
  return document.ToText(TextForm::kBare);
}

TEST(SaxWriter, BuildsWhatItIsTold) {
  EXPECT_EQ(Told([](SaxWriter& writer) {
              const SaxAttribute attributes[] = {{"one", "1 < 2"}, {"two", ""}};
              writer.StartDtd("root");
              writer.EndDtd();
              writer.Comment("before");
              writer.StartElement("root", attributes);
              writer.Characters("a");
              writer.Characters("");
              writer.Characters("&b, longer than a node holds");
              writer.StartElement("inner", {});
              writer.EndElement("inner");
              writer.Comment("between");
              writer.TextElement("leaf", "text");
              writer.TextElement("empty", "");
              writer.Characters("c");
              writer.EndElement("root");
            }),
            "<!DOCTYPE root><!--before--><root one=\"1 &lt; 2\" two=\"\">"
            "a&amp;b, longer than a node holds<inner/><!--between--><leaf>text</leaf><empty/>c"
            "</root>");
}

// Names are known again by their place in memory; what stands there may have changed.
TEST(SaxWriter, LooksAtTheNameNotAtItsAddress) {
  EXPECT_EQ(Told([](SaxWriter& writer) {
              std::string name = "first";
              writer.StartElement("root", {});
              for (const char* next : {"first", "other", "otheR", "oth", "other"}) {
                name = next;
                writer.TextElement(name, "");
              }
              writer.EndElement("root");
            }),
            "<root><first/><other/><otheR/><oth/><other/></root>");
}

// Texts from 1 to 40 bytes: within a node, at its edge, and beyond.
TEST(SaxWriter, TextsOfEveryLengthStand) {
  for (std::size_t length = 1; length <= 40; ++length) {
    const std::string text(length, 'x');
    EXPECT_EQ(Told([&](SaxWriter& writer) { writer.TextElement("e", text); }),
              "<e>" + text + "</e>");
    EXPECT_EQ(Told([&](SaxWriter& writer) {
                writer.StartElement("e", {});
                writer.Characters(text);
                writer.Characters(text);
                writer.EndElement("e");
              }),
              "<e>" + text + text + "</e>");
  }
}

TEST(SaxWriter, TheTreeCanBeEditedAfterwards) {
  Document document;
  {
    SaxWriter writer(document);
    writer.StartDocument();
    writer.StartElement("root", {});
    writer.TextElement("short", "1");
    writer.TextElement("long", "more text than a node has room for");
    writer.EndElement("root");
    writer.EndDocument();
  }
  platform::xml::Element root = document.Root();
  const Document copy = document.Clone();
  root.Child("long").SetText("2");
  root.Child("short").SetText("more text than a node has room for");
  root.AppendCopy(copy.Root());
  auto first = root.Child("short");
  first.Remove();
  EXPECT_EQ(document.ToText(TextForm::kBare),
            "<root><long>2</long><root><short>1</short>"
            "<long>more text than a node has room for</long></root></root>");
}

TEST(SaxWriter, RefusesWhatIsNoDocument) {
  const std::function<void(SaxWriter&)> wrong[] = {
      [](SaxWriter& writer) { writer.StartElement("a b", {}); },
      [](SaxWriter& writer) { writer.StartElement("", {}); },
      [](SaxWriter& writer) { writer.TextElement("p:a", ""); },
      [](SaxWriter& writer) { writer.EndElement("a"); },
      [](SaxWriter& writer) { writer.Characters("text"); },
      [](SaxWriter& writer) { writer.StartElement("a", {}); },
      [](SaxWriter& writer) { writer.Comment("a--b"); },
      [](SaxWriter& writer) { writer.Comment("a-"); },
      [](SaxWriter& writer) { writer.TextElement("a", "\x01"); },
      [](SaxWriter& writer) { writer.TextElement("a", ""), writer.TextElement("b", ""); },
      [](SaxWriter& writer) { writer.TextElement("a", ""), writer.StartDtd("a"); },
      [](SaxWriter& writer) { writer.StartElement("a", {}), writer.EndElement("b"); },
      [](SaxWriter& writer) {
        writer.StartElement("a", std::array{SaxAttribute{"x", "\x01"}});
      }};
  for (const auto& tell : wrong) EXPECT_THROW(Told(tell), XmlError);
}

}  // namespace
