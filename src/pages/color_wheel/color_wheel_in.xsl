<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment ColorWheel to the color wheel's data. A value that is not there is left out, so that
     the page keeps its own; a segment without a filter gets a new one of its color. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="codes" select="'|None=-1|Red=0|Green=1|Blue=2|White=3|Cyan=4|Magenta=5|Yellow=6|Black=7|White Spoke=8|Cyan Spoke=9|Magenta Spoke=10|Yellow Spoke=11|NDRed=12|NDGreen=13|NDBlue=14|NDWhite=15|NDCyan=16|NDMagenta=17|NDYellow=18|'"/>

  <xsl:template match="/RunTimeDB">
    <Inputs>
      <xsl:apply-templates select="/RunTimeDB/ColorWheel"/>
    </Inputs>
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

  <xsl:template match="@number">
    <WheelNumber><xsl:value-of select="."/></WheelNumber>
  </xsl:template>
  <xsl:template match="SpokeSize/@degrees">
    <SpokeSize><xsl:value-of select="."/></SpokeSize>
  </xsl:template>
  <xsl:template match="SpinFactor/@ratio">
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
  <xsl:template match="@enabled">
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
  <xsl:template match="@color">
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
