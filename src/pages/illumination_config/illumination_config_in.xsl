<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- Fragment IlluminationConfiguration to the data of sources and their wheels. A slot without a
     source is a free one; what a wheel does not hold keeps a new wheel's value. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:variable name="codes" select="'|None=-1|Red=0|Green=1|Blue=2|White=3|Cyan=4|Magenta=5|Yellow=6|Black=7|White Spoke=8|Cyan Spoke=9|Magenta Spoke=10|Yellow Spoke=11|NDRed=12|NDGreen=13|NDBlue=14|NDWhite=15|NDCyan=16|NDMagenta=17|NDYellow=18|'"/>
  <xsl:variable name="sourceCodes" select="'|None=-1|Red=0|Green=1|Blue=2|Yellow=3|Cyan=4|Magenta=5|White=6|IR=7|laser=0|led=1|'"/>

  <xsl:template match="/RunTimeDB">
    <Inputs>
      <Sources>
        <count>8</count>
        <xsl:call-template name="Slots"/>
      </Sources>
      <xsl:variable name="wheels" select="/RunTimeDB/IlluminationConfiguration/Wheels"/>
      <Wheels>
        <count><xsl:value-of select="count($wheels/Wheel)"/></count>
        <xsl:apply-templates select="$wheels/Wheel"/>
      </Wheels>
      <WheelSlots>
        <xsl:value-of select="$wheels/@slots"/>
        <xsl:if test="not($wheels/@slots)"><xsl:value-of select="count($wheels/Wheel) + 1"/></xsl:if>
      </WheelSlots>
    </Inputs>
  </xsl:template>

  <!-- All slots are written whole: a slot that is read anew must not keep an earlier source. -->
  <xsl:template name="Slots">
    <xsl:param name="slot" select="1"/>
    <xsl:variable name="source" select="/RunTimeDB/IlluminationConfiguration/Sources/Source[@slot = $slot][1]"/>
    <item>
      <Row><xsl:call-template name="Or"><xsl:with-param name="value" select="$source/@row"/><xsl:with-param name="otherwise" select="-1"/></xsl:call-template></Row>
      <Type><xsl:call-template name="Code"><xsl:with-param name="name" select="$source/@type"/></xsl:call-template></Type>
      <EnableDelay><xsl:call-template name="Or"><xsl:with-param name="value" select="$source/@enableDelayMicroseconds"/></xsl:call-template></EnableDelay>
      <DisableDelay><xsl:call-template name="Or"><xsl:with-param name="value" select="$source/@disableDelayMicroseconds"/></xsl:call-template></DisableDelay>
      <FallMargin><xsl:call-template name="Or"><xsl:with-param name="value" select="$source/@fallMarginMicroseconds"/></xsl:call-template></FallMargin>
      <SlotMarker>
        <xsl:choose>
          <xsl:when test="$source/@marker"><xsl:value-of select="$source/@marker"/></xsl:when>
          <xsl:when test="$source">1</xsl:when>
          <xsl:otherwise>65535</xsl:otherwise>
        </xsl:choose>
      </SlotMarker>
      <BaseColor><xsl:call-template name="Code"><xsl:with-param name="name" select="$source/@color"/></xsl:call-template></BaseColor>
      <IsLed><xsl:call-template name="Code"><xsl:with-param name="name" select="$source/@kind"/></xsl:call-template></IsLed>
      <WheelNumber><xsl:call-template name="Or"><xsl:with-param name="value" select="$source/@wheel"/><xsl:with-param name="otherwise" select="-1"/></xsl:call-template></WheelNumber>
    </item>
    <xsl:if test="$slot &lt; 8">
      <xsl:call-template name="Slots"><xsl:with-param name="slot" select="$slot + 1"/></xsl:call-template>
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
    <xsl:variable name="code" select="substring-before(substring-after($sourceCodes, concat('|', $name, '=')), '|')"/>
    <xsl:value-of select="$code"/>
    <xsl:if test="$code = ''">
      <xsl:call-template name="Or"><xsl:with-param name="value" select="$name"/></xsl:call-template>
    </xsl:if>
  </xsl:template>

  <!-- A wheel, in the order of its data. -->
  <xsl:template match="Wheel">
    <item>
      <xsl:apply-templates select="@number"/>
      <xsl:apply-templates select="SpokeSize/@degrees"/>
      <xsl:apply-templates select="SpinFactor/@ratio"/>
      <xsl:apply-templates select="Segments"/>
      <xsl:apply-templates select="NominalFrameRate/@hertz"/>
      <xsl:apply-templates select="SecondFrameRate/@hertz"/>
      <xsl:apply-templates select="PwmEfficiencies/@use"/>
      <xsl:apply-templates select="WhiteProcessing/@enabled"/>
      <xsl:apply-templates select="SpokeLightRecapture/@enabled"/>
      <xsl:apply-templates select="SecondaryColorBoost/@enabled"/>
    </item>
  </xsl:template>

  <xsl:template match="Wheel/@number">
    <WheelNumber><xsl:value-of select="."/></WheelNumber>
  </xsl:template>
  <xsl:template match="SpokeSize/@degrees">
    <SpokeSize><xsl:value-of select="."/></SpokeSize>
  </xsl:template>
  <xsl:template match="SpinFactor/@ratio">
    <SpinValue><xsl:value-of select="."/></SpinValue>
  </xsl:template>
  <xsl:template match="NominalFrameRate/@hertz | SecondFrameRate/@hertz">
    <xsl:element name="{name(..)}"><xsl:value-of select="."/></xsl:element>
  </xsl:template>
  <xsl:template match="PwmEfficiencies/@use">
    <UseModeledPwm>
      <xsl:choose>
        <xsl:when test=". = 'modeled'">1</xsl:when>
        <xsl:when test=". = 'measured'">0</xsl:when>
        <xsl:otherwise><xsl:value-of select="."/></xsl:otherwise>
      </xsl:choose>
    </UseModeledPwm>
  </xsl:template>
  <xsl:template match="@enabled">
    <xsl:element name="{name(..)}"><xsl:value-of select="."/></xsl:element>
  </xsl:template>

  <!-- A wheel that was made on the page has no filters at all. Where there are some, a segment
       without one gets a new one. Filters without a segment stand behind the segments. -->
  <xsl:template match="Segments">
    <Segments>
      <count><xsl:value-of select="count(Segment)"/></count>
      <xsl:apply-templates select="Segment"/>
    </Segments>
    <FilterSpecs>
      <xsl:if test="not(.//Filter)"><count>0</count></xsl:if>
      <xsl:if test=".//Filter">
        <count><xsl:value-of select="count(Segment) + count(Filter)"/></count>
        <xsl:apply-templates select="Segment" mode="filter"/>
        <xsl:apply-templates select="Filter"/>
      </xsl:if>
    </FilterSpecs>
  </xsl:template>

  <xsl:template match="Segment">
    <item>
      <xsl:apply-templates select="@color"/>
      <xsl:apply-templates select="@degrees"/>
      <xsl:apply-templates select="Gain/@segment"/>
      <xsl:apply-templates select="Gain/@spoke"/>
      <xsl:apply-templates select="MeasuredPwm/@segment"/>
      <xsl:apply-templates select="MeasuredPwm/@spoke"/>
      <xsl:apply-templates select="ModeledPwm/@segment"/>
      <xsl:apply-templates select="ModeledPwm/@spoke"/>
    </item>
  </xsl:template>
  <xsl:template match="Segment" mode="filter">
    <xsl:apply-templates select="Filter[1]"/>
    <xsl:if test="not(Filter)">
      <item><xsl:apply-templates select="@color"/></item>
    </xsl:if>
  </xsl:template>
  <xsl:template match="Filter">
    <item>
      <xsl:apply-templates select="@color | parent::Segment[not(current()/@color)]/@color"/>
      <xsl:apply-templates select="@peakTransmission"/>
      <xsl:apply-templates select="@shortEdgeNanometers"/>
      <xsl:apply-templates select="@longEdgeNanometers"/>
      <xsl:apply-templates select="@shortEdgeFactor"/>
      <xsl:apply-templates select="@longEdgeFactor"/>
    </item>
  </xsl:template>

  <!-- A number that is no color's stands for itself. -->
  <xsl:template match="@color">
    <xsl:variable name="code" select="substring-before(substring-after($codes, concat('|', ., '=')), '|')"/>
    <Color>
      <xsl:value-of select="$code"/>
      <xsl:if test="$code = ''"><xsl:value-of select="."/></xsl:if>
    </Color>
  </xsl:template>
  <xsl:template match="Segment/@degrees">
    <Size><xsl:value-of select="."/></Size>
  </xsl:template>
  <xsl:template match="Gain/@segment">
    <SegmentGain><xsl:value-of select="."/></SegmentGain>
  </xsl:template>
  <xsl:template match="Gain/@spoke">
    <SpokeGain><xsl:value-of select="."/></SpokeGain>
  </xsl:template>
  <xsl:template match="MeasuredPwm/@segment">
    <MeasuredSegmentPwm><xsl:value-of select="."/></MeasuredSegmentPwm>
  </xsl:template>
  <xsl:template match="MeasuredPwm/@spoke">
    <MeasuredSpokePwm><xsl:value-of select="."/></MeasuredSpokePwm>
  </xsl:template>
  <xsl:template match="ModeledPwm/@segment">
    <ModeledSegmentPwm><xsl:value-of select="."/></ModeledSegmentPwm>
  </xsl:template>
  <xsl:template match="ModeledPwm/@spoke">
    <ModeledSpokePwm><xsl:value-of select="."/></ModeledSpokePwm>
  </xsl:template>
  <xsl:template match="@peakTransmission">
    <PeakTransmission><xsl:value-of select="."/></PeakTransmission>
  </xsl:template>
  <xsl:template match="@shortEdgeNanometers">
    <Sw50><xsl:value-of select="."/></Sw50>
  </xsl:template>
  <xsl:template match="@longEdgeNanometers">
    <Lw50><xsl:value-of select="."/></Lw50>
  </xsl:template>
  <xsl:template match="@shortEdgeFactor">
    <SwFactor><xsl:value-of select="."/></SwFactor>
  </xsl:template>
  <xsl:template match="@longEdgeFactor">
    <LwFactor><xsl:value-of select="."/></LwFactor>
  </xsl:template>
</xsl:stylesheet>
