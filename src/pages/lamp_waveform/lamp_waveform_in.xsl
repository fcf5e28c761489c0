<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragments LampWaveforms and ColorWheel to the lamp waveform page's data. A value that is not
     there is left out, so that the page keeps its own. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="codes" select="'|None=-1|Red=0|Green=1|Blue=2|White=3|Cyan=4|Magenta=5|Yellow=6|Black=7|White Spoke=8|Cyan Spoke=9|Magenta Spoke=10|Yellow Spoke=11|NDRed=12|NDGreen=13|NDBlue=14|NDWhite=15|NDCyan=16|NDMagenta=17|NDYellow=18|'"/>

  <xsl:template match="/RunTimeDB">
    <xsl:variable name="lamp" select="/RunTimeDB/LampWaveforms"/>
    <Inputs>
      <xsl:if test="/RunTimeDB/ColorWheel">
        <ColorWheel><xsl:apply-templates select="/RunTimeDB/ColorWheel"/></ColorWheel>
      </xsl:if>
      <xsl:apply-templates select="$lamp/ReferenceGamut"/>
      <LampWaveformDB>
        <count><xsl:value-of select="count($lamp/Waveforms)"/></count>
        <xsl:apply-templates select="$lamp/Waveforms"/>
      </LampWaveformDB>
      <PCGroups>
        <count><xsl:value-of select="count($lamp/GroupType)"/></count>
        <xsl:apply-templates select="$lamp/GroupType"/>
      </PCGroups>
      <xsl:if test="$lamp/@applyDarkPulses">
        <ApplyVIDarkPulse><xsl:value-of select="$lamp/@applyDarkPulses"/></ApplyVIDarkPulse>
      </xsl:if>
    </Inputs>
  </xsl:template>

  <!-- Waveforms. -->
  <xsl:template match="LampWaveforms/Waveforms">
    <item>
      <SeqGrpName><xsl:value-of select="@groupType"/></SeqGrpName>
      <xsl:if test="@spinFactor">
        <SpinFactor><xsl:value-of select="@spinFactor"/></SpinFactor>
      </xsl:if>
      <LWData>
        <count><xsl:value-of select="count(Waveform)"/></count>
        <xsl:apply-templates select="Waveform"/>
      </LWData>
    </item>
  </xsl:template>
  <xsl:template match="Waveform">
    <item>
      <WaveFormTitle><xsl:value-of select="@title"/></WaveFormTitle>
      <CWType><xsl:value-of select="@wheel"/></CWType>
      <Attributes>
        <xsl:apply-templates select="Ballast/@*"/>
        <xsl:apply-templates select="Compensation/@*"/>
        <xsl:if test="Compensation">
          <SpokePulses>
            <count><xsl:value-of select="count(Compensation/Spoke)"/></count>
            <xsl:apply-templates select="Compensation/Spoke"/>
          </SpokePulses>
        </xsl:if>
      </Attributes>
      <VecPulses>
        <count><xsl:value-of select="count(Pulses/Pulse)"/></count>
        <xsl:apply-templates select="Pulses/Pulse"/>
      </VecPulses>
    </item>
  </xsl:template>

  <xsl:template match="Ballast/@* | Compensation/@*" priority="-1"/>
  <xsl:template match="Ballast/@uartFlag">
    <UARTFlag><xsl:value-of select="."/></UARTFlag>
  </xsl:template>
  <xsl:template match="Ballast/@makerCode">
    <BallastMakerCode><xsl:value-of select="."/></BallastMakerCode>
  </xsl:template>
  <xsl:template match="Ballast/@waveformIndex">
    <BallastWaveformIndex><xsl:value-of select="."/></BallastWaveformIndex>
  </xsl:template>
  <xsl:template match="Compensation/@enabled">
    <CompensationEnabled><xsl:value-of select="."/></CompensationEnabled>
  </xsl:template>
  <xsl:template match="Compensation/@pulseMicrosecondsAt60Hertz">
    <PulseLength><xsl:value-of select="."/></PulseLength>
  </xsl:template>
  <xsl:template match="Compensation/@pulseToPlateauPercent">
    <PulsePlateauRatio><xsl:value-of select="."/></PulsePlateauRatio>
  </xsl:template>
  <xsl:template match="Spoke">
    <item>
      <Spoke><xsl:value-of select="@name"/></Spoke>
      <xsl:if test="@pulse">
        <Applied><xsl:value-of select="@pulse"/></Applied>
      </xsl:if>
    </item>
  </xsl:template>

  <!-- A whole pulse in one go: there may be very many. -->
  <xsl:template match="Pulse[@segment and @placed and @amplitudeRatio and @leadingEdgeDegrees and @trailingEdgeDegrees and @widthDegrees]" priority="2">
    <item>
      <m_versionnum>1</m_versionnum>
      <m_IsPulse><xsl:value-of select="@placed"/></m_IsPulse>
      <m_strCWSeg><xsl:value-of select="@segment"/></m_strCWSeg>
      <m_Amp><xsl:value-of select="@amplitudeRatio"/></m_Amp>
      <m_LeadEdge><xsl:value-of select="@leadingEdgeDegrees"/></m_LeadEdge>
      <m_TrailEdge><xsl:value-of select="@trailingEdgeDegrees"/></m_TrailEdge>
      <m_Width><xsl:value-of select="@widthDegrees"/></m_Width>
    </item>
  </xsl:template>
  <xsl:template match="Pulse">
    <item>
      <m_versionnum>1</m_versionnum>
      <xsl:apply-templates select="@*"/>
    </item>
  </xsl:template>
  <!-- The layout of earlier releases. -->
  <xsl:template match="Pulse[@CWSegStr and not(@segment)]" priority="1">
    <item><xsl:apply-templates select="@*"/></item>
  </xsl:template>
  <xsl:template match="Pulse/@*" priority="-1"/>
  <xsl:template match="Pulse/@placed">
    <m_IsPulse><xsl:value-of select="."/></m_IsPulse>
  </xsl:template>
  <xsl:template match="Pulse/@segment">
    <m_strCWSeg><xsl:value-of select="."/></m_strCWSeg>
  </xsl:template>
  <xsl:template match="Pulse/@amplitudeRatio">
    <m_Amp><xsl:value-of select="."/></m_Amp>
  </xsl:template>
  <xsl:template match="Pulse/@leadingEdgeDegrees">
    <m_LeadEdge><xsl:value-of select="."/></m_LeadEdge>
  </xsl:template>
  <xsl:template match="Pulse/@trailingEdgeDegrees">
    <m_TrailEdge><xsl:value-of select="."/></m_TrailEdge>
  </xsl:template>
  <xsl:template match="Pulse/@widthDegrees">
    <m_Width><xsl:value-of select="."/></m_Width>
  </xsl:template>
  <xsl:template match="Pulse/@IsPulse | Pulse/@CWSegStr | Pulse/@Amp | Pulse/@LeadEdge | Pulse/@TrailEdge | Pulse/@Width">
    <xsl:element name="{name()}"><xsl:value-of select="."/></xsl:element>
  </xsl:template>

  <!-- Group types. -->
  <xsl:template match="GroupType">
    <item>
      <Title><xsl:value-of select="@title"/></Title>
      <Rates>
        <count><xsl:value-of select="count(Rate/@hertz)"/></count>
        <xsl:apply-templates select="Rate/@hertz"/>
      </Rates>
      <SpinFactors>
        <count><xsl:value-of select="count(SpinFactor/@ratio)"/></count>
        <xsl:apply-templates select="SpinFactor/@ratio"/>
      </SpinFactors>
      <xsl:if test="DarkPulse">
        <VIDarkPulseInfo><xsl:apply-templates select="DarkPulse/@*"/></VIDarkPulseInfo>
      </xsl:if>
      <BitwSelectRateFlags>
        <count><xsl:value-of select="count(Rate/@hertz)"/></count>
        <xsl:apply-templates select="Rate[@hertz]" mode="flag"/>
      </BitwSelectRateFlags>
    </item>
  </xsl:template>
  <xsl:template match="Rate/@hertz | GroupType/SpinFactor/@ratio">
    <item><xsl:value-of select="."/></item>
  </xsl:template>
  <xsl:template match="Rate" mode="flag">
    <item><xsl:value-of select="@selected"/></item>
  </xsl:template>
  <xsl:template match="DarkPulse/@*" priority="-1"/>
  <xsl:template match="DarkPulse/@enabled">
    <Enable><xsl:value-of select="."/></Enable>
  </xsl:template>
  <xsl:template match="DarkPulse/@maxFallMicroseconds">
    <MaxFallLength><xsl:value-of select="."/></MaxFallLength>
  </xsl:template>
  <xsl:template match="DarkPulse/@jitterMicroseconds">
    <Jitter><xsl:value-of select="."/></Jitter>
  </xsl:template>
  <xsl:template match="DarkPulse/@minWidthMicroseconds">
    <MinWidthLength><xsl:value-of select="."/></MinWidthLength>
  </xsl:template>
  <xsl:template match="DarkPulse/@maxRiseMicroseconds">
    <MaxRiseLength><xsl:value-of select="."/></MaxRiseLength>
  </xsl:template>
  <xsl:template match="DarkPulse/@minAmplitudePercent">
    <MinAmplitude><xsl:value-of select="."/></MinAmplitude>
  </xsl:template>
  <xsl:template match="DarkPulse/@maxAmplitudePercent">
    <MaxAmplitude><xsl:value-of select="."/></MaxAmplitude>
  </xsl:template>
  <xsl:template match="DarkPulse/@rateHertz">
    <CWRate><xsl:value-of select="."/></CWRate>
  </xsl:template>

  <!-- The reference gamut, in the order of its data. -->
  <xsl:template match="ReferenceGamut">
    <ReferenceGamut>
      <count>7</count>
      <item><xsl:apply-templates select="Red[1]/@*"/></item>
      <item><xsl:apply-templates select="Green[1]/@*"/></item>
      <item><xsl:apply-templates select="Blue[1]/@*"/></item>
      <item><xsl:apply-templates select="White[1]/@*"/></item>
      <item><xsl:apply-templates select="Cyan[1]/@*"/></item>
      <item><xsl:apply-templates select="Magenta[1]/@*"/></item>
      <item><xsl:apply-templates select="Yellow[1]/@*"/></item>
    </ReferenceGamut>
  </xsl:template>
  <xsl:template match="ReferenceGamut/*/@*" priority="-1"/>
  <xsl:template match="ReferenceGamut/*/@x">
    <xyChroma.x><xsl:value-of select="."/></xyChroma.x>
  </xsl:template>
  <xsl:template match="ReferenceGamut/*/@y">
    <xyChroma.y><xsl:value-of select="."/></xyChroma.y>
  </xsl:template>

  <!-- A wheel, in the order of its data. -->
  <xsl:template match="ColorWheel">
    <xsl:apply-templates select="@number"/>
    <xsl:apply-templates select="SpokeSize/@degrees"/>
    <xsl:apply-templates select="SpinFactor/@ratio"/>
    <xsl:apply-templates select="Segments"/>
    <xsl:apply-templates select="NominalFrameRate/@hertz"/>
    <xsl:apply-templates select="SecondFrameRate/@hertz"/>
    <xsl:apply-templates select="PwmEfficiencies/@use"/>
    <xsl:apply-templates select="WhiteProcessing/@enabled"/>
    <xsl:apply-templates select="SpokeLightRecapture/@enabled"/>
    <xsl:apply-templates select="SecondaryColorBoost/@enabled"/>
  </xsl:template>

  <xsl:template match="ColorWheel/@number">
    <WheelNumber><xsl:value-of select="."/></WheelNumber>
  </xsl:template>
  <xsl:template match="SpokeSize/@degrees">
    <SpokeSize><xsl:value-of select="."/></SpokeSize>
  </xsl:template>
  <xsl:template match="ColorWheel/SpinFactor/@ratio">
    <SpinValue><xsl:value-of select="."/></SpinValue>
  </xsl:template>
  <xsl:template match="NominalFrameRate/@hertz | SecondFrameRate/@hertz">
    <xsl:element name="{name(..)}"><xsl:value-of select="."/></xsl:element>
  </xsl:template>
  <xsl:template match="PwmEfficiencies/@use">
    <UseModeledPwm>
      <xsl:choose>
        <xsl:when test=". = 'modeled'">1</xsl:when>
        <xsl:when test=". = 'measured'">0</xsl:when>
        <xsl:otherwise><xsl:value-of select="."/></xsl:otherwise>
      </xsl:choose>
    </UseModeledPwm>
  </xsl:template>
  <xsl:template match="ColorWheel/*/@enabled">
    <xsl:element name="{name(..)}"><xsl:value-of select="."/></xsl:element>
  </xsl:template>

  <!-- Filters without a segment stand behind the segments. -->
  <xsl:template match="Segments">
    <Segments>
      <count><xsl:value-of select="count(Segment)"/></count>
      <xsl:apply-templates select="Segment"/>
    </Segments>
    <FilterSpecs>
      <count><xsl:value-of select="count(Segment) + count(Filter)"/></count>
      <xsl:apply-templates select="Segment" mode="filter"/>
      <xsl:apply-templates select="Filter"/>
    </FilterSpecs>
  </xsl:template>

  <xsl:template match="Segment">
    <item>
      <xsl:apply-templates select="@color"/>
      <xsl:apply-templates select="@degrees"/>
      <xsl:apply-templates select="Gain/@segment"/>
      <xsl:apply-templates select="Gain/@spoke"/>
      <xsl:apply-templates select="MeasuredPwm/@segment"/>
      <xsl:apply-templates select="MeasuredPwm/@spoke"/>
      <xsl:apply-templates select="ModeledPwm/@segment"/>
      <xsl:apply-templates select="ModeledPwm/@spoke"/>
    </item>
  </xsl:template>
  <xsl:template match="Segment" mode="filter">
    <xsl:apply-templates select="Filter[1]"/>
    <xsl:if test="not(Filter)">
      <item><xsl:apply-templates select="@color"/></item>
    </xsl:if>
  </xsl:template>
  <xsl:template match="Filter">
    <item>
      <xsl:apply-templates select="@color | parent::Segment[not(current()/@color)]/@color"/>
      <xsl:apply-templates select="@peakTransmission"/>
      <xsl:apply-templates select="@shortEdgeNanometers"/>
      <xsl:apply-templates select="@longEdgeNanometers"/>
      <xsl:apply-templates select="@shortEdgeFactor"/>
      <xsl:apply-templates select="@longEdgeFactor"/>
    </item>
  </xsl:template>

  <!-- A number that is no color's stands for itself. -->
  <xsl:template match="Segment/@color | Filter/@color">
    <xsl:variable name="code" select="substring-before(substring-after($codes, concat('|', ., '=')), '|')"/>
    <Color>
      <xsl:value-of select="$code"/>
      <xsl:if test="$code = ''"><xsl:value-of select="."/></xsl:if>
    </Color>
  </xsl:template>
  <xsl:template match="Segment/@degrees">
    <Size><xsl:value-of select="."/></Size>
  </xsl:template>
  <xsl:template match="Gain/@segment">
    <SegmentGain><xsl:value-of select="."/></SegmentGain>
  </xsl:template>
  <xsl:template match="Gain/@spoke">
    <SpokeGain><xsl:value-of select="."/></SpokeGain>
  </xsl:template>
  <xsl:template match="MeasuredPwm/@segment">
    <MeasuredSegmentPwm><xsl:value-of select="."/></MeasuredSegmentPwm>
  </xsl:template>
  <xsl:template match="MeasuredPwm/@spoke">
    <MeasuredSpokePwm><xsl:value-of select="."/></MeasuredSpokePwm>
  </xsl:template>
  <xsl:template match="ModeledPwm/@segment">
    <ModeledSegmentPwm><xsl:value-of select="."/></ModeledSegmentPwm>
  </xsl:template>
  <xsl:template match="ModeledPwm/@spoke">
    <ModeledSpokePwm><xsl:value-of select="."/></ModeledSpokePwm>
  </xsl:template>
  <xsl:template match="@peakTransmission">
    <PeakTransmission><xsl:value-of select="."/></PeakTransmission>
  </xsl:template>
  <xsl:template match="@shortEdgeNanometers">
    <Sw50><xsl:value-of select="."/></Sw50>
  </xsl:template>
  <xsl:template match="@longEdgeNanometers">
    <Lw50><xsl:value-of select="."/></Lw50>
  </xsl:template>
  <xsl:template match="@shortEdgeFactor">
    <SwFactor><xsl:value-of select="."/></SwFactor>
  </xsl:template>
  <xsl:template match="@longEdgeFactor">
    <LwFactor><xsl:value-of select="."/></LwFactor>
  </xsl:template>
</xsl:stylesheet>
