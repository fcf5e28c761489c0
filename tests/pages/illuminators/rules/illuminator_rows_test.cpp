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
  IlluminatorRows() { data_.allowed[kCyan] = data_.allowed[kIR] = true; }

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

TEST_F(IlluminatorRows, StoreOnlyWhatWasEdited) {
  EXPECT_TRUE(StoreRow(data_, 4, "Cyan", {}));
  EXPECT_FALSE(StoreRow(data_, 4, "Cyan", {0.0, std::nullopt, std::nullopt})) << "the same value";
  EXPECT_TRUE(StoreRow(data_, 1, "", {3.0, std::nullopt, std::nullopt}));
  EXPECT_EQ(data_.characteristics[1].Row, 1) << "a fixed row keeps its illuminator";
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
