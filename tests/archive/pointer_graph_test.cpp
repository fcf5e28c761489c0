// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "archive/export.h"
#include "archive/support/round_trip.h"
#include "archive/xml_archive_exception.h"
#include "support/fault_of.h"

namespace {

using archive_test::Read;
using archive_test::Written;
template <class T>
using One = archive_test::Value<T>;
using boost::archive::archive_exception;
using zel::archive::class_export;
using zel::archive::export_registry;
using zel::archive::nvp;
using zel::archive::tracking_type;
namespace flags = zel::archive::flags;

constexpr std::uint32_t kFull = flags::kNoRoot;
constexpr std::uint32_t kFullLong = flags::kNoRoot | flags::kLongNames;

struct Node {
  int id = 0;
  Node* next = nullptr;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("id", id) & nvp("next", next);
  }
};

/// Three nodes, the last of which points back to the first.
struct Ring {
  Node* first = nullptr;
  Node* last = nullptr;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("first", first) & nvp("last", last);
  }
};

struct Shape {
  virtual ~Shape() = default;
  std::string name;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("name", name);
  }
};

struct Tag {
  virtual ~Tag() = default;
  int tag = 3;
  template <class Archive>
  void serialize(Archive&, unsigned) {}
};

struct Circle final : Tag, Shape {
  static constexpr unsigned class_version = 4;
  double radius = 0;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("base", static_cast<Shape&>(*this));
    ar& nvp("radius", radius);
  }
};

struct Stranger final : Shape {
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("base", static_cast<Shape&>(*this));
  }
};

const class_export<Shape> exportShape{"Shape"};
const class_export<Circle, Tag, Shape> exportCircle{"Circle"};

struct Drawing {
  std::shared_ptr<Shape> left;
  std::shared_ptr<Circle> right;
  std::unique_ptr<Shape> own;
  std::vector<std::shared_ptr<Shape>> all;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("left", left) & nvp("right", right) & nvp("own", own) & nvp("all", all);
  }
};

/// An object by value, and a pointer to it before or behind it.
struct Member {
  Node node;
  Node* before = nullptr;
  Node* behind = nullptr;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("before", before) & nvp("node", node) & nvp("behind", behind);
  }
};

struct Untracked {
  static constexpr tracking_type tracking = tracking_type::track_never;
  int value = 0;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("value", value);
  }
};

struct Always {
  static constexpr tracking_type tracking = tracking_type::track_always;
  int value = 5;
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("value", value);
  }
};

std::string Fault(auto&& body) { return test::FaultOf<archive_exception>(body); }

TEST(PointerGraph, IdsFollowTheFirstAppearanceAndLeadBack) {
  Node nodes[3] = {{10, &nodes[1]}, {11, &nodes[2]}, {12, &nodes[0]}};
  Ring ring{&nodes[0], &nodes[2]};
  EXPECT_EQ(Written(ring, "R", kFull),
            "<R clsid=\"0\" trklvl=\"0\" version=\"0\">"
            "<first clsid=\"1\" trklvl=\"1\" version=\"0\" objid=\"0\"><id>10</id>"
            "<next clsref=\"1\" objid=\"1\"><id>11</id>"
            "<next clsref=\"1\" objid=\"2\"><id>12</id>"
            "<next clsref=\"1\" objref=\"0\"/></next></next></first>"
            "<last clsref=\"1\" objref=\"2\"/></R>");
  for (const std::uint32_t bits : {kFull, kFullLong}) {
    Ring read;
    Read(Written(ring, "R", bits), read, "R", bits);
    const std::unique_ptr<Node> first(read.first), second(first->next), third(second->next);
    EXPECT_EQ(third->next, first.get());
    EXPECT_EQ(read.last, third.get());
    EXPECT_EQ(first->id * 10000 + second->id * 100 + third->id, 101112);
  }
  Node self{7, &self};
  EXPECT_EQ(Written(self, "S", kFullLong),
            "<S class_id=\"0\" tracking_level=\"1\" version=\"0\" object_id=\"_0\"><id>7</id>"
            "<next class_id_reference=\"0\" object_id_reference=\"_0\"/></S>");
}

TEST(PointerGraph, SharedObjectsAndTheirClassesReadBack) {
  Drawing drawing;
  drawing.right = std::make_shared<Circle>();
  drawing.right->radius = 2.5;
  drawing.right->name = "both";
  drawing.left = drawing.right;
  drawing.own = std::make_unique<Circle>();
  drawing.own->name = "own";
  drawing.all = {drawing.left, nullptr, std::make_shared<Shape>()};
  Drawing read;
  Read(Written(drawing, "D", kFull), read, "D", kFull);
  EXPECT_EQ(read.left.get(), read.right.get());
  EXPECT_EQ(read.all.at(0), read.left);
  EXPECT_EQ(read.all.at(1), nullptr);
  EXPECT_NE(read.all.at(2), nullptr);
  EXPECT_EQ(read.right->radius, 2.5);
  EXPECT_EQ(read.right->name, "both");
  EXPECT_EQ(read.right->tag, 3);
  EXPECT_EQ(read.right.use_count(), 3);
  ASSERT_NE(dynamic_cast<Circle*>(read.own.get()), nullptr);
  EXPECT_EQ(read.own->name, "own");
}

TEST(PointerGraph, ClassNamesAreWrittenForPolymorphicClasses) {
  One<std::shared_ptr<Shape>> one{std::make_shared<Circle>()};
  EXPECT_EQ(Written(one, "O", kFull),
            "<O clsid=\"0\" trklvl=\"0\" version=\"0\">"
            "<value clsid=\"1\" clsnm=\"Circle\" trklvl=\"1\" version=\"4\" objid=\"0\">"
            "<base clsid=\"2\" trklvl=\"1\" version=\"0\" objid=\"1\"><name/></base>"
            "<radius>0</radius></value></O>");
  EXPECT_NE(Written(one, "O", kFullLong).find("<value class_id=\"1\" class_name=\"Circle\" "),
            std::string::npos);
  one.value = nullptr;
  EXPECT_EQ(Written(one, "O", kFull),
            "<O clsid=\"0\" trklvl=\"0\" version=\"0\"><value clsid=\"-1\"/></O>");
  Read(Written(one, "O", kFull), one, "O", kFull);
  EXPECT_EQ(one.value, nullptr);
}

TEST(PointerGraph, APointerCanReferToAnObjectHeldByValueBeforeIt) {
  Member member;
  member.node.id = 4;
  member.behind = &member.node;
  Member read;
  Read(Written(member, "M", kFull), read, "M", kFull);
  EXPECT_EQ(read.behind, &read.node);
  EXPECT_EQ(read.node.id, 4);
  member.before = &member.node;
  EXPECT_EQ(Fault([&] { Written(member, "M", kFull); }), "pointer conflict");
}

TEST(PointerGraph, TrackingFollowsTheClass) {
  Untracked value{6};
  One<std::vector<Untracked*>> twice{{&value, &value}};
  const std::string text = Written(twice, "T", kFull);
  EXPECT_EQ(text.find("obj"), std::string::npos);
  One<std::vector<Untracked*>> read;
  Read(text, read, "T", kFull);
  const std::unique_ptr<Untracked> first(read.value.at(0));
  const std::unique_ptr<Untracked> second(read.value.at(1));
  EXPECT_NE(first, second);
  EXPECT_EQ(first->value + second->value, 12);

  One<Always> always;
  EXPECT_EQ(
      Written(always, "A", kFull),
      "<A clsid=\"0\" trklvl=\"0\" version=\"0\">"
      "<value clsid=\"1\" trklvl=\"1\" version=\"0\" objid=\"0\"><value>5</value></value></A>");
}

TEST(PointerGraph, CollectionsCarryClassInformationToo) {
  One<std::vector<Always>> list{{{1}, {2}}};
  const std::string text = Written(list, "L", kFull);
  EXPECT_EQ(text,
            "<L clsid=\"0\" trklvl=\"0\" version=\"0\">"
            "<value clsid=\"1\" trklvl=\"0\" version=\"0\"><count>2</count>"
            "<item clsid=\"2\" trklvl=\"1\" version=\"0\" objid=\"0\"><value>1</value></item>"
            "<item objid=\"1\"><value>2</value></item></value></L>");
  One<std::vector<Always>> read;
  Read(text, read, "L", kFull);
  EXPECT_EQ(Written(read, "L", kFull), text);
}

TEST(PointerGraph, WithoutClassInformationEachPointerHoldsItsObject) {
  Node second{2, nullptr};
  Node first{1, &second};
  Ring ring{&first, nullptr};
  const std::string text = Written(ring, "R");
  EXPECT_EQ(text, "<R><first><id>1</id><next><id>2</id></next></first></R>");
  Ring read;
  Read(text, read, "R");
  const std::unique_ptr<Node> one(read.first);
  const std::unique_ptr<Node> two(one->next);
  EXPECT_EQ(two->id, 2);
  EXPECT_EQ(two->next, nullptr);
  EXPECT_EQ(read.last, nullptr);

  second.next = &first;
  EXPECT_EQ(Fault([&] { Written(ring, "R"); }), "elements nested deeper than 256");
  One<std::shared_ptr<Shape>> derived{std::make_shared<Circle>()};
  EXPECT_EQ(Fault([&] { Written(derived, "O"); }), "unregistered class");
}

TEST(PointerGraph, WhatWasNotExportedIsUnregistered) {
  One<std::shared_ptr<Shape>> one{std::make_shared<Stranger>()};
  EXPECT_EQ(Fault([&] { Written(one, "O", kFull); }), "unregistered class");
  One<std::shared_ptr<Stranger>> same{std::make_shared<Stranger>()};
  EXPECT_EQ(Fault([&] { Written(same, "O", kFull); }), "unregistered class");
  const std::string longKey(128, 'k');
  const class_export<Stranger, Shape> exported(longKey.c_str());
  EXPECT_EQ(Fault([&] { Written(one, "O", kFull); }), "class name too long");
}

// Whatever the attributes say, an object is only handed to a pointer that may hold it.
TEST(PointerGraph, DamagedClassInformationIsRefused) {
  const auto fault = [](const std::string& left, const std::string& rest) {
    Drawing drawing;
    return Fault([&] {
      Read("<D clsid=\"0\" trklvl=\"0\" version=\"0\"><left " + left + "/>" + rest + "</D>",
           drawing, "D", kFull | flags::kTolerateMissing);
    });
  };
  const std::string circle = "clsid=\"1\" clsnm=\"Circle\" trklvl=\"1\" version=\"4\" objid=\"0\"";
  const std::string shape = "clsid=\"2\" clsnm=\"Shape\" trklvl=\"1\" version=\"0\" objid=\"1\"";
  const struct {
    std::string left, rest;
    const char* fault;
  } cases[] = {
      {circle, "<right clsref=\"1\" objref=\"0\"/>", "no fault"},
      {"", "", "missing attribute"},
      {"clsref=\"7\"", "", "unregistered class"},
      {"clsref=\"0\"", "", "unregistered class"},  // nothing points to a drawing
      {"clsid=\"1\" clsnm=\"Nobody\"", "", "unregistered class"},
      {"clsid=\"1\" clsnm=\"" + std::string(128, 'k') + "\"", "", "class name too long"},
      {"clsid=\"x\"", "", "can't convert text to data"},
      {"clsid=\"1\" clsnm=\"Circle\" trklvl=\"1\" version=\"-4\" objid=\"0\"", "",
       "can't convert text to data"},
      {"clsid=\"1\" clsnm=\"Circle\" trklvl=\"1\" version=\"4\"", "", "missing attribute"},
      {shape, "<right clsref=\"2\" objref=\"1\"/>", "unregistered void cast"},
      {shape, "<right clsref=\"2\" objid=\"5\"/>", "unregistered void cast"},
      {circle, "<right clsref=\"1\" objref=\"9\"/>", "missing element"},
      {circle, "<right clsref=\"1\" objid=\"0\"/>", "pointer conflict"},
      {circle, "<own clsref=\"1\" objref=\"0\"/>", "pointer conflict"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(fault(each.left, each.rest), each.fault) << each.left << each.rest;
  }
}

TEST(PointerGraph, AFailedLoadLeaksNothing) {
  Node second{2, nullptr};
  Node first{1, &second};
  Ring ring{&first, nullptr};
  std::string text = Written(ring, "R", kFull);
  text.replace(text.find("<id>2"), 5, "<id>x");
  Ring read;
  zel::archive::xml_iarchive archive(archive_test::Document::Parse(text), kFull);
  EXPECT_THROW(archive >> nvp("R", read), archive_exception);
  archive.delete_created_pointers();

  Member member;
  zel::archive::xml_iarchive other(
      archive_test::Document::Parse(
          "<M clsid=\"0\" trklvl=\"0\" version=\"0\"><before clsid=\"1\" trklvl=\"1\" "
          "version=\"0\" objid=\"0\"/><node objref=\"0\"/></M>"),
      kFull | flags::kTolerateMissing);
  EXPECT_EQ(Fault([&] { other >> nvp("M", member); }), "pointer conflict") << "held by value";
  other.delete_created_pointers();

  One<std::unique_ptr<Circle>> unique;
  EXPECT_THROW(Read("<O><value><radius>x</radius></value></O>", unique, "O"), archive_exception);
  One<std::shared_ptr<Circle>> shared;
  EXPECT_THROW(Read("<O><value><radius>x</radius></value></O>", shared, "O"), archive_exception);
}

TEST(ExportRegistry, KeepsTheOrderAndForgetsWhatIsUnloaded) {
  struct First : Untracked {};
  struct Second : Untracked {};
  export_registry& registry = export_registry::instance();
  const std::size_t before = registry.classes().size();
  {
    const class_export<First> first{"First"};
    const class_export<Second> second{"Second"};
    ASSERT_EQ(registry.classes().size(), before + 2);
    EXPECT_STREQ(registry.classes()[before].type->key(), "First");
    EXPECT_EQ(registry.find_key("Second"), &registry.classes()[before + 1]);
    EXPECT_EQ(registry.find(typeid(First))->input->serializer().type().type(), typeid(First));
  }
  EXPECT_EQ(registry.classes().size(), before);
  EXPECT_EQ(registry.find_key("Second"), nullptr);
  EXPECT_EQ(registry.find_key("Shape")->type->type(), typeid(Shape));
}

}  // namespace
