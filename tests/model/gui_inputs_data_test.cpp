// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "model/gui_inputs_data.h"

#include <gtest/gtest.h>

#include <string>

#include "archive/archive_exception.h"
#include "archive/support/round_trip.h"
#include "support/fault_of.h"

namespace {

using archive_test::ReadContent;
using archive_test::Written;

const char* const kPulse =
    "<m_versionnum>1</m_versionnum><m_IsPulse>1</m_IsPulse><m_strCWSeg>G00</m_strCWSeg>"
    "<m_Amp>1.5</m_Amp><m_LeadEdge>2</m_LeadEdge><m_TrailEdge>3.5</m_TrailEdge>"
    "<m_Width>20</m_Width>";

TEST(PulseInfo, ReadsTheOlderLayoutAndWritesTheNewOne) {
  PulseInfo pulse = ReadContent<PulseInfo>(
      "<IsPulse>1</IsPulse><CWSegStr>G00</CWSegStr><Amp>1.5</Amp><LeadEdge>2</LeadEdge>"
      "<TrailEdge>3.5</TrailEdge><Width>20</Width>");
  EXPECT_EQ(Written(pulse, "p"), "<p>" + std::string(kPulse) + "</p>");
  // A layout number other than 1 means the older names, whatever the object was before.
  PulseInfo again = ReadContent("<m_Amp>7</m_Amp><Amp>1.25</Amp>", pulse);
  EXPECT_EQ(again.m_Amp, 1.25);
}

TEST(PulseInfo, EqualityAndAssignmentLeaveTheLayoutNumberAlone) {
  PulseInfo stored(true, "G00", 1.5, 2, 3.5, 20);
  const PulseInfo fresh = stored;
  stored.m_versionnum = 1;
  EXPECT_TRUE(stored == fresh);
  EXPECT_EQ(PulseInfo(stored).m_versionnum, 1);
  PulseInfo target;
  target = stored;
  EXPECT_EQ(target.m_versionnum, 0);
  EXPECT_TRUE(target == stored);
  const PulseInfo others[] = {{false, "G00", 1.5, 2, 3.5, 20}, {true, "g00", 1.5, 2, 3.5, 20},
                              {true, "G00", 1.6, 2, 3.5, 20},  {true, "G00", 1.5, 2.1, 3.5, 20},
                              {true, "G00", 1.5, 2, 3.6, 20},  {true, "G00", 1.5, 2, 3.5, 21}};
  for (const PulseInfo& other : others) EXPECT_FALSE(other == fresh) << other.m_strCWSeg;
}

TEST(GUIInputsData, StoresItsElementsInOrder) {
  GUIInputsData empty;
  const std::string written = Written(empty);
  const std::size_t gamutAt = written.find("<ReferenceGamut>");
  const std::size_t wheelAt = written.find("<ColorWheel>");
  const std::string wheel = written.substr(wheelAt, gamutAt - wheelAt);
  const std::string gamut = written.substr(gamutAt, written.find("<LampWaveformDB>") - gamutAt);
  const std::string attributes =
      "<UARTFlag>0</UARTFlag><BallastMakerCode>255</BallastMakerCode>"
      "<BallastWaveformIndex>0</BallastWaveformIndex>"
      "<CompensationEnabled>0</CompensationEnabled><PulseLength>500</PulseLength>"
      "<PulsePlateauRatio>110</PulsePlateauRatio><SpokePulses><count>0</count></SpokePulses>";
  const std::string content =
      wheel + gamut +
      "<LampWaveformDB><count>1</count><item><SeqGrpName>2D</SeqGrpName>"
      "<SpinFactor>2.5</SpinFactor><LWData><count>1</count><item>"
      "<WaveFormTitle>Bright</WaveFormTitle><CWType>RGB</CWType><Attributes>" +
      attributes + "</Attributes><VecPulses><count>1</count><item>" + kPulse +
      "</item></VecPulses></item></LWData></item></LampWaveformDB>"
      "<PCGroups><count>1</count><item><Title>2D</Title><Rates><count>2</count><item>50</item>"
      "<item>60</item></Rates><SpinFactors><count>1</count><item>2.5</item></SpinFactors>"
      "<VIDarkPulseInfo><Enable>1</Enable><MaxFallLength>30</MaxFallLength><Jitter>1.5</Jitter>"
      "<MinWidthLength>200</MinWidthLength><MaxRiseLength>40</MaxRiseLength>"
      "<MinAmplitude>20</MinAmplitude><MaxAmplitude>60</MaxAmplitude><CWRate>120</CWRate>"
      "</VIDarkPulseInfo><BitwSelectRateFlags><count>2</count><item>0</item><item>1</item>"
      "</BitwSelectRateFlags></item></PCGroups><ApplyVIDarkPulse>1</ApplyVIDarkPulse>";
  GUIInputsData data = ReadContent<GUIInputsData>(content);
  EXPECT_EQ(Written(data), "<ModuleOutputs>" + content + "</ModuleOutputs>");
  EXPECT_EQ(gamut.find("<ReferenceGamut><count>7</count><item><xyChroma.x>0.63"), 0u);
}

TEST(GUIInputsData, StoresNeitherSelectionNorLampOptics) {
  GUIInputsData plain;
  GUIInputsData data;
  data.CurrentGroupType = "2D";
  data.CurrentSpinFactor = 3;
  data.CurrentWaveformName = "Bright";
  data.BallastMakerCode = 1;
  data.ReferenceGamutName = "other";
  data.LampOptics.Optics.FullOnContrastRatio = 5;
  EXPECT_EQ(Written(data), Written(plain));
}

std::string Gamut(int count) {
  std::string text = "<ReferenceGamut><count>" + std::to_string(count) + "</count>";
  for (int i = 0; i < count; ++i) {
    text += "<item><xyChroma.x>0.5</xyChroma.x><xyChroma.y>0.25</xyChroma.y></item>";
  }
  return text + "</ReferenceGamut>";
}

TEST(GUIInputsData, AGamutOfThreeReplacesThreeAndOneOfEightFails) {
  const GUIInputsData defaults;
  const GUIInputsData three = ReadContent<GUIInputsData>(Gamut(3));
  for (std::size_t i = 0; i < 7; ++i) {
    EXPECT_EQ(three.ReferenceGamut[i], i < 3 ? (xyChroma{0.5, 0.25}) : defaults.ReferenceGamut[i]);
  }
  EXPECT_EQ(test::FaultOf<boost::archive::archive_exception>(
                [] { ReadContent<GUIInputsData>(Gamut(8)); }),
            "array size too short");
}

TEST(GUIInputsData, CopiesTheInputsAndNothingElse) {
  GUIInputsData source;
  source.ColorWheel.SpokeSize = 18;
  source.LampOptics.Lamp.CurrentLamp = 2;
  source.ReferenceGamutName = "own";
  source.ReferenceGamut[6].y = 0.4;
  source.LampWaveformDB.emplace_back();
  source.PCGroups.emplace_back("2D");
  source.CurrentGroupType = "2D";
  source.ApplyVIDarkPulse = true;
  GUIInputsData target;
  target.CopyInputsFrom(source);
  EXPECT_EQ(target.ColorWheel, source.ColorWheel);
  EXPECT_EQ(target.LampOptics, source.LampOptics);
  EXPECT_EQ(target.ReferenceGamutName, "own");
  EXPECT_EQ(target.ReferenceGamut, source.ReferenceGamut);
  EXPECT_TRUE(target.LampWaveformDB.empty());
  EXPECT_TRUE(target.PCGroups.empty());
  EXPECT_EQ(target.CurrentGroupType, "");
  EXPECT_FALSE(target.ApplyVIDarkPulse);
  target.CopyInputsFrom(target);
  EXPECT_EQ(target.ReferenceGamutName, "own");
}

}  // namespace
