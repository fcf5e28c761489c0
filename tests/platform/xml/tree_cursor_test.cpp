// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/tree_cursor.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/xml/document.h"

namespace {

using platform::xml::Document;
namespace cursor = platform::xml::cursor;

TEST(TreeCursor, FindsForwardAndThenFromTheStart) {
  const Document document =
      Document::Parse("<r>t<a/><b/><!-- c --><p:a xmlns:p=\"urn:x\"/><b/></r>");
  _xmlNode* root = cursor::Root(document.Handle());
  const cursor::Found first = cursor::FindChild(root, nullptr, "a");
  const cursor::Found second = cursor::FindChild(root, first.child, "a");
  EXPECT_FALSE(first.wrapped);
  EXPECT_FALSE(second.wrapped);
  EXPECT_NE(first.child, second.child);
  const cursor::Found again = cursor::FindChild(root, second.child, "a");
  EXPECT_TRUE(again.wrapped);
  EXPECT_EQ(again.child, first.child);
  EXPECT_EQ(cursor::FindChild(root, nullptr, "c").child, nullptr);
  const Document single = Document::Parse("<r><a/></r>");
  _xmlNode* only = cursor::FindChild(cursor::Root(single.Handle()), nullptr, "a").child;
  EXPECT_EQ(cursor::FindChild(cursor::Root(single.Handle()), only, "a").child, nullptr);
  EXPECT_EQ(cursor::Root(Document().Handle()), nullptr);
}

TEST(TreeCursor, MeasuresAndNamesWhatItStandsOn) {
  const Document document = Document::Parse("<r>ab<a>c<b><![CDATA[def]]></b></a><a/></r>");
  _xmlNode* root = cursor::Root(document.Handle());
  EXPECT_EQ(cursor::CountChildren(root, 10), 2u);
  EXPECT_EQ(cursor::CountChildren(root, 1), 1u);
  EXPECT_EQ(cursor::ExtentOf(root).elements, 4u);
  EXPECT_EQ(cursor::ExtentOf(root).textBytes, 6u);
  _xmlNode* a = cursor::FindChild(root, nullptr, "a").child;
  EXPECT_EQ(cursor::ExtentOf(a).elements, 2u);
  std::string scratch;
  EXPECT_EQ(cursor::Text(a, scratch), "cdef");
  _xmlNode* b = cursor::FindChild(a, nullptr, "b").child;
  EXPECT_EQ(cursor::Text(b, scratch), "def");
  EXPECT_EQ(cursor::Path(b), "r/a/b");
  EXPECT_EQ(cursor::Path(nullptr), "");
}

}  // namespace
