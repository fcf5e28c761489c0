<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The frame rates page's data to fragment FrameRates. What the fragment holds besides is kept:
     list entries take the places of those that are stored, and what they hold besides goes with the
     rate of a sequence and the shortest period of a span of source rates. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="stored" select="/RunTimeDB/FrameRates"/>
  <xsl:variable name="rates" select="/RunTimeDB/ModuleOutputs/FrameRates/item"/>
  <xsl:variable name="bins" select="/RunTimeDB/ModuleOutputs/FreqBinTable/item"/>
  <xsl:key name="spans" match="FrameRates/SourceRates" use="number(@shortestTicks)"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <FrameRates>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:if test="not($stored/SequenceRate)">
          <xsl:apply-templates select="$rates" mode="rate"/>
        </xsl:if>
        <xsl:for-each select="$stored/*">
          <xsl:choose>
            <xsl:when test="self::SequenceRate">
              <xsl:variable name="number" select="count(preceding-sibling::SequenceRate) + 1"/>
              <xsl:apply-templates select="$rates[$number]" mode="rate"/>
              <xsl:if test="not(following-sibling::SequenceRate)">
                <xsl:apply-templates select="$rates[position() &gt; $number]" mode="rate"/>
              </xsl:if>
            </xsl:when>
            <xsl:when test="self::SourceRates">
              <xsl:variable name="number" select="count(preceding-sibling::SourceRates) + 1"/>
              <xsl:apply-templates select="$bins[$number]" mode="span"/>
              <xsl:if test="not(following-sibling::SourceRates)">
                <xsl:apply-templates select="$bins[position() &gt; $number]" mode="span"/>
              </xsl:if>
            </xsl:when>
            <xsl:otherwise><xsl:copy-of select="."/></xsl:otherwise>
          </xsl:choose>
        </xsl:for-each>
        <xsl:if test="not($stored/SourceRates)">
          <xsl:apply-templates select="$bins" mode="span"/>
        </xsl:if>
      </FrameRates>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="item" mode="rate">
    <xsl:variable name="rate" select="number(.)"/>
    <!-- A rate may be spelled in more ways than one. -->
    <xsl:variable name="same" select="$stored/SequenceRate
        [@hertz - $rate &lt; 0.000000001 and $rate - @hertz &lt; 0.000000001][1]"/>
    <SequenceRate>
      <xsl:copy-of select="$same/@*"/>
      <xsl:attribute name="hertz"><xsl:value-of select="."/></xsl:attribute>
      <xsl:copy-of select="$same/*"/>
    </SequenceRate>
  </xsl:template>

  <xsl:template match="item" mode="span">
    <xsl:variable name="same" select="key('spans', number(MinFrameCount))[1]"/>
    <SourceRates>
      <xsl:copy-of select="$same/@*"/>
      <xsl:attribute name="longestTicks"><xsl:value-of select="MaxFrameCount"/></xsl:attribute>
      <xsl:attribute name="shortestTicks"><xsl:value-of select="MinFrameCount"/></xsl:attribute>
      <xsl:attribute name="sequenceRange"><xsl:value-of select="LookBinIndex"/></xsl:attribute>
      <xsl:attribute name="multiplier"><xsl:value-of select="SequenceMultiplier"/></xsl:attribute>
      <xsl:attribute name="sync">
        <xsl:choose>
          <xsl:when test="IsLockToInternalVsync = 0">source</xsl:when>
          <xsl:when test="IsLockToInternalVsync = 1">internal</xsl:when>
          <xsl:otherwise><xsl:value-of select="IsLockToInternalVsync"/></xsl:otherwise>
        </xsl:choose>
      </xsl:attribute>
      <xsl:attribute name="stereo">
        <xsl:choose>
          <xsl:when test="Enable3d = 0">no</xsl:when>
          <xsl:when test="Enable3d = 1">yes</xsl:when>
          <xsl:otherwise><xsl:value-of select="Enable3d"/></xsl:otherwise>
        </xsl:choose>
      </xsl:attribute>
      <xsl:copy-of select="$same/*"/>
    </SourceRates>
  </xsl:template>
</xsl:stylesheet>
