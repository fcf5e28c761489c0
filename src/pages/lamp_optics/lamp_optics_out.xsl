<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Lamps and optics to fragment LampOptics. What the fragment holds besides is kept: with the lamp
     or optics of its name, or the one in its place when that was renamed, and with the point of its
     wavelength. Free places behind the last record are left out. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:key name="point" match="/RunTimeDB/LampOptics//Point" use="concat(generate-id(..), ' ', number(@nanometers))"/>
  <xsl:key name="twin" match="/RunTimeDB/ModuleOutputs//Response/item | /RunTimeDB/ModuleOutputs//Recycling/item" use="concat(generate-id(..), ' ', Wavelength)"/>

  <xsl:variable name="stored" select="/RunTimeDB/LampOptics"/>
  <xsl:variable name="lampData" select="/RunTimeDB/ModuleOutputs/Lamp"/>
  <xsl:variable name="opticsData" select="/RunTimeDB/ModuleOutputs/Optics"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <LampOptics>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:apply-templates select="$stored/*" mode="fragment"/>
        <xsl:if test="not($stored/Lamps)">
          <Lamps><xsl:call-template name="Lamps"/></Lamps>
        </xsl:if>
        <xsl:if test="not($stored/OpticsLibrary)">
          <OpticsLibrary><xsl:call-template name="OpticsLibrary"/></OpticsLibrary>
        </xsl:if>
        <xsl:if test="not($stored/OpticsModel)">
          <OpticsModel><xsl:apply-templates select="$opticsData/Model"/></OpticsModel>
        </xsl:if>
      </LampOptics>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="*" mode="fragment" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Lamps[not(preceding-sibling::Lamps)]" mode="fragment">
    <Lamps>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="Lamps"><xsl:with-param name="kept" select="."/></xsl:call-template>
    </Lamps>
  </xsl:template>
  <xsl:template match="OpticsLibrary[not(preceding-sibling::OpticsLibrary)]" mode="fragment">
    <OpticsLibrary>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="OpticsLibrary"><xsl:with-param name="kept" select="."/></xsl:call-template>
    </OpticsLibrary>
  </xsl:template>
  <xsl:template match="OpticsModel[not(preceding-sibling::OpticsModel)]" mode="fragment">
    <OpticsModel>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="$opticsData/Model"/>
      <xsl:copy-of select="*"/>
    </OpticsModel>
  </xsl:template>

  <xsl:template match="Model">
    <xsl:attribute name="shortEdgeSlopeFactor"><xsl:value-of select="SwSlopeFactor"/></xsl:attribute>
    <xsl:attribute name="longEdgeSlopeFactor"><xsl:value-of select="LwSlopeFactor"/></xsl:attribute>
    <xsl:attribute name="shortEdgeNanometers"><xsl:value-of select="Sw50Intersect"/></xsl:attribute>
    <xsl:attribute name="longEdgeNanometers"><xsl:value-of select="Lw50Intersect"/></xsl:attribute>
    <xsl:attribute name="peaking"><xsl:value-of select="Peaking"/></xsl:attribute>
    <xsl:attribute name="peakNanometers"><xsl:value-of select="PeakWavelength"/></xsl:attribute>
    <xsl:attribute name="peakTransmission"><xsl:value-of select="PeakTransmission"/></xsl:attribute>
    <xsl:attribute name="blueReduce"><xsl:value-of select="BlueReduce"/></xsl:attribute>
  </xsl:template>

  <!-- The inside of the lamp library. -->
  <xsl:template name="Lamps">
    <xsl:param name="kept" select="/.."/>
    <xsl:call-template name="Current">
      <xsl:with-param name="kept" select="$kept"/>
      <xsl:with-param name="index" select="$lampData/CurrentLamp"/>
    </xsl:call-template>
    <xsl:variable name="items" select="$lampData/Lamps/item"/>
    <xsl:variable name="last" select="$items[Response/item or TotalLumens != 0 or Name != '' or OpticsFlag != 0 or LumensVsAperture/item or LampPower != -1 or Recycling/item or RecyclingEnabled = 1][last()]"/>
    <xsl:call-template name="Records">
      <xsl:with-param name="element">Lamp</xsl:with-param>
      <xsl:with-param name="items" select="$items"/>
      <xsl:with-param name="count" select="count($last | $last/preceding-sibling::item)"/>
      <xsl:with-param name="kept" select="$kept/Lamp"/>
    </xsl:call-template>
    <xsl:copy-of select="$kept/*[not(self::Lamp)]"/>
  </xsl:template>

  <!-- The inside of the optics library. -->
  <xsl:template name="OpticsLibrary">
    <xsl:param name="kept" select="/.."/>
    <xsl:call-template name="Current">
      <xsl:with-param name="kept" select="$kept"/>
      <xsl:with-param name="index" select="$opticsData/CurrentOptics"/>
    </xsl:call-template>
    <xsl:attribute name="fullOnContrastRatio"><xsl:value-of select="$opticsData/FullOnContrastRatio"/></xsl:attribute>
    <xsl:variable name="items" select="$opticsData/Optics/item"/>
    <xsl:variable name="last" select="$items[Response/item or Name != ''][last()]"/>
    <xsl:call-template name="Records">
      <xsl:with-param name="element">Optics</xsl:with-param>
      <xsl:with-param name="items" select="$items"/>
      <xsl:with-param name="count" select="count($last | $last/preceding-sibling::item)"/>
      <xsl:with-param name="kept" select="$kept/Optics"/>
    </xsl:call-template>
    <xsl:copy-of select="$kept/*[not(self::Optics)]"/>
  </xsl:template>

  <!-- The database counts from 1, with 0 for none. -->
  <xsl:template name="Current">
    <xsl:param name="kept"/>
    <xsl:param name="index"/>
    <xsl:if test="$kept/@current or $index != -1">
      <xsl:attribute name="current"><xsl:value-of select="$index + 1"/></xsl:attribute>
    </xsl:if>
  </xsl:template>

  <!-- The records of a library up to the last one, and what is stored behind its places. -->
  <xsl:template name="Records">
    <xsl:param name="element"/>
    <xsl:param name="items"/>
    <xsl:param name="count"/>
    <xsl:param name="kept"/>
    <xsl:for-each select="$items[position() &lt;= $count]">
      <xsl:variable name="place" select="position()"/>
      <xsl:variable name="name" select="Name"/>
      <xsl:variable name="there" select="$kept[$place]"/>
      <xsl:variable name="here" select="$there[string(@name) = $name]"/>
      <xsl:variable name="like" select="$kept[string(@name) = $name][not($here)][1]"/>
      <xsl:variable name="renamed" select="$there[not($here or $like)][not(string(@name) = $items/Name)]"/>
      <xsl:element name="{$element}">
        <xsl:apply-templates select="." mode="record">
          <xsl:with-param name="kept" select="$here | $like | $renamed"/>
        </xsl:apply-templates>
      </xsl:element>
    </xsl:for-each>
    <xsl:copy-of select="$kept[position() &gt; $count and position() &lt;= 5][not(@* or *)]"/>
    <xsl:copy-of select="$kept[position() &gt; 5]"/>
  </xsl:template>

  <!-- The inside of a record. -->
  <xsl:template match="item" mode="record">
    <xsl:param name="kept"/>
    <xsl:copy-of select="$kept/@*"/>
    <xsl:if test="$kept/@name or Name != ''">
      <xsl:attribute name="name"><xsl:value-of select="Name"/></xsl:attribute>
    </xsl:if>
    <xsl:if test="$kept/@totalLumens or TotalLumens != 0">
      <xsl:attribute name="totalLumens"><xsl:value-of select="TotalLumens"/></xsl:attribute>
    </xsl:if>
    <xsl:if test="LampPower and ($kept/@watts or LampPower != -1)">
      <xsl:attribute name="watts"><xsl:value-of select="LampPower"/></xsl:attribute>
    </xsl:if>
    <xsl:if test="OpticsFlag and ($kept/@opticsFlag or OpticsFlag != 0)">
      <xsl:attribute name="opticsFlag"><xsl:value-of select="OpticsFlag"/></xsl:attribute>
    </xsl:if>
    <xsl:apply-templates select="$kept/*" mode="record">
      <xsl:with-param name="item" select="."/>
    </xsl:apply-templates>
    <xsl:if test="Response/item and not($kept/Response)">
      <Response>
        <xsl:call-template name="Points"><xsl:with-param name="items" select="Response/item"/></xsl:call-template>
      </Response>
    </xsl:if>
    <xsl:if test="LumensVsAperture/item and not($kept/LumensByAperture)">
      <LumensByAperture><xsl:apply-templates select="LumensVsAperture/item" mode="aperture"/></LumensByAperture>
    </xsl:if>
    <xsl:if test="(Recycling/item or RecyclingEnabled = 1) and not($kept/Recycling)">
      <Recycling>
        <xsl:apply-templates select="RecyclingEnabled[. = 1]"/>
        <xsl:call-template name="Points"><xsl:with-param name="items" select="Recycling/item"/></xsl:call-template>
      </Recycling>
    </xsl:if>
  </xsl:template>

  <xsl:template match="*" mode="record" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Response" mode="record">
    <xsl:param name="item"/>
    <Response>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="Points">
        <xsl:with-param name="items" select="$item/Response/item"/>
        <xsl:with-param name="kept" select="."/>
      </xsl:call-template>
    </Response>
  </xsl:template>
  <xsl:template match="Lamp/Recycling" mode="record">
    <xsl:param name="item"/>
    <Recycling>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="$item/RecyclingEnabled[. = 1 or current()/@enabled]"/>
      <xsl:call-template name="Points">
        <xsl:with-param name="items" select="$item/Recycling/item"/>
        <xsl:with-param name="kept" select="."/>
      </xsl:call-template>
    </Recycling>
  </xsl:template>
  <xsl:template match="Lamp/LumensByAperture" mode="record">
    <xsl:param name="item"/>
    <xsl:variable name="kept" select="."/>
    <LumensByAperture>
      <xsl:copy-of select="@*"/>
      <xsl:for-each select="$item/LumensVsAperture/item">
        <xsl:variable name="place" select="position()"/>
        <xsl:apply-templates select="." mode="aperture">
          <xsl:with-param name="kept" select="$kept/Point[$place]"/>
        </xsl:apply-templates>
      </xsl:for-each>
      <xsl:copy-of select="*[not(self::Point)]"/>
    </LumensByAperture>
  </xsl:template>

  <xsl:template match="RecyclingEnabled">
    <xsl:attribute name="enabled"><xsl:value-of select=". = 1"/></xsl:attribute>
  </xsl:template>
  <xsl:template match="item" mode="aperture">
    <xsl:param name="kept" select="/.."/>
    <Point>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:attribute name="aperture"><xsl:value-of select="Aperture"/></xsl:attribute>
      <xsl:attribute name="lumens"><xsl:value-of select="Lumens"/></xsl:attribute>
      <xsl:copy-of select="$kept/*"/>
    </Point>
  </xsl:template>

  <!-- The points of a spectrum, between what stood before and behind the stored ones. Only where a
       stored point holds more than its two values are the points looked up. -->
  <xsl:template name="Points">
    <xsl:param name="items"/>
    <xsl:param name="kept" select="/.."/>
    <xsl:copy-of select="$kept/*[not(self::Point)][not(preceding-sibling::Point)]"/>
    <xsl:choose>
      <xsl:when test="$kept/Point[@*[name() != 'nanometers' and name() != 'value'] or *]">
        <xsl:apply-templates select="$items" mode="known">
          <xsl:with-param name="kept" select="generate-id($kept)"/>
        </xsl:apply-templates>
      </xsl:when>
      <xsl:otherwise>
        <xsl:for-each select="$items"><Point nanometers="{Wavelength}" value="{Value}"/></xsl:for-each>
      </xsl:otherwise>
    </xsl:choose>
    <xsl:copy-of select="$kept/*[not(self::Point)][preceding-sibling::Point]"/>
  </xsl:template>

  <xsl:template match="item" mode="known">
    <xsl:param name="kept"/>
    <xsl:variable name="like" select="key('point', concat($kept, ' ', Wavelength))"/>
    <!-- Of several points of one wavelength, the one in the same turn. -->
    <xsl:variable name="turn">
      <xsl:if test="$like[2]">
        <xsl:variable name="id" select="generate-id()"/>
        <xsl:for-each select="key('twin', concat(generate-id(..), ' ', Wavelength))">
          <xsl:if test="generate-id() = $id"><xsl:value-of select="position()"/></xsl:if>
        </xsl:for-each>
      </xsl:if>
    </xsl:variable>
    <xsl:variable name="point" select="$like[not($like[2]) or position() = $turn]"/>
    <Point>
      <xsl:copy-of select="$point/@*"/>
      <xsl:attribute name="nanometers"><xsl:value-of select="Wavelength"/></xsl:attribute>
      <xsl:attribute name="value"><xsl:value-of select="Value"/></xsl:attribute>
      <xsl:copy-of select="$point/*"/>
    </Point>
  </xsl:template>
</xsl:stylesheet>
