// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/rules/illuminator_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "pages/illuminators/rules/illuminator_findings.h"

namespace illuminators {
namespace {

using testing::ElementsAre;

constexpr std::size_t kYellow = IllumCharacteristics::kYellow;
constexpr std::size_t kCyan = IllumCharacteristics::kCyan;
constexpr std::size_t kIR = IllumCharacteristics::kIR;

TEST(IllumTypes, HaveNamesBothWays) {
  for (int type = 0; type < IllumCharacteristics::kTypeCount; ++type) {
    const auto name = IllumCharacteristics::GetStrForIllumType(type);
    EXPECT_EQ(IllumCharacteristics::GetIllumTypeForStr(name), type) << name;
    EXPECT_TRUE(ColorOf(type));
  }
  EXPECT_EQ(IllumCharacteristics::GetStrForIllumType(5), "Magenta");
  EXPECT_EQ(ColorOf(3), (Rgb{255, 255, 128}));
  for (const char* none : {"", "red", "Purple"}) {
    EXPECT_EQ(IllumCharacteristics::GetIllumTypeForStr(none), IllumCharacteristics::kNoIllum);
  }
  for (const int none : {-1, 8}) {
    EXPECT_EQ(IllumCharacteristics::GetStrForIllumType(none), "");
    EXPECT_FALSE(ColorOf(none));
  }
}

class IlluminatorRows : public testing::Test {
 protected:
  IlluminatorRows() {
    data_.allowed[kCyan] = data_.allowed[kIR] = true;
    data_.characteristics[kCyan].EnableDelay = 1.2345;
  }

  bool Choose(int row, const char* name) { return StoreRow(data_, row, name, {}); }
  int RowOf(std::size_t type) const { return data_.characteristics[type].Row; }
  std::vector<std::string> Rules() const {
    std::vector<std::string> rules;
    for (const Finding& finding : Check(data_)) {
      const bool error = finding.severity == Severity::kError;
      rules.push_back((error ? "error " : "warning ") + finding.rule.substr(13));
    }
    return rules;
  }

  IlluminatorsPageData data_;
};

TEST_F(IlluminatorRows, AreAsManyAsIlluminatorsMayBeOffered) {
  EXPECT_EQ(ShownRows(data_), 5);
  data_.allowed[0] = data_.allowed[2] = true;
  EXPECT_EQ(ShownRows(data_), 5) << "red, green and blue are always there";
  data_.allowed = {};
  EXPECT_EQ(ShownRows(data_), 3);
}

TEST_F(IlluminatorRows, OfferWhatIsInNoOtherRow) {
  EXPECT_THAT(DropDownContents(data_, 3), ElementsAre("", "Cyan", "IR"));
  EXPECT_THAT(DropDownContents(data_, 4), ElementsAre("", "Cyan", "IR"));
  EXPECT_TRUE(Choose(3, "Cyan"));
  EXPECT_THAT(ShownNames(data_), ElementsAre("Cyan"));
  EXPECT_THAT(DropDownContents(data_, 3), ElementsAre("", "Cyan", "IR"));
  EXPECT_THAT(DropDownContents(data_, 4), ElementsAre("", "IR"));
  data_.allowed[kCyan] = false;
  EXPECT_THAT(DropDownContents(data_, 3), ElementsAre("", "Cyan", "IR")) << "its own stays";
}

TEST_F(IlluminatorRows, AChosenIlluminatorComesWithItsOwnTimes) {
  EXPECT_TRUE(Choose(3, "IR"));
  EXPECT_TRUE(StoreRow(data_, 3, "IR", {5.0, std::nullopt, 7.0}));
  EXPECT_TRUE(Choose(3, "Cyan"));
  EXPECT_EQ(RowOf(kCyan), 3);
  EXPECT_EQ(RowOf(kIR), IllumCharacteristics::kNotShown);
  EXPECT_EQ(ShownIn(data_, 3)->EnableDelay, 1.2345) << "not the times that were shown before";
  EXPECT_TRUE(Choose(3, "IR"));
  EXPECT_EQ(ShownIn(data_, 3)->EnableDelay, 5.0);
  EXPECT_EQ(ShownIn(data_, 3)->FallMargin, 7.0);
  EXPECT_TRUE(Choose(3, ""));
  EXPECT_FALSE(RowEnabled(data_, 3));
  EXPECT_EQ(ShownIn(data_, 3), nullptr);
  EXPECT_EQ(data_.characteristics[kIR].EnableDelay, 5.0) << "kept while it is not shown";
}

TEST_F(IlluminatorRows, StoreOnlyWhatWasEdited) {
  EXPECT_TRUE(Choose(4, "Cyan"));
  const IlluminatorsPageData before = data_;
  EXPECT_FALSE(Choose(4, "Cyan"));
  EXPECT_FALSE(StoreRow(data_, 4, "Cyan", {1.2345, 0.0, std::nullopt})) << "the same values";
  EXPECT_EQ(data_, before);
  EXPECT_TRUE(StoreRow(data_, 4, "Cyan", {std::nullopt, 2000.0, std::nullopt}));
  EXPECT_EQ(data_.characteristics[kCyan].DisableDelay, 2000.0);
  EXPECT_EQ(data_.characteristics[kCyan].EnableDelay, 1.2345);
  EXPECT_TRUE(StoreRow(data_, 1, "", {3.0, std::nullopt, std::nullopt}));
  EXPECT_EQ(data_.characteristics[1].EnableDelay, 3.0);
  EXPECT_EQ(RowOf(1), 1) << "a fixed row keeps its illuminator";
}

TEST_F(IlluminatorRows, AreCheckedForWhatThePageCannotShow) {
  EXPECT_THAT(Rules(), ElementsAre());
  data_.characteristics[0].FallMargin = 2000.0;
  data_.characteristics[kYellow].EnableDelay = 2000.01;
  EXPECT_THAT(Rules(), ElementsAre("error time-range")) << "also of one that is not shown";
  data_.characteristics[kYellow].EnableDelay = std::nan("");
  EXPECT_THAT(Rules(), ElementsAre("error time-range"));
  data_ = {};
  data_.allowed[kCyan] = data_.allowed[kIR] = true;
  data_.characteristics[1].Row = 4;
  data_.characteristics[kCyan].Row = 2;
  EXPECT_THAT(Rules(), ElementsAre("error row", "error row"));
  data_.characteristics[1].Row = 1;
  data_.characteristics[kCyan].Row = 4;
  data_.characteristics[kIR].Row = 4;
  EXPECT_THAT(Rules(), ElementsAre("error shared-row"));
  data_.characteristics[kIR].Row = 5;
  data_.allowed[kIR] = false;
  EXPECT_THAT(Rules(),
              ElementsAre("warning hidden-row", "warning not-allowed", "warning hidden-row"));
  data_ = {};
  data_.characteristics[2].Type = 0;
  EXPECT_THAT(Rules(), ElementsAre("error type"));
}

}  // namespace
}  // namespace illuminators
