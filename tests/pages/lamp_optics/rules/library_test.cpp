// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/library.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "pages/lamp_optics/rules/lamp_optics_check.h"

namespace {

using lamp_optics::ListEntries;
using lamp_optics::RemoveCurrent;
using lamp_optics::RenameCurrent;
using testing::ElementsAre;
using testing::IsEmpty;

SLampRecord Lamp(const std::string& name) {
  SLampRecord record;
  record.Name = name;
  record.Response = {{450, 0.5}, {550, 1.0}};
  return record;
}

LampOpticsData Lamps(const std::vector<std::string>& names) {
  LampOpticsData data;
  for (const std::string& name : names) {
    SLampRecord record = Lamp(name);
    EXPECT_TRUE(lamp_optics::AddLamp(data.Lamp, record));
  }
  return data;
}

std::vector<std::string> Rules(const LampOpticsData& data) {
  std::vector<std::string> rules;
  for (const Finding& finding : lamp_optics::CheckLampOptics(data)) {
    rules.push_back((finding.severity == Severity::kError ? "E " : "W ") + finding.rule);
  }
  return rules;
}

TEST(LampLibrary, ListsWhatIsInUse) {
  LampData lamps = Lamps({"Xenon", "", "UHP"}).Lamp;
  EXPECT_THAT(ListEntries(lamps), ElementsAre("Xenon", "Unnamed", "UHP"));
  EXPECT_EQ(lamp_optics::CurrentLamp(lamps), &lamps.Lamps[2]);
  lamps.CurrentLamp = 4;
  EXPECT_EQ(lamp_optics::CurrentLamp(lamps), nullptr);
  lamps.CurrentLamp = 5;
  EXPECT_EQ(lamp_optics::CurrentLamp(lamps), nullptr);
}

TEST(LampLibrary, TakesFive) {
  LampData lamps = Lamps({"1", "2", "3", "4"}).Lamp;
  SLampRecord fifth = Lamp("5");
  SLampRecord sixth = Lamp("6");
  EXPECT_TRUE(lamp_optics::HasRoom(lamps));
  EXPECT_TRUE(lamp_optics::AddLamp(lamps, fifth));
  EXPECT_EQ(lamps.CurrentLamp, 4);
  EXPECT_FALSE(lamp_optics::HasRoom(lamps));
  EXPECT_FALSE(lamp_optics::AddLamp(lamps, sixth));
}

// A database that was written by hand may have free places anywhere.
TEST(LampLibrary, TakesFiveWhereverThereIsRoom) {
  for (const std::vector<int>& used : {std::vector{0, 4}, {0, 2, 4}, {3, 4}, {1, 2, 3, 4}}) {
    LampData lamps;
    for (const int place : used) {
      lamps.Lamps[static_cast<std::size_t>(place)] = Lamp(std::to_string(place));
    }
    std::vector<std::string> names = ListEntries(lamps);
    for (int added = 0; lamp_optics::HasRoom(lamps); ++added) {
      SLampRecord record = Lamp("new");
      EXPECT_TRUE(lamp_optics::AddLamp(lamps, record));
      EXPECT_EQ(lamp_optics::CurrentLamp(lamps)->Name, "new");
      names.push_back("new");
      EXPECT_THAT(ListEntries(lamps), testing::UnorderedElementsAreArray(names)) << added;
    }
    EXPECT_EQ(names.size(), 5u);
  }
}

TEST(LampLibrary, RemovingMakesTheOneBeforeCurrent) {
  LampData lamps = Lamps({"1", "2", "3"}).Lamp;
  EXPECT_TRUE(RemoveCurrent(lamps));
  EXPECT_EQ(lamps.CurrentLamp, 1);
  lamps.CurrentLamp = 0;
  EXPECT_TRUE(RemoveCurrent(lamps));
  EXPECT_THAT(ListEntries(lamps), ElementsAre("2"));
  EXPECT_EQ(lamps.CurrentLamp, -1);
  EXPECT_FALSE(RemoveCurrent(lamps));
}

TEST(LampLibrary, RefusesTheNameOfAnotherRecord) {
  LampData lamps = Lamps({"Xenon", "UHP"}).Lamp;
  EXPECT_EQ(RenameCurrent(lamps, "Xenon").refusal, "Lamp:\"Xenon\" already exists");
  EXPECT_EQ(lamps.Lamps[1].Name, "UHP");
  EXPECT_FALSE(RenameCurrent(lamps, "UHP").changed);
  EXPECT_EQ(RenameCurrent(lamps, "UHP").refusal, std::nullopt);
  EXPECT_TRUE(RenameCurrent(lamps, "xenon").changed);
  // Free records have the empty name.
  EXPECT_EQ(RenameCurrent(lamps, "").refusal, "Lamp:\"\" already exists");
  lamps.CurrentLamp = -1;
  EXPECT_FALSE(RenameCurrent(lamps, "free").changed);

  OpticsData optics;
  SOpticsRecord record;
  record.Response = {{400, 1}};
  EXPECT_TRUE(lamp_optics::AddOptics(optics, record));
  EXPECT_EQ(RenameCurrent(optics, "Lens").refusal, std::nullopt);
  EXPECT_TRUE(lamp_optics::AddOptics(optics, record = SOpticsRecord{{{400, 1}}, "Dichroic"}));
  EXPECT_EQ(RenameCurrent(optics, "Lens").refusal, "Optics:\"Lens\" already exists");
}

TEST(LampLibrary, CutsANameAfter255Characters) {
  LampData lamps = Lamps({"Xenon"}).Lamp;
  const std::string most = std::string(254, 'x') + "\xE2\x82\xAC";
  EXPECT_TRUE(RenameCurrent(lamps, most).changed);
  EXPECT_EQ(lamps.Lamps[0].Name, most);
  EXPECT_FALSE(RenameCurrent(lamps, most + "\xC3\xBC").changed) << "cut, it is the same name";
}

TEST(LampLibrary, ARecyclingFileWithoutPointsEmptiesTheResponse) {
  SLampRecord lamp = Lamp("Xenon");
  EXPECT_TRUE(lamp_optics::TakeRecycling(lamp, {{400, 0.5}}));
  EXPECT_EQ(lamp.Recycling.size(), 1u);
  EXPECT_FALSE(lamp_optics::TakeRecycling(lamp, {}));
  EXPECT_THAT(lamp.Recycling, IsEmpty());
}

TEST(LampOpticsCheck, SaysWhatIsWrong) {
  LampOpticsData data = Lamps({"Xenon", "UHP"});
  EXPECT_THAT(Rules(data), IsEmpty());
  EXPECT_THAT(Rules(LampOpticsData()), IsEmpty());
  data.Lamp.Lamps[0].Name.assign(256, 'n');
  data.Lamp.Lamps[1].Response.push_back({550, 0.5});
  data.Lamp.Lamps[1].TotalLumens = 500000.5;
  data.Lamp.Lamps[3] = Lamp("UHP");
  data.Lamp.CurrentLamp = 2;
  data.Optics.Optics[0].Response = {{400, 1}};
  data.Optics.FullOnContrastRatio = 0.5;
  data.Optics.Model.Peaking = 1.5;
  data.Optics.Model.Sw50Intersect = 700.5;
  EXPECT_THAT(
      Rules(data),
      ElementsAre("E lamp.name-length", "W lamp.response-order", "W lamp.name-twice", "W lamp.hole",
                  "E lamp.current", "E lamp.lumens-range", "W optics.no-current",
                  "E optics.contrast-range", "E optics.model-range", "W optics.model-edges"));
}

}  // namespace
