// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/relax_ng.h"

#include <gmock/gmock.h>

#include "platform/xml/xml_error.h"
#include "support/fault_of.h"

namespace {

using platform::xml::Document;
using platform::xml::RelaxNgSchema;
using platform::xml::XmlError;
using testing::HasSubstr;

std::string Grammar(const std::string& content) {
  return "<element name='lamps' xmlns='http://relaxng.org/ns/structure/1.0' "
         "datatypeLibrary='http://www.w3.org/2001/XMLSchema-datatypes'>\n" +
         content + "</element>";
}

std::string FaultOf(const std::string& grammar) {
  return test::FaultOf<XmlError>([&] { RelaxNgSchema::Compile(Document::Parse(grammar)); });
}

TEST(RelaxNg, TellsEveryFaultWithItsLine) {
  const auto schema = RelaxNgSchema::Compile(Document::Parse(
      Grammar("<zeroOrMore><element name='lamp'><attribute name='watts'><data type='double'/>"
              "</attribute></element></zeroOrMore>")));
  EXPECT_TRUE(schema.Validate(Document::Parse("<lamps/>")).empty());
  EXPECT_TRUE(schema.Validate(Document::Parse("<lamps>\n<lamp watts='1.5'/>\n</lamps>")).empty());
  const auto faults = schema.Validate(Document::Parse(
      "<lamps>\n<lamp watts='1'/>\n<lamp watts='much'/>\n<lamp/>\n<bulb/></lamps>"));
  ASSERT_FALSE(faults.empty());
  EXPECT_EQ(faults.front().line, 3);
  for (const auto& fault : faults) EXPECT_EQ(fault.text.find('\n'), std::string::npos);
  EXPECT_FALSE(schema.Validate(Document()).empty());
}

TEST(RelaxNg, RefusesSchemasThatAreNoneOrReachOutside) {
  EXPECT_THAT(FaultOf("<a/>"), HasSubstr("schema"));
  EXPECT_THAT(FaultOf(Grammar("<nonsense/>")), HasSubstr("nonsense"));
  EXPECT_EQ(FaultOf(Grammar("<externalRef href='/etc/passwd'/>")),
            "2: a schema may not include another file");
  EXPECT_EQ(FaultOf("<grammar xmlns='http://relaxng.org/ns/structure/1.0'>\n\n"
                    "<include href='http://127.0.0.1:9/a.rng'/></grammar>"),
            "3: a schema may not include another file");
}

TEST(RelaxNg, OutlivesItsSource) {
  const auto schema = [] { return RelaxNgSchema::Compile(Document::Parse(Grammar("<text/>"))); }();
  const RelaxNgSchema copy = schema;
  EXPECT_TRUE(copy.Validate(Document::Parse("<lamps>x</lamps>")).empty());
  EXPECT_FALSE(copy.Validate(Document::Parse("<lamps><x/></lamps>")).empty());
}

}  // namespace
