// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/stylesheet.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/xml/attack.h"
#include "platform/xml/xml_error.h"
#include "support/temp_folder.h"

namespace {

using platform::xml::Document;
using platform::xml::Processor;
using platform::xml::Stylesheet;
using platform::xml::TextForm;
using platform::xml::XmlError;
using test::Numbered;
using test::Repeat;
using testing::HasSubstr;

std::string Sheet(const std::string& content, const std::string& version = "1.0") {
  return "<xsl:stylesheet version='" + version +
         "' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>\n" + content + "</xsl:stylesheet>";
}

std::string OnRoot(const std::string& content) {
  return "<xsl:template match='/'><o>" + content + "</o></xsl:template>";
}

/// What the stylesheet makes of the input, or why it does not.
std::string Transformed(const std::string& sheet, const Document& input) {
  try {
    Processor processor(Stylesheet::Compile(Document::Parse(sheet), "lamp.xsl"));
    Document output;
    processor.SetInput(input);
    processor.SetOutput(output);
    if (processor.Transform()) return output.ToText(TextForm::kBare);
    EXPECT_FALSE(output.Root());
    EXPECT_EQ(processor.Error().find('\n'), std::string::npos);
    return "failed: " + processor.Error();
  } catch (const XmlError& error) {
    return std::string("refused: ") + error.what();
  }
}

std::string Transformed(const std::string& sheet, const std::string& input = "<a><b/><b/></a>") {
  return Transformed(sheet, Document::Parse(input));
}

TEST(Stylesheet, TellsWhereItIsWrong) {
  const struct {
    std::string sheet;
    const char* fault;
  } cases[] = {
      {"<a/>", "refused: lamp.xsl:1: document is not a stylesheet"},
      {Sheet("<xsl:template match='a['/>"), "refused: lamp.xsl:2: "},
      {Sheet("<xsl:template match='a'>\n<xsl:value-of select='1+'/></xsl:template>"),
       "refused: lamp.xsl:3: Invalid expression: 1+"},
      {Sheet("<xsl:template match='a'><xsl:nonsense/></xsl:template>"), "refused: lamp.xsl:2: "},
      {Sheet("<xsl:template match='/'>\n<xsl:value-of select='$none'/></xsl:template>"),
       "failed: 3: Variable 'none' has not been declared"},
      {Sheet(OnRoot("<xsl:message>note</xsl:message>"
                    "<xsl:message terminate='yes'>no lamp here</xsl:message>")),
       "failed: no lamp here"},
      {Sheet(OnRoot("<xsl:message>note</xsl:message>")), "<o/>"},
  };
  for (const auto& each : cases)
    EXPECT_THAT(Transformed(each.sheet), testing::StartsWith(each.fault));
}

TEST(Stylesheet, KeepsWhiteSpaceThatItCopies) {
  const std::string input = "<a> <b>x</b>\n\t<c> </c><!--n--></a>";
  EXPECT_EQ(
      Transformed(Sheet("<xsl:template match='/'><xsl:copy-of select='.'/></xsl:template>"), input),
      input);
  EXPECT_EQ(Transformed(Sheet("<xsl:template match='node()'><xsl:copy><xsl:apply-templates/>"
                              "</xsl:copy></xsl:template>"),
                        input),
            input);
}

TEST(Stylesheet, LeavesTheInputAsItIs) {
  const Document input = Document::Parse("<a> <b/> </a>");
  const auto strips =
      Sheet("<xsl:strip-space elements='*'/>" + OnRoot("<xsl:copy-of select='a'/>"));
  EXPECT_EQ(Transformed(strips, input), "<o><a><b/></a></o>");
  EXPECT_EQ(input.ToText(TextForm::kBare), "<a> <b/> </a>");
}

TEST(Stylesheet, RunsAgainAndOutlivesItsSource) {
  Processor processor(Stylesheet::Compile(
      Document::Parse(
          Sheet(OnRoot("<xsl:value-of select='count(//b)'/><xsl:copy-of select='*'/>"))),
      "lamp.xsl"));
  Document output;
  processor.SetOutput(output);
  for (const char* input : {"<a><b/></a>", "<a/>", "<p:a xmlns:p='u' p:b='1'>x</p:a>"}) {
    processor.SetInput(Document::Parse(input));
    ASSERT_TRUE(processor.Transform()) << processor.Error();
  }
  processor.SetInput(Document());
  // What came out is a tree of its own that can be changed and written.
  output.Root().AppendElement("new").SetText("y");
  EXPECT_EQ(output.ToText(TextForm::kBare),
            "<o>0<p:a xmlns:p=\"u\" p:b=\"1\">x</p:a><new>y</new></o>");
  const Document clone = output.Clone();
  output.Root().Child("a").Remove();
  EXPECT_EQ(clone.Root().Child("a").Attribute("p:b"), "1");
}

TEST(Stylesheet, OutputMayBeTheInput) {
  Document both = Document::Parse("<a><b/></a>");
  Processor processor(
      Stylesheet::Compile(Document::Parse(Sheet("<xsl:key name='k' match='b' use='name()'/>" +
                                                OnRoot("<xsl:copy-of select=\"key('k', 'b')\"/>"))),
                          "lamp.xsl"));
  processor.SetInput(both);
  processor.SetOutput(both);
  ASSERT_TRUE(processor.Transform());
  EXPECT_EQ(both.ToText(TextForm::kBare), "<o><b/></o>");
}

TEST(Stylesheet, KnowsLinesOfLongInputsToo) {
  // Past 65535 libxml2 keeps lines where libxslt may look for marks of its own.
  const std::string input =
      "<a>" + Numbered(70'000, [](int i) { return "<b>" + std::to_string(i) + "</b>\n"; }) + "</a>";
  EXPECT_EQ(Transformed(Sheet("<xsl:key name='k' match='b/text()' use='.'/>" +
                              OnRoot("<xsl:value-of select=\"count(key('k', '69999'))\"/>"
                                     "<xsl:value-of select='generate-id(//b[69999]/text()) = "
                                     "generate-id(//b[69998]/text())'/>")),
                        input),
            "<o>1false</o>");
}

TEST(Stylesheet, ReadsAndWritesNothingOutside) {
  const test::TempFolder folder;
  const std::string sheet = folder.Write("part.xsl", Sheet("<xsl:template match='a'/>"));
  const std::string data = folder.Write("data.xml", "<secret/>");
  const std::string target = folder.Path() / "written.xml";
  const std::string out = " href='" + target + "'";
  const struct {
    std::string content;
    const char* version;
  } cases[] = {
      {"<xsl:include href='" + sheet + "'/>" + OnRoot(""), "1.0"},
      {"<xsl:import href='file://" + sheet + "'/>" + OnRoot(""), "1.0"},
      {"<xsl:import href='http://127.0.0.1:9/part.xsl'/>" + OnRoot(""), "1.0"},
      {OnRoot("<xsl:copy-of select=\"document('" + data + "')\"/>"), "1.0"},
      {OnRoot("<xsl:copy-of select=\"document('file://" + data + "')//*\"/>"), "1.0"},
      {OnRoot("<xsl:copy-of select=\"document('http://127.0.0.1:9/data.xml')\"/>"), "1.0"},
      {OnRoot("<xsl:copy-of select=\"document(//none, /) | document('" + data +
              "#xpointer(/)')\"/>"),
       "1.0"},
      {OnRoot("<xsl:document" + out + "><x/></xsl:document>"), "1.1"},
      {OnRoot("<xt:document xmlns:xt='http://www.jclark.com/xt'" + out + "><x/></xt:document>"),
       "1.0"},
      {OnRoot("<saxon:output xmlns:saxon='http://icl.com/saxon'" + out + "><x/></saxon:output>"),
       "1.0"},
      {OnRoot("<r:write xmlns:r='org.apache.xalan.xslt.extensions.Redirect' file='" + target +
              "'><x/></r:write>"),
       "1.0"},
      {OnRoot("<e:document xmlns:e='http://exslt.org/common'" + out + "><x/></e:document>"), "1.0"},
  };
  for (const auto& each : cases) {
    // Extension elements are only those whose prefix the stylesheet names as such.
    std::string text = Sheet(each.content, each.version);
    text.insert(text.find(" version="),
                " extension-element-prefixes='xt saxon r e'"
                " xmlns:xt='http://www.jclark.com/xt' xmlns:saxon='http://icl.com/saxon'"
                " xmlns:r='org.apache.xalan.xslt.extensions.Redirect'"
                " xmlns:e='http://exslt.org/common'");
    EXPECT_THAT(Transformed(text), testing::MatchesRegex("(failed|refused): .*"));
    EXPECT_FALSE(std::filesystem::exists(target)) << each.content;
  }
}

/// A template named "t" that the root calls.
std::string Calls(const std::string& content) {
  return OnRoot("<xsl:call-template name='t'/>") + "<xsl:template name='t'>" + content +
         "</xsl:template>";
}

std::string Again(const std::string& parameter) {
  return "<xsl:call-template name='t'><xsl:with-param name='p' select=\"" + parameter +
         "\"/></xsl:call-template>";
}

/// Variables v1 to v100, each made from the one before.
template <class Make>
std::string Chain(const std::string& first, Make make) {
  return OnRoot("<xsl:variable name='v0'>" + first + "</xsl:variable>" + Numbered(100, [&](int i) {
                  return "<xsl:variable name='v" + std::to_string(i) + "'" +
                         make("$v" + std::to_string(i - 1)) + "</xsl:variable>";
                }));
}

TEST(Stylesheet, EndsEndlessWork) {
  const std::string input = "<a>" + Repeat("<b><c/><c/><c/></b>", 200) + "</a>";
  const char* deep = "infinite template recursion";
  const char* long_ = "Operation limit exceeded";
  const char* large = "more memory than its input allows";
  const std::string two = "<xsl:param name='p' select='60'/><xsl:if test='$p &gt; 0'>";
  const struct {
    const char* what;
    std::string content;
    const char* fault;
  } cases[] = {
      {"recursion", Calls("<xsl:call-template name='t'/>"), deep},
      {"recursion by match",
       "<xsl:template match='/'><xsl:apply-templates select='/'/></xsl:template>", deep},
      {"recursion with much on the stack",
       Calls(Repeat("<xsl:if test='1'>", 240) + "<xsl:call-template name='t'/>" +
             Repeat("</xsl:if>", 240)),
       deep},
      {"exponential calls", Calls(two + Again("$p - 1") + Again("$p - 1") + "</xsl:if>"), long_},
      {"nested paths",
       OnRoot("<xsl:value-of select='count(" + Repeat("//*[", 40) + "1" + Repeat("]", 40) + ")'/>"),
       long_},
      {"a string that doubles",
       Calls("<xsl:param name='p' select=\"'0123456789'\"/>" + Again("concat($p, $p)")), large},
      {"a string that grows two hundred times",
       Chain("0123456789",
             [](const std::string& v) {
               return " select='concat(" + v + Repeat(", " + v, 200) + ")'>";
             }),
       large},
      {"text that doubles",
       Chain("0123456789",
             [](const std::string& v) {
               return ">" + Repeat("<xsl:value-of select='" + v + "'/>", 2);
             }),
       large},
      {"a tree that doubles",
       Chain("<x/><x/>",
             [](const std::string& v) {
               return ">" + Repeat("<xsl:copy-of select='" + v + "'/>", 2);
             }),
       large},
      {"attribute sets that use themselves",
       "<xsl:attribute-set name='s' use-attribute-sets='s'/>"
       "<xsl:template match='/'><o xsl:use-attribute-sets='s'/></xsl:template>",
       "recursion"},
  };
  for (const auto& each : cases) {
    const test::Stopwatch watch;
    EXPECT_THAT(Transformed(Sheet(each.content), input), HasSubstr(each.fault)) << each.what;
    EXPECT_LT(watch.Seconds(), 5.0) << each.what;
  }
}

TEST(Stylesheet, EndsWorkThatOneInstructionDoes) {
  const std::string many = "<a>" + Repeat("<b>0123456789</b>", 20'000) + "</a>";
  const std::string deep = "<r>" + Repeat(Repeat("<a>", 250) + Repeat("</a>", 250), 100) + "</r>";
  const std::pair<std::string, const std::string&> cases[] = {
      {OnRoot("<xsl:copy-of select='//*'/>"), deep},
      {OnRoot("<xsl:for-each select='//b'><xsl:copy-of select='/'/></xsl:for-each>"), many},
      {"<xsl:key name='k' match='*' use='string(/)'/>" +
           OnRoot("<xsl:copy-of select=\"key('k', 1)\"/>"),
       many},
  };
  for (const auto& [content, input] : cases)
    EXPECT_THAT(Transformed(Sheet(content), input), HasSubstr("than its input allows"));
}

TEST(Stylesheet, HonestWorkGrowsWithTheInput) {
  const std::string input = "<a>" + Repeat("<b c='1'><d>0123456789</d></b>\n", 60'000) + "</a>";
  const std::string rename =
      "<xsl:template match='node()|@*'><xsl:copy><xsl:apply-templates "
      "select='node()|@*'/></xsl:copy>"
      "</xsl:template>";
  EXPECT_EQ(Transformed(Sheet(rename), input).size(), input.size());
  const std::string text(9 << 20, 'x');
  const std::string thrice =
      Transformed(Sheet(OnRoot(Repeat("<xsl:copy-of select='a'/>", 3))), "<a>" + text + "</a>");
  EXPECT_GT(thrice.size(), 3 * text.size());
}

}  // namespace
