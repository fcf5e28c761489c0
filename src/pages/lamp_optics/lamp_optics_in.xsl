<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment LampOptics to the data of lamps and optics. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="stored" select="/RunTimeDB/LampOptics"/>

  <!-- Everything is written whole: data that are read anew must not keep earlier values. -->
  <xsl:template match="/RunTimeDB">
    <Inputs>
      <Lamp>
        <Lamps>
          <count>5</count>
          <xsl:call-template name="Lamps"/>
        </Lamps>
        <CurrentLamp><xsl:call-template name="Current"><xsl:with-param name="number" select="$stored/Lamps/@current"/></xsl:call-template></CurrentLamp>
      </Lamp>
      <xsl:variable name="library" select="$stored/OpticsLibrary"/>
      <Optics>
        <Optics>
          <count>5</count>
          <xsl:call-template name="Optics"/>
        </Optics>
        <CurrentOptics><xsl:call-template name="Current"><xsl:with-param name="number" select="$library/@current"/></xsl:call-template></CurrentOptics>
        <FullOnContrastRatio><xsl:call-template name="Or"><xsl:with-param name="value" select="$library/@fullOnContrastRatio"/><xsl:with-param name="otherwise" select="1000"/></xsl:call-template></FullOnContrastRatio>
        <xsl:call-template name="Model"><xsl:with-param name="model" select="$stored/OpticsModel"/></xsl:call-template>
      </Optics>
    </Inputs>
  </xsl:template>

  <!-- Places of the library that are not stored are free ones. -->
  <xsl:template name="Lamps">
    <xsl:param name="place" select="1"/>
    <xsl:variable name="lamp" select="$stored/Lamps/Lamp[$place]"/>
    <item>
      <Response><xsl:call-template name="Points"><xsl:with-param name="points" select="$lamp/Response/Point"/></xsl:call-template></Response>
      <TotalLumens><xsl:call-template name="Or"><xsl:with-param name="value" select="$lamp/@totalLumens"/></xsl:call-template></TotalLumens>
      <Name><xsl:value-of select="$lamp/@name"/></Name>
      <OpticsFlag><xsl:call-template name="Or"><xsl:with-param name="value" select="$lamp/@opticsFlag"/></xsl:call-template></OpticsFlag>
      <LumensVsAperture>
        <count><xsl:value-of select="count($lamp/LumensByAperture/Point)"/></count>
        <xsl:for-each select="$lamp/LumensByAperture/Point">
          <item>
            <Aperture><xsl:value-of select="@aperture"/></Aperture>
            <Lumens><xsl:value-of select="@lumens"/></Lumens>
          </item>
        </xsl:for-each>
      </LumensVsAperture>
      <LampPower><xsl:call-template name="Or"><xsl:with-param name="value" select="$lamp/@watts"/><xsl:with-param name="otherwise" select="-1"/></xsl:call-template></LampPower>
      <Recycling><xsl:call-template name="Points"><xsl:with-param name="points" select="$lamp/Recycling/Point"/></xsl:call-template></Recycling>
      <RecyclingEnabled>
        <xsl:variable name="enabled" select="$lamp/Recycling/@enabled"/>
        <xsl:choose>
          <xsl:when test="not($enabled) or normalize-space($enabled) = 'false'">0</xsl:when>
          <xsl:when test="normalize-space($enabled) = 'true'">1</xsl:when>
          <xsl:otherwise><xsl:value-of select="$enabled"/></xsl:otherwise>
        </xsl:choose>
      </RecyclingEnabled>
    </item>
    <xsl:if test="$place &lt; 5">
      <xsl:call-template name="Lamps"><xsl:with-param name="place" select="$place + 1"/></xsl:call-template>
    </xsl:if>
  </xsl:template>

  <xsl:template name="Optics">
    <xsl:param name="place" select="1"/>
    <xsl:variable name="optics" select="$stored/OpticsLibrary/Optics[$place]"/>
    <item>
      <Response><xsl:call-template name="Points"><xsl:with-param name="points" select="$optics/Response/Point"/></xsl:call-template></Response>
      <Name><xsl:value-of select="$optics/@name"/></Name>
    </item>
    <xsl:if test="$place &lt; 5">
      <xsl:call-template name="Optics"><xsl:with-param name="place" select="$place + 1"/></xsl:call-template>
    </xsl:if>
  </xsl:template>

  <xsl:template name="Points">
    <xsl:param name="points"/>
    <count><xsl:value-of select="count($points)"/></count>
    <xsl:for-each select="$points">
      <item>
        <Wavelength><xsl:value-of select="@nanometers"/></Wavelength>
        <Value><xsl:value-of select="@value"/></Value>
      </item>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="Model">
    <xsl:param name="model"/>
    <Model>
      <SwSlopeFactor><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@shortEdgeSlopeFactor"/></xsl:call-template></SwSlopeFactor>
      <LwSlopeFactor><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@longEdgeSlopeFactor"/></xsl:call-template></LwSlopeFactor>
      <Sw50Intersect><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@shortEdgeNanometers"/><xsl:with-param name="otherwise" select="400"/></xsl:call-template></Sw50Intersect>
      <Lw50Intersect><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@longEdgeNanometers"/><xsl:with-param name="otherwise" select="700"/></xsl:call-template></Lw50Intersect>
      <Peaking><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@peaking"/></xsl:call-template></Peaking>
      <PeakWavelength><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@peakNanometers"/><xsl:with-param name="otherwise" select="550"/></xsl:call-template></PeakWavelength>
      <PeakTransmission><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@peakTransmission"/><xsl:with-param name="otherwise" select="1"/></xsl:call-template></PeakTransmission>
      <BlueReduce><xsl:call-template name="Or"><xsl:with-param name="value" select="$model/@blueReduce"/></xsl:call-template></BlueReduce>
    </Model>
  </xsl:template>

  <!-- The database counts from 1, with 0 for none. -->
  <xsl:template name="Current">
    <xsl:param name="number"/>
    <xsl:choose>
      <xsl:when test="$number"><xsl:value-of select="$number - 1"/></xsl:when>
      <xsl:otherwise>-1</xsl:otherwise>
    </xsl:choose>
  </xsl:template>
  <xsl:template name="Or">
    <xsl:param name="value"/>
    <xsl:param name="otherwise" select="0"/>
    <xsl:value-of select="$value"/>
    <xsl:if test="not($value)"><xsl:value-of select="$otherwise"/></xsl:if>
  </xsl:template>
</xsl:stylesheet>
