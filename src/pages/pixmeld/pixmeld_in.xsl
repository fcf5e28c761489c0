<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment Pixmeld to the pixel-shift page's data. A value that is not there is left out, so that
     the page keeps its own. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:template match="/RunTimeDB">
    <Inputs>
      <xsl:apply-templates select="/RunTimeDB/Pixmeld/*"/>
    </Inputs>
  </xsl:template>

  <xsl:template match="Pixmeld/StartOfFirstSubframe[@degrees]">
    <StartOfFirstSubframe><xsl:value-of select="@degrees"/></StartOfFirstSubframe>
  </xsl:template>
  <xsl:template match="Pixmeld/SubframeSignalLatency[@microseconds]">
    <SubframeSignalLatency><xsl:value-of select="@microseconds"/></SubframeSignalLatency>
  </xsl:template>
  <xsl:template match="Pixmeld/ActuatorSwitchTime[@microseconds]">
    <ActuatorSwitchTime><xsl:value-of select="@microseconds"/></ActuatorSwitchTime>
  </xsl:template>

  <xsl:template match="Pixmeld/*" priority="-1"/>
</xsl:stylesheet>
