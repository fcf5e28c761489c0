// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/composed_document.h"

#include <gtest/gtest.h>

#include "platform/xml/stylesheet.h"

namespace {

using platform::xml::ComposedDocument;
using platform::xml::CountNodes;
using platform::xml::Document;
using platform::xml::Element;
using platform::xml::TextForm;

constexpr const char* kFirst =
    "<!-- head --><r a='1' xmlns:p='urn:p'>text <one n='1'><p:deep/>in one</one> <!-- mid -->"
    "<two n='2'/> </r><?tail ?>";
constexpr const char* kSecond = "<s><three n='3'>a<b c='d'>e</b></three><four/></s>";

std::string Bare(const Document& document) { return document.ToText(TextForm::kBare); }

class Composed : public testing::Test {
 protected:
  const Document first_ = Document::Parse(kFirst);
  const Document second_ = Document::Parse(kSecond);
  const std::string firstText_ = Bare(first_);
  const std::string secondText_ = Bare(second_);
};

TEST_F(Composed, HoldsTheElementsInTheirOrderAndGivesThemBack) {
  {
    const ComposedDocument composed(
        first_, {second_.Root(), first_.Root().Child("two"), first_.Root().Child("one")});
    EXPECT_EQ(Bare(composed.Get()),
              "<r xmlns:p=\"urn:p\"><s><three n=\"3\">a<b c=\"d\">e</b></three><four/></s>"
              "<two n=\"2\"/><one n=\"1\"><p:deep/>in one</one></r>");
  }
  EXPECT_EQ(Bare(first_), firstText_);
  EXPECT_EQ(Bare(second_), secondText_);
  {
    const ComposedDocument composed(second_, {first_.Root().Child("two")});
    EXPECT_EQ(Bare(composed.Get()), "<s><two n=\"2\"/></s>");
  }
  { const ComposedDocument empty(first_, {}); }
  EXPECT_EQ(Bare(first_), firstText_);
  EXPECT_EQ(Bare(second_), secondText_);
}

// A stylesheet finds its way by the document that a node says it belongs to, attributes included.
TEST_F(Composed, IsOneDocumentForAStylesheet) {
  Document output;
  {
    const ComposedDocument composed(first_,
                                    {second_.Root().Child("three"), first_.Root().Child("one")});
    platform::xml::Processor processor(
        platform::xml::Stylesheet::Compile(Document::Parse(R"xml(<xsl:stylesheet version="1.0"
            xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
          <xsl:key name="n" match="r/*" use="@n"/>
          <xsl:template match="/"><o><xsl:for-each select="//@c"><xsl:value-of
            select="name(/*)"/><xsl:value-of select="name(key('n', '1'))"/></xsl:for-each>
            <xsl:value-of select="count(//node())"/></o></xsl:template></xsl:stylesheet>)xml"),
                                           "test"));
    processor.SetInput(composed.Get());
    processor.SetOutput(output);
    ASSERT_TRUE(processor.Transform()) << processor.Error();
  }
  EXPECT_EQ(Bare(output), "<o>rone8</o>");
  EXPECT_EQ(Bare(second_), secondText_);
}

TEST_F(Composed, NodesAreCountedUpToABound) {
  EXPECT_EQ(CountNodes(second_.Root(), 100), 8u);
  EXPECT_EQ(CountNodes(second_.Root().Child("three"), 100), 6u);
  EXPECT_EQ(CountNodes(second_.Root(), 5), 5u);
  EXPECT_EQ(CountNodes(Element(), 5), 0u);
}

}  // namespace
