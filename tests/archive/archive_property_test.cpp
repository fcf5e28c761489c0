// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "archive/serialize_array.h"
#include "archive/support/round_trip.h"

namespace {

using archive_test::Document;
using archive_test::TextForm;
using archive_test::Value;
using zel::archive::nvp;
using zel::archive::SerializeArray;
using zel::archive::xml_iarchive;
using zel::archive::xml_oarchive;
namespace flags = zel::archive::flags;

constexpr int kObjects = 10'000;

/// Random values: mostly ordinary ones, often those at the edges.
class Chance {
 public:
  explicit Chance(unsigned seed) : random_(seed) {}

  std::uint64_t Below(std::uint64_t bound) { return random_() % bound; }

  void Fill(bool& value) { value = Below(2) == 1; }
  template <std::integral Number>
  void Fill(Number& value) {
    using Limits = std::numeric_limits<Number>;
    const Number edges[] = {0, Limits::min(), Limits::max(), 1};
    value = Below(4) == 0 ? edges[Below(4)] : static_cast<Number>(random_());
  }
  /// Zeros have one sign and no value is denormal: so they are after a round trip.
  void Fill(double& value) {
    using Limits = std::numeric_limits<double>;
    const double edges[] = {0.0, 0.1, Limits::max(), Limits::min(), Limits::infinity(), -1e-300};
    value = Below(4) == 0 ? edges[Below(6)] : std::bit_cast<double>(random_());
    if (!std::isnormal(value) && !std::isinf(value)) value = 0.0;
  }
  void Fill(std::string& text) {
    static const char* const parts[] = {
        "a", " ", "<", "&amp;", "]]>", "\n", "\r", "\xC3\xA4", "\xF0\x9F\x98\x80", "\x7F"};
    text.clear();
    for (std::uint64_t left = Below(12); left > 0; --left) text += parts[Below(10)];
  }
  template <class Record>
  requires requires(Record& record, Chance& chance) { record.Fill(chance); }
  void Fill(Record& record) { record.Fill(*this); }
  template <class Item>
  void Fill(Value<Item>& object) {
    Fill(object.value);
  }
  template <class Item>
  void Fill(std::vector<Item>& items) {
    items.resize(Below(6));
    for (Item& item : items) Fill(item);
  }
  void Fill(std::vector<bool>& items) {
    items.resize(Below(20));
    for (std::size_t i = 0; i < items.size(); ++i) items[i] = Below(2) == 1;
  }
  template <class Item>
  void Fill(std::set<Item>& items) {
    items.clear();
    for (std::uint64_t left = Below(6); left > 0; --left) {
      Item item{};
      Fill(item);
      items.insert(item);
    }
  }
  template <class Item, std::size_t N>
  void Fill(Item (&items)[N]) {
    for (Item& item : items) Fill(item);
  }
  template <class Item, std::size_t N>
  void Fill(std::array<Item, N>& items) {
    for (Item& item : items) Fill(item);
  }

 private:
  std::mt19937_64 random_;
};

struct Record {
  bool flag = false;
  std::int8_t small = 0;
  std::uint64_t large = 0;
  double number = 0;
  std::string text;
  auto operator<=>(const Record&) const = default;
  void Fill(Chance& chance) {
    chance.Fill(flag);
    chance.Fill(small);
    chance.Fill(large);
    chance.Fill(number);
    chance.Fill(text);
  }
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& nvp("flag", flag) & nvp("small", small) & nvp("large", large);
    ar& nvp("number", number) & nvp("text", text);
  }
};

template <class T>
struct Wrapped {
  T items[8] = {};
  bool operator==(const Wrapped&) const = default;
  void Fill(Chance& chance) { chance.Fill(items); }
  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    SerializeArray<T, short, 8> wrapped(items);
    ar& nvp("items", wrapped);
  }
};

template <class Object>
class ArchiveProperty : public testing::Test {};

using Objects =
    testing::Types<Record, Value<std::vector<double>>, Value<std::vector<bool>>,
                   Value<std::vector<Record>>, Value<std::vector<std::vector<std::string>>>,
                   Value<std::set<std::string>>, Value<std::set<Record>>, Value<std::set<int>>,
                   Value<short[3]>, Value<Record[2]>, Value<std::array<double, 4>>, Wrapped<bool>,
                   Wrapped<Record>>;
TYPED_TEST_SUITE(ArchiveProperty, Objects);

// Through the tree every time; through text too every tenth time, since that takes longer. All
// flags take turns.
TYPED_TEST(ArchiveProperty, EveryObjectReadsBackEqual) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Chance chance(seed);
  const std::uint32_t forms[] = {flags::kPageTransfer, flags::kNoRoot, flags::kArchive,
                                 flags::kNoRoot | flags::kLongNames};
  for (int i = 0; i < kObjects; ++i) {
    TypeParam object;
    chance.Fill(object);
    Document document;
    const std::uint32_t form = forms[i % 4];
    xml_oarchive output(document, form);
    output << nvp("Object", object);
    output.Finish();
    if (i % 10 == 0) document = Document::Parse(document.ToText(TextForm::kBare));
    TypeParam read;
    chance.Fill(read);  // what was there before must not shine through
    xml_iarchive input(document, form);
    input >> nvp("Object", read);
    ASSERT_EQ(object, read) << "object " << i << ":\n" << document.ToText(TextForm::kIndented);
  }
}

}  // namespace
