<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment Illuminators to the illuminator page's data. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="names" select="'|0=Red|1=Green|2=Blue|3=Yellow|4=Cyan|5=Magenta|6=White|7=IR|'"/>
  <xsl:variable name="codes" select="'|Red=0|Green=1|Blue=2|Yellow=3|Cyan=4|Magenta=5|White=6|IR=7|None=-1|laser=0|led=1|'"/>

  <xsl:template match="/RunTimeDB">
    <Inputs>
      <IllumChars>
        <count>8</count>
        <xsl:call-template name="Characteristics"/>
      </IllumChars>
      <IllumAllowed>
        <count>8</count>
        <xsl:call-template name="Allowed"/>
      </IllumAllowed>
    </Inputs>
  </xsl:template>

  <!-- All eight are written whole: an illuminator that is read anew must not keep earlier values. -->
  <xsl:template name="Characteristics">
    <xsl:param name="type" select="0"/>
    <xsl:variable name="name" select="substring-before(substring-after($names, concat('|', $type, '=')), '|')"/>
    <xsl:variable name="stored" select="/RunTimeDB/Illuminators/Illuminator[@name = $name][1]"/>
    <item>
      <Row>
        <xsl:choose>
          <xsl:when test="$stored/@row"><xsl:value-of select="$stored/@row"/></xsl:when>
          <xsl:when test="$type &lt; 3"><xsl:value-of select="$type"/></xsl:when>
          <xsl:otherwise>-1</xsl:otherwise>
        </xsl:choose>
      </Row>
      <Type><xsl:call-template name="Code"><xsl:with-param name="name" select="$stored/@type"/><xsl:with-param name="otherwise" select="$type"/></xsl:call-template></Type>
      <EnableDelay><xsl:call-template name="Or"><xsl:with-param name="value" select="$stored/@enableDelayMicroseconds"/></xsl:call-template></EnableDelay>
      <DisableDelay><xsl:call-template name="Or"><xsl:with-param name="value" select="$stored/@disableDelayMicroseconds"/></xsl:call-template></DisableDelay>
      <FallMargin><xsl:call-template name="Or"><xsl:with-param name="value" select="$stored/@fallMarginMicroseconds"/></xsl:call-template></FallMargin>
      <SlotMarker><xsl:call-template name="Or"><xsl:with-param name="value" select="$stored/@marker"/><xsl:with-param name="otherwise" select="65535"/></xsl:call-template></SlotMarker>
      <BaseColor><xsl:call-template name="Code"><xsl:with-param name="name" select="$stored/@color"/></xsl:call-template></BaseColor>
      <IsLed><xsl:call-template name="Code"><xsl:with-param name="name" select="$stored/@kind"/></xsl:call-template></IsLed>
      <WheelNumber><xsl:call-template name="Or"><xsl:with-param name="value" select="$stored/@wheel"/><xsl:with-param name="otherwise" select="-1"/></xsl:call-template></WheelNumber>
    </item>
    <xsl:if test="$type &lt; 7">
      <xsl:call-template name="Characteristics"><xsl:with-param name="type" select="$type + 1"/></xsl:call-template>
    </xsl:if>
  </xsl:template>

  <xsl:template name="Allowed">
    <xsl:param name="type" select="0"/>
    <xsl:variable name="name" select="substring-before(substring-after($names, concat('|', $type, '=')), '|')"/>
    <xsl:variable name="allowed" select="/RunTimeDB/Illuminators/Illuminator[@name = $name][1]/@allowed"/>
    <item>
      <xsl:choose>
        <xsl:when test="not($allowed) or normalize-space($allowed) = 'false'">0</xsl:when>
        <xsl:when test="normalize-space($allowed) = 'true'">1</xsl:when>
        <xsl:otherwise><xsl:value-of select="$allowed"/></xsl:otherwise>
      </xsl:choose>
    </item>
    <xsl:if test="$type &lt; 7">
      <xsl:call-template name="Allowed"><xsl:with-param name="type" select="$type + 1"/></xsl:call-template>
    </xsl:if>
  </xsl:template>

  <xsl:template name="Or">
    <xsl:param name="value"/>
    <xsl:param name="otherwise" select="0"/>
    <xsl:value-of select="$value"/>
    <xsl:if test="not($value)"><xsl:value-of select="$otherwise"/></xsl:if>
  </xsl:template>
  <!-- A name's number; a number stands for itself. -->
  <xsl:template name="Code">
    <xsl:param name="name"/>
    <xsl:param name="otherwise" select="0"/>
    <xsl:variable name="code" select="substring-before(substring-after($codes, concat('|', $name, '=')), '|')"/>
    <xsl:value-of select="$code"/>
    <xsl:if test="$code = ''">
      <xsl:call-template name="Or"><xsl:with-param name="value" select="$name"/><xsl:with-param name="otherwise" select="$otherwise"/></xsl:call-template>
    </xsl:if>
  </xsl:template>
</xsl:stylesheet>
