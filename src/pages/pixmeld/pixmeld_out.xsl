<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The pixel-shift page's data to fragment Pixmeld. What the fragment holds besides is kept. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="data" select="/RunTimeDB/ModuleOutputs"/>
  <xsl:variable name="stored" select="/RunTimeDB/Pixmeld"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <Pixmeld>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:apply-templates select="$stored/*"/>
        <xsl:if test="not($stored/StartOfFirstSubframe)">
          <StartOfFirstSubframe degrees="{$data/StartOfFirstSubframe}"/>
        </xsl:if>
        <xsl:if test="not($stored/SubframeSignalLatency)">
          <SubframeSignalLatency microseconds="{$data/SubframeSignalLatency}"/>
        </xsl:if>
        <xsl:if test="not($stored/ActuatorSwitchTime)">
          <ActuatorSwitchTime microseconds="{$data/ActuatorSwitchTime}"/>
        </xsl:if>
      </Pixmeld>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="Pixmeld/*" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>

  <xsl:template match="Pixmeld/StartOfFirstSubframe">
    <StartOfFirstSubframe>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="degrees"><xsl:value-of select="$data/StartOfFirstSubframe"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </StartOfFirstSubframe>
  </xsl:template>
  <xsl:template match="Pixmeld/SubframeSignalLatency">
    <SubframeSignalLatency>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="microseconds"><xsl:value-of select="$data/SubframeSignalLatency"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </SubframeSignalLatency>
  </xsl:template>
  <xsl:template match="Pixmeld/ActuatorSwitchTime">
    <ActuatorSwitchTime>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="microseconds"><xsl:value-of select="$data/ActuatorSwitchTime"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </ActuatorSwitchTime>
  </xsl:template>
</xsl:stylesheet>
