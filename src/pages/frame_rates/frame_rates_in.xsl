<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment FrameRates to the frame rates page's data. A value that is not there is left out, so
     that the page keeps its own. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:template match="/RunTimeDB">
    <xsl:variable name="rates" select="/RunTimeDB/FrameRates"/>
    <Inputs>
      <FrameRates>
        <count><xsl:value-of select="count($rates/SequenceRate)"/></count>
        <xsl:apply-templates select="$rates/SequenceRate"/>
      </FrameRates>
      <FreqBinTable>
        <count><xsl:value-of select="count($rates/SourceRates)"/></count>
        <xsl:apply-templates select="$rates/SourceRates"/>
      </FreqBinTable>
    </Inputs>
  </xsl:template>

  <xsl:template match="FrameRates/SequenceRate">
    <item><xsl:value-of select="@hertz"/></item>
  </xsl:template>

  <xsl:template match="FrameRates/SourceRates">
    <item>
      <xsl:apply-templates select="@longestTicks"/>
      <xsl:apply-templates select="@shortestTicks"/>
      <xsl:apply-templates select="@sequenceRange"/>
      <xsl:apply-templates select="@multiplier"/>
      <xsl:apply-templates select="@sync"/>
      <xsl:apply-templates select="@stereo"/>
    </item>
  </xsl:template>
  <xsl:template match="@longestTicks">
    <MaxFrameCount><xsl:value-of select="."/></MaxFrameCount>
  </xsl:template>
  <xsl:template match="@shortestTicks">
    <MinFrameCount><xsl:value-of select="."/></MinFrameCount>
  </xsl:template>
  <xsl:template match="@sequenceRange">
    <LookBinIndex><xsl:value-of select="."/></LookBinIndex>
  </xsl:template>
  <xsl:template match="@multiplier">
    <SequenceMultiplier><xsl:value-of select="."/></SequenceMultiplier>
  </xsl:template>
  <xsl:template match="@sync">
    <IsLockToInternalVsync>
      <xsl:choose>
        <xsl:when test=". = 'source'">0</xsl:when>
        <xsl:when test=". = 'internal'">1</xsl:when>
        <xsl:otherwise><xsl:value-of select="."/></xsl:otherwise>
      </xsl:choose>
    </IsLockToInternalVsync>
  </xsl:template>
  <xsl:template match="@stereo">
    <Enable3d>
      <xsl:choose>
        <xsl:when test=". = 'no'">0</xsl:when>
        <xsl:when test=". = 'yes'">1</xsl:when>
        <xsl:otherwise><xsl:value-of select="."/></xsl:otherwise>
      </xsl:choose>
    </Enable3d>
  </xsl:template>
</xsl:stylesheet>
