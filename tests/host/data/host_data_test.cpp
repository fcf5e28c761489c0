// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gtest/gtest.h>

#include <string>

#include "archive/support/round_trip.h"
#include "host/data/color_wheel_data.h"
#include "host/data/lamp_optics_data.h"
#include "host/data/lamp_waveform.h"
#include "host/data/pixmeld_control_data.h"

namespace {

using archive_test::ExpectStored;
using archive_test::ReadContent;
using archive_test::Written;

TEST(HostData, PixmeldControlData) {
  ExpectStored<PixmeldControlData>(
      "<StartOfFirstSubframe>12.5</StartOfFirstSubframe>"
      "<SubframeSignalLatency>250</SubframeSignalLatency>"
      "<ActuatorSwitchTime>1400.25</ActuatorSwitchTime>");
}

TEST(HostData, ColorWheelData) {
  const auto wheel = ExpectStored<ColorWheelData>(
      "<WheelNumber>3</WheelNumber><SpokeSize>18.5</SpokeSize><SpinValue>4</SpinValue>"
      "<Segments><count>1</count><item><Color>14</Color><Size>120.25</Size>"
      "<SegmentGain>1.5</SegmentGain><SpokeGain>2.5</SpokeGain>"
      "<MeasuredSegmentPwm>0.5</MeasuredSegmentPwm><MeasuredSpokePwm>0.25</MeasuredSpokePwm>"
      "<ModeledSegmentPwm>0.75</ModeledSegmentPwm><ModeledSpokePwm>0.125</ModeledSpokePwm>"
      "</item></Segments>"
      "<FilterSpecs><count>1</count><item><Color>14</Color>"
      "<PeakTransmission>0.875</PeakTransmission><Sw50>400.5</Sw50><Lw50>500.5</Lw50>"
      "<SwFactor>1.5</SwFactor><LwFactor>0.5</LwFactor></item></FilterSpecs>"
      "<NominalFrameRate>50</NominalFrameRate><SecondFrameRate>48</SecondFrameRate>"
      "<UseModeledPwm>0</UseModeledPwm><WhiteProcessing>1</WhiteProcessing>"
      "<SpokeLightRecapture>1</SpokeLightRecapture>"
      "<SecondaryColorBoost>1</SecondaryColorBoost>");
  EXPECT_EQ(wheel.Segments[0].ModeledSpokePwm, 0.125);
}

TEST(HostData, ARowTagIsNeitherStoredNorCompared) {
  SSegGeom segment;
  segment.RowTag = 7;
  EXPECT_EQ(segment, SSegGeom());
  EXPECT_EQ(Written(segment).find("RowTag"), std::string::npos);
}

TEST(HostData, LampWaveform) {
  const auto waveform = ExpectStored<LampWaveform>(
      "<UARTFlag>-1</UARTFlag><BallastMakerCode>170</BallastMakerCode>"
      "<BallastWaveformIndex>12</BallastWaveformIndex>"
      "<CompensationEnabled>1</CompensationEnabled><PulseLength>333.25</PulseLength>"
      "<PulsePlateauRatio>150</PulsePlateauRatio>"
      "<SpokePulses><count>2</count><item><Spoke>GB1</Spoke><Applied>0</Applied></item>"
      "<item><Spoke>RG</Spoke><Applied>1</Applied></item></SpokePulses>");
  EXPECT_EQ(waveform.SpokePulses, (std::map<std::string, bool>{{"GB1", false}, {"RG", true}}));
  // Without the element the spokes stay, as everything does.
  EXPECT_EQ(ReadContent("<PulseLength>333.25</PulseLength>", waveform), waveform);

  LampWaveform other = waveform;
  EXPECT_EQ(other, waveform);
  other.SetUARTparams(-1, 170, 13);
  EXPECT_FALSE(other == waveform);
  other = waveform;
  other.SpokePulses["RG"] = false;
  EXPECT_FALSE(other == waveform);
}

TEST(HostData, LampOpticsData) {
  const auto four = [](const std::string& item) { return item + item + item + item; };
  const std::string freeLamp =
      "<item><Response><count>0</count></Response><TotalLumens>0</TotalLumens><Name/>"
      "<OpticsFlag>0</OpticsFlag><LumensVsAperture><count>0</count></LumensVsAperture>"
      "<LampPower>-1</LampPower><Recycling><count>0</count></Recycling>"
      "<RecyclingEnabled>0</RecyclingEnabled></item>";
  const std::string freeOptics = "<item><Response><count>0</count></Response><Name/></item>";
  const std::string text =
      "<Lamp><Lamps><count>5</count><item><Response><count>1</count><item>"
      "<Wavelength>450</Wavelength><Value>0.5</Value></item></Response>"
      "<TotalLumens>12000</TotalLumens><Name>Xenon 300W</Name><OpticsFlag>1</OpticsFlag>"
      "<LumensVsAperture><count>1</count><item><Aperture>2.5</Aperture><Lumens>8000</Lumens>"
      "</item></LumensVsAperture><LampPower>300</LampPower><Recycling><count>1</count><item>"
      "<Wavelength>500</Wavelength><Value>0.25</Value></item></Recycling>"
      "<RecyclingEnabled>1</RecyclingEnabled></item>" +
      four(freeLamp) +
      "</Lamps><CurrentLamp>0</CurrentLamp></Lamp>"
      "<Optics><Optics><count>5</count><item><Response><count>1</count><item>"
      "<Wavelength>550</Wavelength><Value>0.75</Value></item></Response><Name>Lens</Name></item>" +
      four(freeOptics) +
      "</Optics><CurrentOptics>0</CurrentOptics><FullOnContrastRatio>2500</FullOnContrastRatio>"
      "<Model><SwSlopeFactor>0.5</SwSlopeFactor><LwSlopeFactor>0.25</LwSlopeFactor>"
      "<Sw50Intersect>420</Sw50Intersect><Lw50Intersect>680</Lw50Intersect>"
      "<Peaking>0.125</Peaking><PeakWavelength>540</PeakWavelength>"
      "<PeakTransmission>0.75</PeakTransmission><BlueReduce>-0.5</BlueReduce></Model></Optics>";
  const auto data = ExpectStored<LampOpticsData>(text);
  EXPECT_TRUE(data.Lamp.Lamps[0].InUse());
  EXPECT_FALSE(data.Lamp.Lamps[1].InUse());
}

SLampRecord Lamp(const std::string& name) {
  SLampRecord record;
  record.Name = name;
  record.Response = {{550, 1.0}};
  return record;
}

std::string Names(const LampData& data) {
  std::string names;
  for (const SLampRecord& record : data.Lamps) names += record.Name + (record.InUse() ? "," : ".");
  return names;
}

TEST(LampData, InsertsBetweenAndRemovesWithoutGaps) {
  LampData data;
  const auto insert = [&](int place, const char* name) {
    SLampRecord record = *name ? Lamp(name) : SLampRecord();
    return data.InsertLampResponse(place, record);
  };
  EXPECT_FALSE(insert(0, "")) << "nothing to insert";
  EXPECT_FALSE(insert(1, "a")) << "a gap";
  EXPECT_FALSE(insert(-1, "a"));
  for (const auto& [place, name] : {std::pair{0, "a"}, {1, "b"}, {2, "c"}, {1, "x"}}) {
    EXPECT_TRUE(insert(place, name));
    EXPECT_EQ(data.CurrentLamp, place);
  }
  EXPECT_EQ(Names(data), "a,x,b,c,.");
  EXPECT_TRUE(insert(4, "last"));
  const LampData full = data;
  EXPECT_FALSE(insert(0, "more"));
  EXPECT_EQ(data, full);
  EXPECT_TRUE(data.RemoveItem(1));
  EXPECT_EQ(Names(data), "a,b,c,last,.");
  EXPECT_FALSE(data.RemoveItem(5));
  EXPECT_FALSE(data.RemoveItem(-1));
}

TEST(OpticsData, IsEquivalentWhenEveryValueIs) {
  OpticsData data;
  SOpticsRecord record;
  record.Response = {{550, 0.5}};
  EXPECT_TRUE(data.InsertOpticsResponse(0, record));
  OpticsData other = data;
  EXPECT_TRUE(other.IsEquivalent(data));
  other.Model.BlueReduce = 0.1;
  EXPECT_FALSE(other.IsEquivalent(data));
  other = data;
  other.Optics[0].Response[0].Value = 0.6;
  EXPECT_FALSE(other.IsEquivalent(data));
}

}  // namespace
