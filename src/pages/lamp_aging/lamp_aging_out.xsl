<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The lamp aging page's data to fragment LampAging. What the fragment holds besides is kept: list
     entries take the places of those that are stored, and what they hold besides goes with the
     spin factor of a table and the lower feedback value of a bin. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="data" select="/RunTimeDB/ModuleOutputs"/>
  <xsl:variable name="stored" select="/RunTimeDB/LampAging"/>
  <xsl:variable name="feedback" select="$data/m_VecpulseAmpDataFeedBackGroup/item"/>
  <xsl:variable name="noFeedback" select="$data/m_VecpulseAmpDataNoFeedBackGroup/item"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <LampAging>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:if test="not($stored/Ballast)">
          <Ballast><xsl:call-template name="ballastType"/></Ballast>
        </xsl:if>
        <xsl:apply-templates select="$stored/*"/>
        <xsl:if test="not($stored/FeedbackTable)">
          <xsl:call-template name="tables">
            <xsl:with-param name="element">FeedbackTable</xsl:with-param>
            <xsl:with-param name="items" select="$feedback"/>
          </xsl:call-template>
        </xsl:if>
        <xsl:if test="not($stored/NoFeedbackTable)">
          <xsl:call-template name="tables">
            <xsl:with-param name="element">NoFeedbackTable</xsl:with-param>
            <xsl:with-param name="items" select="$noFeedback"/>
          </xsl:call-template>
        </xsl:if>
      </LampAging>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="LampAging/*" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>

  <xsl:template match="LampAging/Ballast">
    <Ballast>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="ballastType"/>
      <xsl:copy-of select="*"/>
    </Ballast>
  </xsl:template>
  <xsl:template name="ballastType">
    <xsl:attribute name="type">
      <xsl:choose>
        <xsl:when test="$data/m_ballast_type = 0">feedback</xsl:when>
        <xsl:when test="$data/m_ballast_type = 1">no-feedback</xsl:when>
        <xsl:otherwise><xsl:value-of select="$data/m_ballast_type"/></xsl:otherwise>
      </xsl:choose>
    </xsl:attribute>
  </xsl:template>

  <xsl:template match="LampAging/FeedbackTable">
    <xsl:call-template name="place">
      <xsl:with-param name="items" select="$feedback"/>
      <xsl:with-param name="number" select="count(preceding-sibling::FeedbackTable) + 1"/>
      <xsl:with-param name="count" select="count($stored/FeedbackTable)"/>
    </xsl:call-template>
  </xsl:template>
  <xsl:template match="LampAging/NoFeedbackTable">
    <xsl:call-template name="place">
      <xsl:with-param name="items" select="$noFeedback"/>
      <xsl:with-param name="number" select="count(preceding-sibling::NoFeedbackTable) + 1"/>
      <xsl:with-param name="count" select="count($stored/NoFeedbackTable)"/>
    </xsl:call-template>
  </xsl:template>
  <!-- The table that takes the place of a stored one; in the last place also all that follow. -->
  <xsl:template name="place">
    <xsl:param name="items"/>
    <xsl:param name="number"/>
    <xsl:param name="count"/>
    <xsl:call-template name="tables">
      <xsl:with-param name="element" select="name()"/>
      <xsl:with-param name="items" select="$items"/>
      <xsl:with-param name="from" select="$number"/>
      <xsl:with-param name="to">
        <xsl:choose>
          <xsl:when test="$number = $count"><xsl:value-of select="count($items)"/></xsl:when>
          <xsl:otherwise><xsl:value-of select="$number"/></xsl:otherwise>
        </xsl:choose>
      </xsl:with-param>
    </xsl:call-template>
  </xsl:template>

  <xsl:template name="tables">
    <xsl:param name="element"/>
    <xsl:param name="items"/>
    <xsl:param name="from" select="1"/>
    <xsl:param name="to" select="count($items)"/>
    <xsl:for-each select="$items[position() &gt;= $from and position() &lt;= $to]">
      <xsl:variable name="number" select="$from + position() - 1"/>
      <xsl:variable name="factor" select="m_spinFactor"/>
      <!-- A factor may be spelled in more ways than one. -->
      <xsl:variable name="same" select="$stored/*[name() = $element]
          [@spinFactor - $factor &lt; 0.000000001 and $factor - @spinFactor &lt; 0.000000001]"/>
      <xsl:variable name="here" select="$same[count(preceding-sibling::*[name() = $element]) + 1 = $number]"/>
      <xsl:call-template name="table">
        <xsl:with-param name="element" select="$element"/>
        <xsl:with-param name="kept" select="$here | $same[not($here)][1]"/>
      </xsl:call-template>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="table">
    <xsl:param name="element"/>
    <xsl:param name="kept"/>
    <xsl:variable name="group" select="."/>
    <xsl:element name="{$element}">
      <xsl:copy-of select="$kept/@*"/>
      <xsl:attribute name="spinFactor"><xsl:value-of select="m_spinFactor"/></xsl:attribute>
      <xsl:if test="$kept/@title or m_title != ''">
        <xsl:attribute name="title"><xsl:value-of select="m_title"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="not($kept/SequenceGroup) and m_seqType/Title != ''">
        <SequenceGroup name="{m_seqType/Title}"/>
      </xsl:if>
      <xsl:for-each select="$kept/*">
        <xsl:choose>
          <xsl:when test="self::SequenceGroup">
            <SequenceGroup>
              <xsl:copy-of select="@*"/>
              <xsl:attribute name="name"><xsl:value-of select="$group/m_seqType/Title"/></xsl:attribute>
              <xsl:copy-of select="*"/>
            </SequenceGroup>
          </xsl:when>
          <xsl:when test="self::PulseAmplitude">
            <xsl:variable name="number" select="count(preceding-sibling::PulseAmplitude) + 1"/>
            <xsl:variable name="last" select="not(following-sibling::PulseAmplitude)"/>
            <xsl:call-template name="bins">
              <xsl:with-param name="items" select="$group/m_SlrPulseAmpDataTable/item
                  [position() = $number or ($last and position() &gt; $number)]"/>
              <xsl:with-param name="kept" select="../PulseAmplitude"/>
            </xsl:call-template>
          </xsl:when>
          <xsl:otherwise><xsl:copy-of select="."/></xsl:otherwise>
        </xsl:choose>
      </xsl:for-each>
      <xsl:if test="not($kept/PulseAmplitude)">
        <xsl:call-template name="bins">
          <xsl:with-param name="items" select="m_SlrPulseAmpDataTable/item"/>
        </xsl:call-template>
      </xsl:if>
    </xsl:element>
  </xsl:template>

  <xsl:template name="bins">
    <xsl:param name="items"/>
    <xsl:param name="kept" select="/.."/>
    <xsl:for-each select="$items">
      <xsl:variable name="lower" select="m_lowerBallastVal"/>
      <xsl:variable name="stored" select="$kept[@fromFeedback = number($lower)][1]"/>
      <PulseAmplitude>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:attribute name="fromFeedback"><xsl:value-of select="m_lowerBallastVal"/></xsl:attribute>
        <xsl:attribute name="toFeedback"><xsl:value-of select="m_upperBallastVal"/></xsl:attribute>
        <xsl:attribute name="ratio"><xsl:value-of select="m_avgPulseAmplitude"/></xsl:attribute>
        <xsl:copy-of select="$stored/*"/>
      </PulseAmplitude>
    </xsl:for-each>
  </xsl:template>
</xsl:stylesheet>
