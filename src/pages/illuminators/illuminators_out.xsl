<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The illuminator page's data to fragment Illuminators. What the fragment holds besides is kept.
     An illuminator that is not stored yet joins it when there is something to say of it; red, green
     and blue always. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="names" select="'|-1=None|0=Red|1=Green|2=Blue|3=Yellow|4=Cyan|5=Magenta|6=White|7=IR|'"/>
  <xsl:variable name="kinds" select="'|0=laser|1=led|'"/>
  <xsl:variable name="stored" select="/RunTimeDB/Illuminators"/>
  <xsl:variable name="illuminators" select="/RunTimeDB/ModuleOutputs/IllumChars/item"/>
  <xsl:variable name="allowed" select="/RunTimeDB/ModuleOutputs/IllumAllowed/item"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <Illuminators>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:apply-templates select="$stored/*" mode="stored"/>
        <xsl:for-each select="$illuminators">
          <xsl:variable name="place" select="position()"/>
          <xsl:variable name="name"><xsl:call-template name="Name"><xsl:with-param name="type" select="$place - 1"/></xsl:call-template></xsl:variable>
          <xsl:variable name="row" select="($place - 1) * ($place &lt; 4) - ($place &gt; 3)"/>
          <xsl:variable name="holds" select="Row != $row or Type != $place - 1 or EnableDelay != 0 or DisableDelay != 0 or FallMargin != 0 or SlotMarker != 65535 or BaseColor != 0 or IsLed != 0 or WheelNumber != -1 or $allowed[$place] = 1"/>
          <xsl:if test="not($stored/Illuminator[@name = $name]) and ($holds or $place &lt; 4)">
            <Illuminator>
              <xsl:attribute name="name"><xsl:value-of select="$name"/></xsl:attribute>
              <xsl:call-template name="Values"><xsl:with-param name="place" select="$place"/></xsl:call-template>
            </Illuminator>
          </xsl:if>
        </xsl:for-each>
      </Illuminators>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="*" mode="stored">
    <xsl:copy-of select="."/>
  </xsl:template>
  <!-- Of two illuminators of one name the first counts. -->
  <xsl:template match="Illuminator[not(@name = preceding-sibling::Illuminator/@name)]" mode="stored">
    <xsl:variable name="stored" select="."/>
    <xsl:variable name="number" select="substring-before(substring-after('|Red=1|Green=2|Blue=3|Yellow=4|Cyan=5|Magenta=6|White=7|IR=8|', concat('|', @name, '=')), '|')"/>
    <xsl:choose>
      <xsl:when test="$number = ''"><xsl:copy-of select="."/></xsl:when>
      <xsl:otherwise>
        <Illuminator>
          <xsl:copy-of select="@*"/>
          <xsl:for-each select="$illuminators[position() = $number]">
            <xsl:call-template name="Values">
              <xsl:with-param name="place" select="$number"/>
              <xsl:with-param name="stored" select="$stored"/>
            </xsl:call-template>
          </xsl:for-each>
          <xsl:copy-of select="*"/>
        </Illuminator>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <!-- The attributes of the illuminator at hand. What says the same as no attribute is left out
       where it is not stored. -->
  <xsl:template name="Values">
    <xsl:param name="place"/>
    <xsl:param name="stored" select="/.."/>
    <xsl:if test="$stored/@allowed or $allowed[position() = $place] = 1">
      <xsl:attribute name="allowed"><xsl:value-of select="$allowed[position() = $place] = 1"/></xsl:attribute>
    </xsl:if>
    <xsl:if test="$stored/@row or Row != ($place - 1) * ($place &lt; 4) - ($place &gt; 3)">
      <xsl:attribute name="row"><xsl:value-of select="Row"/></xsl:attribute>
    </xsl:if>
    <xsl:attribute name="enableDelayMicroseconds"><xsl:value-of select="EnableDelay"/></xsl:attribute>
    <xsl:attribute name="disableDelayMicroseconds"><xsl:value-of select="DisableDelay"/></xsl:attribute>
    <xsl:attribute name="fallMarginMicroseconds"><xsl:value-of select="FallMargin"/></xsl:attribute>
    <xsl:if test="$stored/@type or Type != $place - 1">
      <xsl:attribute name="type"><xsl:call-template name="Name"><xsl:with-param name="type" select="Type"/></xsl:call-template></xsl:attribute>
    </xsl:if>
    <xsl:if test="$stored/@marker or SlotMarker != 65535">
      <xsl:attribute name="marker"><xsl:value-of select="SlotMarker"/></xsl:attribute>
    </xsl:if>
    <xsl:if test="$stored/@color or BaseColor != 0">
      <xsl:attribute name="color"><xsl:call-template name="Name"><xsl:with-param name="type" select="BaseColor"/></xsl:call-template></xsl:attribute>
    </xsl:if>
    <xsl:if test="$stored/@kind or IsLed != 0">
      <xsl:attribute name="kind"><xsl:call-template name="Name"><xsl:with-param name="table" select="$kinds"/><xsl:with-param name="type" select="IsLed"/></xsl:call-template></xsl:attribute>
    </xsl:if>
    <xsl:if test="$stored/@wheel or WheelNumber != -1">
      <xsl:attribute name="wheel"><xsl:value-of select="WheelNumber"/></xsl:attribute>
    </xsl:if>
  </xsl:template>

  <!-- A number's name; a number without one stands for itself. -->
  <xsl:template name="Name">
    <xsl:param name="table" select="$names"/>
    <xsl:param name="type"/>
    <xsl:variable name="name" select="substring-before(substring-after($table, concat('|', $type, '=')), '|')"/>
    <xsl:value-of select="$name"/>
    <xsl:if test="$name = ''"><xsl:value-of select="$type"/></xsl:if>
  </xsl:template>
</xsl:stylesheet>
