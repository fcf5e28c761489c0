<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The color wheel's data to fragment ColorWheel. What the fragment holds besides is kept. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="names" select="'|-1=None|0=Red|1=Green|2=Blue|3=White|4=Cyan|5=Magenta|6=Yellow|7=Black|8=White Spoke|9=Cyan Spoke|10=Magenta Spoke|11=Yellow Spoke|12=NDRed|13=NDGreen|14=NDBlue|15=NDWhite|16=NDCyan|17=NDMagenta|18=NDYellow|'"/>

  <xsl:template match="/RunTimeDB">
    <RunTimeDB>
      <ColorWheel>
        <xsl:call-template name="Wheel">
          <xsl:with-param name="stored" select="/RunTimeDB/ColorWheel"/>
          <xsl:with-param name="data" select="/RunTimeDB/ModuleOutputs"/>
        </xsl:call-template>
      </ColorWheel>
    </RunTimeDB>
  </xsl:template>

  <!-- The inside of a wheel: what is stored, with the data's values, then what was missing. -->
  <xsl:template name="Wheel">
    <xsl:param name="stored" select="/.."/>
    <xsl:param name="data"/>
    <xsl:copy-of select="$stored/@*"/>
    <xsl:attribute name="number"><xsl:value-of select="$data/WheelNumber"/></xsl:attribute>
    <xsl:apply-templates select="$stored/*" mode="wheel">
      <xsl:with-param name="data" select="$data"/>
    </xsl:apply-templates>
    <xsl:if test="not($stored/SpokeSize)">
      <SpokeSize degrees="{$data/SpokeSize}"/>
    </xsl:if>
    <xsl:if test="not($stored/SpinFactor)">
      <SpinFactor ratio="{$data/SpinValue}"/>
    </xsl:if>
    <xsl:if test="not($stored/NominalFrameRate)">
      <NominalFrameRate hertz="{$data/NominalFrameRate}"/>
    </xsl:if>
    <xsl:if test="not($stored/SecondFrameRate)">
      <SecondFrameRate hertz="{$data/SecondFrameRate}"/>
    </xsl:if>
    <xsl:if test="not($stored/PwmEfficiencies)">
      <PwmEfficiencies><xsl:apply-templates select="$data/UseModeledPwm"/></PwmEfficiencies>
    </xsl:if>
    <xsl:if test="not($stored/WhiteProcessing)">
      <WhiteProcessing><xsl:apply-templates select="$data/WhiteProcessing"/></WhiteProcessing>
    </xsl:if>
    <xsl:if test="not($stored/SpokeLightRecapture)">
      <SpokeLightRecapture><xsl:apply-templates select="$data/SpokeLightRecapture"/></SpokeLightRecapture>
    </xsl:if>
    <xsl:if test="not($stored/SecondaryColorBoost)">
      <SecondaryColorBoost><xsl:apply-templates select="$data/SecondaryColorBoost"/></SecondaryColorBoost>
    </xsl:if>
    <xsl:if test="not($stored/Segments)">
      <Segments>
        <xsl:call-template name="Segments">
          <xsl:with-param name="data" select="$data"/>
        </xsl:call-template>
      </Segments>
    </xsl:if>
  </xsl:template>

  <xsl:template match="*" mode="wheel" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="SpokeSize" mode="wheel">
    <xsl:param name="data"/>
    <SpokeSize>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="degrees"><xsl:value-of select="$data/SpokeSize"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </SpokeSize>
  </xsl:template>
  <xsl:template match="SpinFactor" mode="wheel">
    <xsl:param name="data"/>
    <SpinFactor>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="ratio"><xsl:value-of select="$data/SpinValue"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </SpinFactor>
  </xsl:template>
  <xsl:template match="NominalFrameRate | SecondFrameRate" mode="wheel">
    <xsl:param name="data"/>
    <xsl:copy>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="hertz"><xsl:value-of select="$data/*[name() = name(current())]"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </xsl:copy>
  </xsl:template>
  <xsl:template match="PwmEfficiencies" mode="wheel">
    <xsl:param name="data"/>
    <PwmEfficiencies>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="$data/UseModeledPwm"/>
      <xsl:copy-of select="*"/>
    </PwmEfficiencies>
  </xsl:template>
  <xsl:template match="WhiteProcessing | SpokeLightRecapture | SecondaryColorBoost" mode="wheel">
    <xsl:param name="data"/>
    <xsl:copy>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="$data/*[name() = name(current())]"/>
      <xsl:copy-of select="*"/>
    </xsl:copy>
  </xsl:template>

  <xsl:template match="UseModeledPwm">
    <xsl:attribute name="use">
      <xsl:choose>
        <xsl:when test=". = 1">modeled</xsl:when>
        <xsl:otherwise>measured</xsl:otherwise>
      </xsl:choose>
    </xsl:attribute>
  </xsl:template>
  <xsl:template match="WhiteProcessing | SpokeLightRecapture | SecondaryColorBoost">
    <xsl:attribute name="enabled"><xsl:value-of select=". = 1"/></xsl:attribute>
  </xsl:template>

  <xsl:template match="Segments" mode="wheel">
    <xsl:param name="data"/>
    <Segments>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="Segments">
        <xsl:with-param name="stored" select="Segment"/>
        <xsl:with-param name="data" select="$data"/>
      </xsl:call-template>
      <xsl:copy-of select="*[not(self::Segment or self::Filter)]"/>
    </Segments>
  </xsl:template>

  <!-- The segments in the data's order. What a stored segment holds besides goes to the segment of
       its color (the first one of a color to the first one, and so on), or to the one in its place
       when no segment has its color any more. -->
  <xsl:template name="Segments">
    <xsl:param name="stored" select="/.."/>
    <xsl:param name="data"/>
    <xsl:variable name="segments" select="$data/Segments/item"/>
    <xsl:variable name="filters" select="$data/FilterSpecs/item"/>
    <xsl:for-each select="$segments">
      <xsl:variable name="place" select="position()"/>
      <xsl:variable name="color"><xsl:apply-templates select="Color"/></xsl:variable>
      <xsl:variable name="turn" select="count($segments[position() &lt;= $place][Color = current()/Color])"/>
      <xsl:variable name="like" select="$stored[@color = $color][$turn]"/>
      <xsl:variable name="there" select="$stored[$place][not($like)]"/>
      <xsl:variable name="thereTurn" select="count($stored[position() &lt;= $place][@color = $there/@color])"/>
      <xsl:variable name="isTaken" select="count($segments[contains($names, concat('|', Color, '=', $there/@color, '|'))]) &gt;= $thereTurn"/>
      <xsl:call-template name="Segment">
        <xsl:with-param name="stored" select="$like | $there[not($isTaken)]"/>
        <xsl:with-param name="segment" select="."/>
        <xsl:with-param name="filter" select="$filters[$place]"/>
      </xsl:call-template>
    </xsl:for-each>
    <xsl:for-each select="$filters[position() &gt; count($segments)]">
      <xsl:call-template name="Filter">
        <xsl:with-param name="filter" select="."/>
      </xsl:call-template>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="Segment">
    <xsl:param name="stored"/>
    <xsl:param name="segment"/>
    <xsl:param name="filter"/>
    <Segment>
      <xsl:copy-of select="$stored/@*"/>
      <xsl:attribute name="color"><xsl:apply-templates select="$segment/Color"/></xsl:attribute>
      <xsl:attribute name="degrees"><xsl:value-of select="$segment/Size"/></xsl:attribute>
      <xsl:apply-templates select="$stored/*" mode="segment">
        <xsl:with-param name="segment" select="$segment"/>
        <xsl:with-param name="filter" select="$filter"/>
      </xsl:apply-templates>
      <xsl:if test="not($stored/Gain)">
        <Gain segment="{$segment/SegmentGain}" spoke="{$segment/SpokeGain}"/>
      </xsl:if>
      <xsl:if test="not($stored/MeasuredPwm)">
        <MeasuredPwm segment="{$segment/MeasuredSegmentPwm}" spoke="{$segment/MeasuredSpokePwm}"/>
      </xsl:if>
      <xsl:if test="not($stored/ModeledPwm)">
        <ModeledPwm segment="{$segment/ModeledSegmentPwm}" spoke="{$segment/ModeledSpokePwm}"/>
      </xsl:if>
      <xsl:if test="$filter and not($stored/Filter)">
        <xsl:call-template name="Filter">
          <xsl:with-param name="filter" select="$filter"/>
          <xsl:with-param name="color" select="$segment/Color"/>
        </xsl:call-template>
      </xsl:if>
    </Segment>
  </xsl:template>

  <xsl:template match="*" mode="segment" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Gain" mode="segment">
    <xsl:param name="segment"/>
    <Gain>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="segment"><xsl:value-of select="$segment/SegmentGain"/></xsl:attribute>
      <xsl:attribute name="spoke"><xsl:value-of select="$segment/SpokeGain"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </Gain>
  </xsl:template>
  <xsl:template match="MeasuredPwm" mode="segment">
    <xsl:param name="segment"/>
    <MeasuredPwm>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="segment"><xsl:value-of select="$segment/MeasuredSegmentPwm"/></xsl:attribute>
      <xsl:attribute name="spoke"><xsl:value-of select="$segment/MeasuredSpokePwm"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </MeasuredPwm>
  </xsl:template>
  <xsl:template match="ModeledPwm" mode="segment">
    <xsl:param name="segment"/>
    <ModeledPwm>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="segment"><xsl:value-of select="$segment/ModeledSegmentPwm"/></xsl:attribute>
      <xsl:attribute name="spoke"><xsl:value-of select="$segment/ModeledSpokePwm"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </ModeledPwm>
  </xsl:template>
  <xsl:template match="Filter" mode="segment">
    <xsl:param name="segment"/>
    <xsl:param name="filter"/>
    <xsl:if test="$filter">
      <xsl:call-template name="Filter">
        <xsl:with-param name="stored" select="."/>
        <xsl:with-param name="filter" select="$filter"/>
        <xsl:with-param name="color" select="$segment/Color"/>
      </xsl:call-template>
    </xsl:if>
  </xsl:template>

  <!-- A filter names its color where it is not its segment's. -->
  <xsl:template name="Filter">
    <xsl:param name="stored" select="/.."/>
    <xsl:param name="filter"/>
    <xsl:param name="color" select="/.."/>
    <Filter>
      <xsl:copy-of select="$stored/@*[name() != 'color']"/>
      <xsl:if test="$stored/@color or not($filter/Color = $color)">
        <xsl:attribute name="color"><xsl:apply-templates select="$filter/Color"/></xsl:attribute>
      </xsl:if>
      <xsl:attribute name="peakTransmission"><xsl:value-of select="$filter/PeakTransmission"/></xsl:attribute>
      <xsl:attribute name="shortEdgeNanometers"><xsl:value-of select="$filter/Sw50"/></xsl:attribute>
      <xsl:attribute name="longEdgeNanometers"><xsl:value-of select="$filter/Lw50"/></xsl:attribute>
      <xsl:attribute name="shortEdgeFactor"><xsl:value-of select="$filter/SwFactor"/></xsl:attribute>
      <xsl:attribute name="longEdgeFactor"><xsl:value-of select="$filter/LwFactor"/></xsl:attribute>
      <xsl:copy-of select="$stored/*"/>
    </Filter>
  </xsl:template>

  <!-- A color code's name; a number that is no color's stands for itself. -->
  <xsl:template match="Color">
    <xsl:variable name="name" select="substring-before(substring-after($names, concat('|', ., '=')), '|')"/>
    <xsl:value-of select="$name"/>
    <xsl:if test="$name = ''"><xsl:value-of select="."/></xsl:if>
  </xsl:template>
</xsl:stylesheet>
