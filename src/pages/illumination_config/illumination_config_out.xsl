<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Sources and their wheels to fragment IlluminationConfiguration. What the fragment holds besides
     is kept; a free slot is left out. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="names" select="'|-1=None|0=Red|1=Green|2=Blue|3=White|4=Cyan|5=Magenta|6=Yellow|7=Black|8=White Spoke|9=Cyan Spoke|10=Magenta Spoke|11=Yellow Spoke|12=NDRed|13=NDGreen|14=NDBlue|15=NDWhite|16=NDCyan|17=NDMagenta|18=NDYellow|'"/>
  <xsl:variable name="sourceColors" select="'|-1=None|0=Red|1=Green|2=Blue|3=Yellow|4=Cyan|5=Magenta|6=White|7=IR|'"/>
  <xsl:variable name="kinds" select="'|0=laser|1=led|'"/>

  <xsl:template match="/RunTimeDB">
    <xsl:variable name="stored" select="/RunTimeDB/IlluminationConfiguration"/>
    <RunTimeDB>
      <IlluminationConfiguration>
        <xsl:copy-of select="$stored/@*"/>
        <xsl:apply-templates select="$stored/*" mode="configuration"/>
        <xsl:if test="not($stored/Sources)">
          <Sources><xsl:call-template name="Sources"/></Sources>
        </xsl:if>
        <xsl:if test="not($stored/Wheels)">
          <Wheels><xsl:call-template name="Wheels"/></Wheels>
        </xsl:if>
      </IlluminationConfiguration>
    </RunTimeDB>
  </xsl:template>

  <xsl:template match="*" mode="configuration" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Sources" mode="configuration">
    <Sources>
      <xsl:copy-of select="@*"/>
      <xsl:call-template name="Sources"><xsl:with-param name="stored" select="Source"/></xsl:call-template>
      <xsl:copy-of select="*[not(self::Source)]"/>
    </Sources>
  </xsl:template>
  <xsl:template match="Wheels" mode="configuration">
    <Wheels>
      <xsl:copy-of select="@*[name() != 'slots']"/>
      <xsl:call-template name="Wheels"><xsl:with-param name="stored" select="."/></xsl:call-template>
      <xsl:copy-of select="*[not(self::Wheel)]"/>
    </Wheels>
  </xsl:template>

  <!-- The slots that hold something. What a stored source holds besides goes to the source of its
       kind and color (the first such one to the first, and so on), or to the one in its slot when
       no source is like it any more. -->
  <xsl:template name="Sources">
    <xsl:param name="stored" select="/.."/>
    <xsl:variable name="slots" select="/RunTimeDB/ModuleOutputs/Sources/item"/>
    <xsl:for-each select="$slots">
      <xsl:variable name="place" select="position()"/>
      <xsl:variable name="holds" select="SlotMarker != 65535 or Row != -1 or Type != 0 or EnableDelay != 0 or DisableDelay != 0 or FallMargin != 0 or BaseColor != 0 or IsLed != 0 or WheelNumber != -1"/>
      <xsl:if test="$holds">
        <xsl:variable name="color"><xsl:apply-templates select="BaseColor"/></xsl:variable>
        <xsl:variable name="kind"><xsl:apply-templates select="IsLed"/></xsl:variable>
        <xsl:variable name="turn" select="count($slots[position() &lt;= $place][SlotMarker = 1][BaseColor = current()/BaseColor and IsLed = current()/IsLed])"/>
        <xsl:variable name="like" select="$stored[@color = $color and @kind = $kind][$turn]"/>
        <xsl:variable name="there" select="$stored[@slot = $place][not($like)]"/>
        <xsl:variable name="thereTurn" select="count($stored[@slot &lt;= $place][@color = $there/@color and @kind = $there/@kind])"/>
        <xsl:variable name="isTaken" select="count($slots[SlotMarker = 1][contains($sourceColors, concat('|', BaseColor, '=', $there/@color, '|')) and contains($kinds, concat('|', IsLed, '=', $there/@kind, '|'))]) &gt;= $thereTurn"/>
        <xsl:call-template name="Source">
          <xsl:with-param name="stored" select="$like | $there[not($isTaken)]"/>
          <xsl:with-param name="slot" select="$place"/>
          <xsl:with-param name="color" select="$color"/>
          <xsl:with-param name="kind" select="$kind"/>
        </xsl:call-template>
      </xsl:if>
    </xsl:for-each>
  </xsl:template>

  <xsl:template name="Source">
    <xsl:param name="stored"/>
    <xsl:param name="slot"/>
    <xsl:param name="color"/>
    <xsl:param name="kind"/>
    <Source>
      <xsl:copy-of select="$stored/@*[name() != 'wheel' and name() != 'marker']"/>
      <xsl:attribute name="slot"><xsl:value-of select="$slot"/></xsl:attribute>
      <xsl:attribute name="kind"><xsl:value-of select="$kind"/></xsl:attribute>
      <xsl:attribute name="color"><xsl:value-of select="$color"/></xsl:attribute>
      <xsl:if test="WheelNumber != -1">
        <xsl:attribute name="wheel"><xsl:value-of select="WheelNumber"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="SlotMarker != 1">
        <xsl:attribute name="marker"><xsl:value-of select="SlotMarker"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$stored/@row or Row != -1">
        <xsl:attribute name="row"><xsl:value-of select="Row"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$stored/@type or Type != 0">
        <xsl:attribute name="type"><xsl:apply-templates select="Type"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$stored/@enableDelayMicroseconds or EnableDelay != 0">
        <xsl:attribute name="enableDelayMicroseconds"><xsl:value-of select="EnableDelay"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$stored/@disableDelayMicroseconds or DisableDelay != 0">
        <xsl:attribute name="disableDelayMicroseconds"><xsl:value-of select="DisableDelay"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$stored/@fallMarginMicroseconds or FallMargin != 0">
        <xsl:attribute name="fallMarginMicroseconds"><xsl:value-of select="FallMargin"/></xsl:attribute>
      </xsl:if>
      <xsl:copy-of select="$stored/*"/>
    </Source>
  </xsl:template>

  <xsl:template match="BaseColor | Type">
    <xsl:call-template name="Named"><xsl:with-param name="table" select="$sourceColors"/></xsl:call-template>
  </xsl:template>
  <xsl:template match="IsLed">
    <xsl:call-template name="Named"><xsl:with-param name="table" select="$kinds"/></xsl:call-template>
  </xsl:template>
  <xsl:template name="Named">
    <xsl:param name="table"/>
    <xsl:variable name="name" select="substring-before(substring-after($table, concat('|', ., '=')), '|')"/>
    <xsl:value-of select="$name"/>
    <xsl:if test="$name = ''"><xsl:value-of select="."/></xsl:if>
  </xsl:template>

  <!-- Wheels are numbered anew when sources go. What a stored wheel holds besides goes to the wheel
       of its spoke size and segment sizes, or to the one of its number when no other is like it. -->
  <xsl:template name="Wheels">
    <xsl:param name="stored" select="/.."/>
    <xsl:variable name="wheels" select="/RunTimeDB/ModuleOutputs/Wheels/item"/>
    <xsl:variable name="slots" select="/RunTimeDB/ModuleOutputs/WheelSlots"/>
    <xsl:if test="$stored/@slots or $slots != count($wheels) + 1">
      <xsl:attribute name="slots"><xsl:value-of select="$slots"/></xsl:attribute>
    </xsl:if>
    <xsl:for-each select="$wheels">
      <xsl:variable name="like" select="$stored/Wheel[SpokeSize/@degrees = number(current()/SpokeSize) and count(Segments/Segment) = count(current()/Segments/item) and sum(Segments/Segment/@degrees) = sum(current()/Segments/item/Size) and Segments/Segment[1]/@degrees = number(current()/Segments/item[1]/Size)]"/>
      <xsl:variable name="same" select="$stored/Wheel[@number = current()/WheelNumber][1]"/>
      <xsl:variable name="likeSame" select="$like[@number = current()/WheelNumber][1]"/>
      <xsl:variable name="isTaken" select="$wheels[WheelNumber != $same/@number and SpokeSize = number($same/SpokeSize/@degrees) and count(Segments/item) = count($same/Segments/Segment) and sum(Segments/item/Size) = sum($same/Segments/Segment/@degrees) and Segments/item[1]/Size = number($same/Segments/Segment[1]/@degrees)]"/>
      <Wheel>
        <xsl:call-template name="Wheel">
          <xsl:with-param name="stored" select="$likeSame | $like[not($likeSame)][1] | $same[not($like) and not($isTaken)]"/>
          <xsl:with-param name="data" select="."/>
        </xsl:call-template>
      </Wheel>
    </xsl:for-each>
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
