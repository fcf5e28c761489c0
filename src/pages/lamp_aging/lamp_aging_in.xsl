<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment LampAging to the lamp aging page's data. A value that is not there is left out, so
     that the page keeps its own. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:template match="/RunTimeDB">
    <xsl:variable name="aging" select="/RunTimeDB/LampAging"/>
    <Inputs>
      <m_VecpulseAmpDataFeedBackGroup>
        <count><xsl:value-of select="count($aging/FeedbackTable)"/></count>
        <xsl:apply-templates select="$aging/FeedbackTable"/>
      </m_VecpulseAmpDataFeedBackGroup>
      <m_VecpulseAmpDataNoFeedBackGroup>
        <count><xsl:value-of select="count($aging/NoFeedbackTable)"/></count>
        <xsl:apply-templates select="$aging/NoFeedbackTable"/>
      </m_VecpulseAmpDataNoFeedBackGroup>
      <xsl:apply-templates select="$aging/Ballast/@type"/>
    </Inputs>
  </xsl:template>

  <xsl:template match="LampAging/FeedbackTable | LampAging/NoFeedbackTable">
    <item>
      <xsl:apply-templates select="@spinFactor"/>
      <xsl:if test="SequenceGroup/@name">
        <m_seqType><Title><xsl:value-of select="SequenceGroup/@name"/></Title></m_seqType>
      </xsl:if>
      <xsl:apply-templates select="@title"/>
      <m_SlrPulseAmpDataTable>
        <count><xsl:value-of select="count(PulseAmplitude)"/></count>
        <xsl:apply-templates select="PulseAmplitude"/>
      </m_SlrPulseAmpDataTable>
    </item>
  </xsl:template>
  <xsl:template match="@spinFactor">
    <m_spinFactor><xsl:value-of select="."/></m_spinFactor>
  </xsl:template>
  <xsl:template match="@title">
    <m_title><xsl:value-of select="."/></m_title>
  </xsl:template>

  <xsl:template match="PulseAmplitude">
    <item>
      <xsl:apply-templates select="@ratio"/>
      <xsl:apply-templates select="@fromFeedback"/>
      <xsl:apply-templates select="@toFeedback"/>
    </item>
  </xsl:template>
  <xsl:template match="@ratio">
    <m_avgPulseAmplitude><xsl:value-of select="."/></m_avgPulseAmplitude>
  </xsl:template>
  <xsl:template match="@fromFeedback">
    <m_lowerBallastVal><xsl:value-of select="."/></m_lowerBallastVal>
  </xsl:template>
  <xsl:template match="@toFeedback">
    <m_upperBallastVal><xsl:value-of select="."/></m_upperBallastVal>
  </xsl:template>

  <xsl:template match="Ballast/@type">
    <m_ballast_type>
      <xsl:choose>
        <xsl:when test=". = 'feedback'">0</xsl:when>
        <xsl:when test=". = 'no-feedback'">1</xsl:when>
        <xsl:otherwise><xsl:value-of select="."/></xsl:otherwise>
      </xsl:choose>
    </m_ballast_type>
  </xsl:template>
</xsl:stylesheet>
