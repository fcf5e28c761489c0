<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->
<!-- The lamp waveform page's data to fragment LampWaveforms. The color wheel is read only: its
     fragment is another page's. What LampWaveforms holds besides is kept: it goes with the group
     type and spin factor of a pair, the title of a waveform, the segment of a pulse and the name of
     a spoke, elsewhere with the place in the list; what stands between list entries stays before
     the entry that it stood before. Values that are not stored and are a new object's stay unsaid,
     and so does a pair without waveforms. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:key name="pair" match="/RunTimeDB/LampWaveforms/Waveforms" use="concat(number(@spinFactor), ' ', @groupType)"/>
  <xsl:key name="waveform" match="/RunTimeDB/LampWaveforms/Waveforms/Waveform" use="concat(generate-id(..), ' ', @title)"/>
  <xsl:key name="pulse" match="/RunTimeDB/LampWaveforms/Waveforms/Waveform/Pulses/Pulse" use="concat(generate-id(..), ' ', @segment, @CWSegStr)"/>
  <!-- What stands between the entries of a list, by the entry that follows. -->
  <xsl:key name="ahead" match="/RunTimeDB/LampWaveforms/*[not(self::Waveforms)]" use="generate-id(following-sibling::Waveforms[1])"/>
  <xsl:key name="ahead" match="/RunTimeDB/LampWaveforms/Waveforms/*[not(self::Waveform)]" use="generate-id(following-sibling::Waveform[1])"/>
  <xsl:key name="ahead" match="/RunTimeDB/LampWaveforms/Waveforms/Waveform/Pulses/*[not(self::Pulse)]" use="generate-id(following-sibling::Pulse[1])"/>
  <xsl:key name="newPair" match="/RunTimeDB/ModuleOutputs/LampWaveformDB/item" use="concat(number(SpinFactor), ' ', SeqGrpName)"/>

  <!-- The colors of the gamut in the order of their data, with what they are in a new one. -->
  <xsl:variable name="colors" select="'|1=Red 0.63 0.34|2=Green 0.31 0.595|3=Blue 0.155 0.07|4=White 0.3127 0.329|5=Cyan 0.23062663 0.32615472|6=Magenta 0.31440921 0.16061155|7=Yellow 0.42086857 0.50665161|'"/>

  <xsl:variable name="data" select="/RunTimeDB/ModuleOutputs"/>
  <xsl:variable name="stored" select="/RunTimeDB/LampWaveforms"/>
  <xsl:variable name="groups" select="$data/PCGroups/item"/>
  <xsl:variable name="pairs" select="$data/LampWaveformDB/item[LWData/item or key('pair', concat(number(SpinFactor), ' ', SeqGrpName))]"/>

  <xsl:template match="/RunTimeDB">
    <xsl:variable name="newColors">
      <xsl:if test="not($stored/ReferenceGamut)">
        <xsl:apply-templates select="$data/ReferenceGamut/item" mode="newColor"/>
      </xsl:if>
    </xsl:variable>
    <RunTimeDB>
      <xsl:if test="$stored or $pairs or $groups or $newColors != '' or $data/ApplyVIDarkPulse = 1">
        <LampWaveforms>
          <xsl:copy-of select="$stored/@*"/>
          <xsl:if test="$stored/@applyDarkPulses or $data/ApplyVIDarkPulse = 1">
            <xsl:attribute name="applyDarkPulses"><xsl:value-of select="$data/ApplyVIDarkPulse = 1"/></xsl:attribute>
          </xsl:if>
          <xsl:if test="not($stored/GroupType)">
            <xsl:apply-templates select="$groups" mode="group"/>
          </xsl:if>
          <xsl:if test="$newColors != ''">
            <ReferenceGamut>
              <xsl:apply-templates select="$data/ReferenceGamut/item" mode="color"/>
            </ReferenceGamut>
          </xsl:if>
          <xsl:call-template name="pairs"/>
        </LampWaveforms>
      </xsl:if>
    </RunTimeDB>
  </xsl:template>

  <!-- Pairs of group type and spin factor. -->
  <xsl:template name="pairs">
    <xsl:variable name="others" select="$stored/*[not(self::Waveforms)]"/>
    <xsl:if test="not($stored/Waveforms)">
      <xsl:apply-templates select="$others" mode="fragment"/>
    </xsl:if>
    <xsl:for-each select="$pairs">
      <xsl:variable name="like" select="key('pair', concat(number(SpinFactor), ' ', SeqGrpName))"/>
      <!-- Of several alike, the one in the same turn. -->
      <xsl:variable name="kept" select="$like[not($like[2]) or position() = 1 + count(current()/preceding-sibling::item[SeqGrpName = current()/SeqGrpName and SpinFactor = current()/SpinFactor])]"/>
      <xsl:if test="$others">
        <xsl:apply-templates select="key('ahead', generate-id($kept))[$kept]" mode="fragment"/>
      </xsl:if>
      <Waveforms>
        <xsl:copy-of select="$kept/@*"/>
        <xsl:attribute name="groupType"><xsl:value-of select="SeqGrpName"/></xsl:attribute>
        <xsl:attribute name="spinFactor"><xsl:value-of select="SpinFactor"/></xsl:attribute>
        <xsl:call-template name="waveforms">
          <xsl:with-param name="pair" select="$kept"/>
        </xsl:call-template>
      </Waveforms>
    </xsl:for-each>
    <xsl:if test="$stored/Waveforms">
      <xsl:apply-templates select="$others[not(key('newPair', concat(number(following-sibling::Waveforms[1]/@spinFactor), ' ', following-sibling::Waveforms[1]/@groupType)))]" mode="fragment"/>
    </xsl:if>
  </xsl:template>

  <xsl:template name="waveforms">
    <xsl:param name="pair"/>
    <xsl:variable name="id" select="generate-id($pair)"/>
    <xsl:variable name="others" select="$pair/*[not(self::Waveform)]"/>
    <xsl:variable name="items" select="LWData/item"/>
    <xsl:for-each select="$items">
      <xsl:variable name="like" select="key('waveform', concat($id, ' ', WaveFormTitle))"/>
      <xsl:variable name="kept" select="$like[not($like[2]) or position() = 1 + count(current()/preceding-sibling::item[WaveFormTitle = current()/WaveFormTitle])]"/>
      <xsl:if test="$others">
        <xsl:copy-of select="key('ahead', generate-id($kept))[$kept]"/>
      </xsl:if>
      <xsl:call-template name="waveform">
        <xsl:with-param name="kept" select="$kept"/>
      </xsl:call-template>
    </xsl:for-each>
    <xsl:copy-of select="$others[not(following-sibling::Waveform[1]/@title = $items/WaveFormTitle)]"/>
  </xsl:template>

  <xsl:template name="waveform">
    <xsl:param name="kept"/>
    <Waveform>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:attribute name="title"><xsl:value-of select="WaveFormTitle"/></xsl:attribute>
      <xsl:if test="$kept/@wheel or CWType != ''">
        <xsl:attribute name="wheel"><xsl:value-of select="CWType"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="not($kept/Ballast)">
        <xsl:apply-templates select="Attributes[BallastMakerCode != 255 or BallastWaveformIndex != 0 or UARTFlag != 0]" mode="ballast"/>
      </xsl:if>
      <xsl:if test="not($kept/Compensation)">
        <xsl:apply-templates select="Attributes[CompensationEnabled = 1 or PulseLength != 500 or PulsePlateauRatio != 110 or SpokePulses/item]" mode="compensation"/>
      </xsl:if>
      <xsl:apply-templates select="$kept/*" mode="waveform">
        <xsl:with-param name="item" select="."/>
      </xsl:apply-templates>
      <xsl:if test="not($kept/Pulses) and VecPulses/item">
        <Pulses>
          <xsl:apply-templates select="VecPulses" mode="pulses"/>
        </Pulses>
      </xsl:if>
    </Waveform>
  </xsl:template>

  <xsl:template match="*" mode="waveform" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Ballast" mode="waveform">
    <xsl:param name="item"/>
    <xsl:apply-templates select="$item/Attributes" mode="ballast">
      <xsl:with-param name="kept" select="."/>
    </xsl:apply-templates>
  </xsl:template>
  <xsl:template match="Compensation" mode="waveform">
    <xsl:param name="item"/>
    <xsl:apply-templates select="$item/Attributes" mode="compensation">
      <xsl:with-param name="kept" select="."/>
    </xsl:apply-templates>
  </xsl:template>
  <xsl:template match="Pulses" mode="waveform">
    <xsl:param name="item"/>
    <Pulses>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="$item/VecPulses" mode="pulses">
        <xsl:with-param name="list" select="."/>
      </xsl:apply-templates>
    </Pulses>
  </xsl:template>

  <xsl:template match="Attributes" mode="ballast">
    <xsl:param name="kept" select="/.."/>
    <Ballast>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:if test="$kept/@makerCode or BallastMakerCode != 255">
        <xsl:attribute name="makerCode"><xsl:value-of select="BallastMakerCode"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@waveformIndex or BallastWaveformIndex != 0">
        <xsl:attribute name="waveformIndex"><xsl:value-of select="BallastWaveformIndex"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@uartFlag or UARTFlag != 0">
        <xsl:attribute name="uartFlag"><xsl:value-of select="UARTFlag"/></xsl:attribute>
      </xsl:if>
      <xsl:copy-of select="$kept/*"/>
    </Ballast>
  </xsl:template>

  <xsl:template match="Attributes" mode="compensation">
    <xsl:param name="kept" select="/.."/>
    <xsl:variable name="spokes" select="SpokePulses/item"/>
    <Compensation>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:if test="$kept/@enabled or CompensationEnabled = 1">
        <xsl:attribute name="enabled"><xsl:value-of select="CompensationEnabled = 1"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@pulseMicrosecondsAt60Hertz or PulseLength != 500">
        <xsl:attribute name="pulseMicrosecondsAt60Hertz"><xsl:value-of select="PulseLength"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@pulseToPlateauPercent or PulsePlateauRatio != 110">
        <xsl:attribute name="pulseToPlateauPercent"><xsl:value-of select="PulsePlateauRatio"/></xsl:attribute>
      </xsl:if>
      <!-- The data sort the spokes by name; their order says nothing. -->
      <xsl:for-each select="$kept/*">
        <xsl:choose>
          <xsl:when test="self::Spoke">
            <xsl:apply-templates select="$spokes[Spoke = current()/@name]" mode="spoke">
              <xsl:with-param name="kept" select="."/>
            </xsl:apply-templates>
          </xsl:when>
          <xsl:otherwise><xsl:copy-of select="."/></xsl:otherwise>
        </xsl:choose>
      </xsl:for-each>
      <xsl:apply-templates select="$spokes[not(Spoke = $kept/Spoke/@name)]" mode="spoke"/>
    </Compensation>
  </xsl:template>
  <xsl:template match="item" mode="spoke">
    <xsl:param name="kept" select="/.."/>
    <Spoke>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:attribute name="name"><xsl:value-of select="Spoke"/></xsl:attribute>
      <xsl:if test="not($kept) or $kept/@pulse or Applied = 1">
        <xsl:attribute name="pulse"><xsl:value-of select="Applied = 1"/></xsl:attribute>
      </xsl:if>
      <xsl:copy-of select="$kept/*"/>
    </Spoke>
  </xsl:template>

  <!-- Pulses: there may be very many, so that a list with nothing besides is written without a look
       at what is stored. -->
  <xsl:template match="VecPulses" mode="pulses">
    <xsl:param name="list" select="/.."/>
    <xsl:choose>
      <xsl:when test="$list/*[@*[7] or * or not(self::Pulse and @segment and @placed and @amplitudeRatio and @leadingEdgeDegrees and @trailingEdgeDegrees and @widthDegrees)]">
        <xsl:call-template name="mixedPulses">
          <xsl:with-param name="list" select="$list"/>
          <xsl:with-param name="items" select="item"/>
        </xsl:call-template>
      </xsl:when>
      <xsl:otherwise>
        <xsl:for-each select="item">
          <Pulse segment="{m_strCWSeg}" placed="{m_IsPulse = 1}" amplitudeRatio="{m_Amp}" leadingEdgeDegrees="{m_LeadEdge}" trailingEdgeDegrees="{m_TrailEdge}" widthDegrees="{m_Width}"/>
        </xsl:for-each>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template name="mixedPulses">
    <xsl:param name="list"/>
    <xsl:param name="items"/>
    <xsl:variable name="id" select="generate-id($list)"/>
    <xsl:variable name="others" select="$list/*[not(self::Pulse)]"/>
    <xsl:for-each select="$items">
      <xsl:variable name="like" select="key('pulse', concat($id, ' ', m_strCWSeg))"/>
      <xsl:variable name="kept" select="$like[not($like[2]) or position() = 1 + count(current()/preceding-sibling::item[m_strCWSeg = current()/m_strCWSeg])]"/>
      <xsl:if test="$others">
        <xsl:copy-of select="key('ahead', generate-id($kept))[$kept]"/>
      </xsl:if>
      <xsl:choose>
        <xsl:when test="$kept/@CWSegStr and not($kept/@segment)">
          <xsl:call-template name="earlierPulse">
            <xsl:with-param name="kept" select="$kept"/>
          </xsl:call-template>
        </xsl:when>
        <xsl:otherwise>
          <Pulse>
            <xsl:copy-of select="$kept/@*"/>
            <xsl:attribute name="segment"><xsl:value-of select="m_strCWSeg"/></xsl:attribute>
            <xsl:attribute name="placed"><xsl:value-of select="m_IsPulse = 1"/></xsl:attribute>
            <xsl:attribute name="amplitudeRatio"><xsl:value-of select="m_Amp"/></xsl:attribute>
            <xsl:attribute name="leadingEdgeDegrees"><xsl:value-of select="m_LeadEdge"/></xsl:attribute>
            <xsl:attribute name="trailingEdgeDegrees"><xsl:value-of select="m_TrailEdge"/></xsl:attribute>
            <xsl:attribute name="widthDegrees"><xsl:value-of select="m_Width"/></xsl:attribute>
            <xsl:copy-of select="$kept/*"/>
          </Pulse>
        </xsl:otherwise>
      </xsl:choose>
    </xsl:for-each>
    <xsl:copy-of select="$others[not(following-sibling::Pulse[1]/@segment = $items/m_strCWSeg or following-sibling::Pulse[1]/@CWSegStr = $items/m_strCWSeg)]"/>
  </xsl:template>

  <!-- A pulse that is stored in the layout of earlier releases stays in it. -->
  <xsl:template name="earlierPulse">
    <xsl:param name="kept"/>
    <Pulse>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:if test="(m_IsPulse = 1) != ($kept/@IsPulse = 'true' or $kept/@IsPulse = 1)">
        <xsl:attribute name="IsPulse"><xsl:value-of select="m_IsPulse"/></xsl:attribute>
      </xsl:if>
      <xsl:attribute name="CWSegStr"><xsl:value-of select="m_strCWSeg"/></xsl:attribute>
      <xsl:if test="$kept/@Amp or m_Amp != 1">
        <xsl:attribute name="Amp"><xsl:value-of select="m_Amp"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@LeadEdge or m_LeadEdge != 0">
        <xsl:attribute name="LeadEdge"><xsl:value-of select="m_LeadEdge"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@TrailEdge or m_TrailEdge != 0">
        <xsl:attribute name="TrailEdge"><xsl:value-of select="m_TrailEdge"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@Width or m_Width != 0">
        <xsl:attribute name="Width"><xsl:value-of select="m_Width"/></xsl:attribute>
      </xsl:if>
      <xsl:copy-of select="$kept/*"/>
    </Pulse>
  </xsl:template>

  <!-- What stands beside the waveforms. -->
  <xsl:template match="*" mode="fragment" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <!-- A group type takes the place of the stored one; in the last place also all that follow. -->
  <xsl:template match="GroupType" mode="fragment">
    <xsl:variable name="number" select="count(preceding-sibling::GroupType) + 1"/>
    <xsl:apply-templates select="$groups[$number]" mode="group">
      <xsl:with-param name="kept" select="."/>
    </xsl:apply-templates>
    <xsl:if test="not(following-sibling::GroupType)">
      <xsl:apply-templates select="$groups[position() &gt; $number]" mode="group"/>
    </xsl:if>
  </xsl:template>
  <xsl:template match="ReferenceGamut" mode="fragment">
    <xsl:variable name="kept" select="."/>
    <ReferenceGamut>
      <xsl:copy-of select="@*"/>
      <xsl:apply-templates select="*" mode="gamut"/>
      <xsl:for-each select="$data/ReferenceGamut/item">
        <xsl:variable name="name" select="substring-before(substring-after($colors, concat('|', position(), '=')), ' ')"/>
        <xsl:variable name="isNew"><xsl:call-template name="isNewColor"/></xsl:variable>
        <xsl:if test="$isNew != '' and not($kept/*[name() = $name])">
          <xsl:call-template name="color"/>
        </xsl:if>
      </xsl:for-each>
    </ReferenceGamut>
  </xsl:template>

  <!-- Group types. -->
  <xsl:template match="item" mode="group">
    <xsl:param name="kept" select="/.."/>
    <xsl:variable name="group" select="."/>
    <GroupType>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:attribute name="title"><xsl:value-of select="Title"/></xsl:attribute>
      <xsl:for-each select="$kept/*">
        <xsl:choose>
          <xsl:when test="self::Rate[@hertz]">
            <xsl:call-template name="rate">
              <xsl:with-param name="group" select="$group"/>
              <xsl:with-param name="number" select="count(preceding-sibling::Rate/@hertz) + 1"/>
              <xsl:with-param name="kept" select="."/>
            </xsl:call-template>
          </xsl:when>
          <xsl:when test="self::SpinFactor[@ratio]">
            <xsl:call-template name="spinFactor">
              <xsl:with-param name="factor" select="$group/SpinFactors/item[count(current()/preceding-sibling::SpinFactor/@ratio) + 1]"/>
              <xsl:with-param name="kept" select="."/>
            </xsl:call-template>
          </xsl:when>
          <xsl:when test="self::DarkPulse">
            <xsl:apply-templates select="$group/VIDarkPulseInfo" mode="darkPulse">
              <xsl:with-param name="kept" select="."/>
            </xsl:apply-templates>
          </xsl:when>
          <xsl:otherwise><xsl:copy-of select="."/></xsl:otherwise>
        </xsl:choose>
      </xsl:for-each>
      <xsl:variable name="rates" select="count($kept/Rate/@hertz)"/>
      <xsl:for-each select="Rates/item[position() &gt; $rates]">
        <xsl:call-template name="rate">
          <xsl:with-param name="group" select="$group"/>
          <xsl:with-param name="number" select="$rates + position()"/>
        </xsl:call-template>
      </xsl:for-each>
      <xsl:variable name="factors" select="count($kept/SpinFactor/@ratio)"/>
      <xsl:for-each select="SpinFactors/item[position() &gt; $factors]">
        <xsl:call-template name="spinFactor">
          <xsl:with-param name="factor" select="."/>
        </xsl:call-template>
      </xsl:for-each>
      <xsl:if test="not($kept/DarkPulse)">
        <xsl:apply-templates select="VIDarkPulseInfo[* != 0]" mode="darkPulse"/>
      </xsl:if>
    </GroupType>
  </xsl:template>

  <xsl:template name="rate">
    <xsl:param name="group"/>
    <xsl:param name="number"/>
    <xsl:param name="kept" select="/.."/>
    <xsl:variable name="rate" select="$group/Rates/item[$number]"/>
    <xsl:variable name="flag" select="$group/BitwSelectRateFlags/item[$number]"/>
    <xsl:if test="$rate">
      <Rate>
        <xsl:copy-of select="$kept/@*"/>
        <xsl:attribute name="hertz"><xsl:value-of select="$rate"/></xsl:attribute>
        <xsl:if test="$kept/@selected or $flag = 1 or ($flag and not($kept))">
          <xsl:attribute name="selected"><xsl:value-of select="$flag = 1"/></xsl:attribute>
        </xsl:if>
        <xsl:copy-of select="$kept/*"/>
      </Rate>
    </xsl:if>
  </xsl:template>
  <xsl:template name="spinFactor">
    <xsl:param name="factor"/>
    <xsl:param name="kept" select="/.."/>
    <xsl:if test="$factor">
      <SpinFactor>
        <xsl:copy-of select="$kept/@*"/>
        <xsl:attribute name="ratio"><xsl:value-of select="$factor"/></xsl:attribute>
        <xsl:copy-of select="$kept/*"/>
      </SpinFactor>
    </xsl:if>
  </xsl:template>
  <xsl:template match="VIDarkPulseInfo" mode="darkPulse">
    <xsl:param name="kept" select="/.."/>
    <DarkPulse>
      <xsl:copy-of select="$kept/@*"/>
      <xsl:if test="$kept/@enabled or Enable = 1">
        <xsl:attribute name="enabled"><xsl:value-of select="Enable = 1"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@maxFallMicroseconds or MaxFallLength != 0">
        <xsl:attribute name="maxFallMicroseconds"><xsl:value-of select="MaxFallLength"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@jitterMicroseconds or Jitter != 0">
        <xsl:attribute name="jitterMicroseconds"><xsl:value-of select="Jitter"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@minWidthMicroseconds or MinWidthLength != 0">
        <xsl:attribute name="minWidthMicroseconds"><xsl:value-of select="MinWidthLength"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@maxRiseMicroseconds or MaxRiseLength != 0">
        <xsl:attribute name="maxRiseMicroseconds"><xsl:value-of select="MaxRiseLength"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@minAmplitudePercent or MinAmplitude != 0">
        <xsl:attribute name="minAmplitudePercent"><xsl:value-of select="MinAmplitude"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@maxAmplitudePercent or MaxAmplitude != 0">
        <xsl:attribute name="maxAmplitudePercent"><xsl:value-of select="MaxAmplitude"/></xsl:attribute>
      </xsl:if>
      <xsl:if test="$kept/@rateHertz or CWRate != 0">
        <xsl:attribute name="rateHertz"><xsl:value-of select="CWRate"/></xsl:attribute>
      </xsl:if>
      <xsl:copy-of select="$kept/*"/>
    </DarkPulse>
  </xsl:template>

  <!-- The reference gamut: the stored colors, then those that are not stored and not a new
       object's. -->
  <xsl:template match="*" mode="gamut" priority="-1">
    <xsl:copy-of select="."/>
  </xsl:template>
  <xsl:template match="Red | Green | Blue | White | Cyan | Magenta | Yellow" mode="gamut">
    <xsl:variable name="before" select="substring-before($colors, concat('=', name(), ' '))"/>
    <xsl:variable name="color" select="$data/ReferenceGamut/item[position() = substring($before, string-length($before))]"/>
    <xsl:copy>
      <xsl:copy-of select="@*"/>
      <xsl:attribute name="x"><xsl:value-of select="$color/xyChroma.x"/></xsl:attribute>
      <xsl:attribute name="y"><xsl:value-of select="$color/xyChroma.y"/></xsl:attribute>
      <xsl:copy-of select="*"/>
    </xsl:copy>
  </xsl:template>
  <!-- Says something for a color that is not a new object's. -->
  <xsl:template match="item" mode="newColor" name="isNewColor">
    <xsl:if test="not(contains($colors, concat('|', position(), '=', substring-before(substring-after($colors, concat('|', position(), '=')), ' '), ' ', number(xyChroma.x), ' ', number(xyChroma.y), '|')))">new</xsl:if>
  </xsl:template>
  <xsl:template match="item" mode="color" name="color">
    <xsl:element name="{substring-before(substring-after($colors, concat('|', position(), '=')), ' ')}">
      <xsl:attribute name="x"><xsl:value-of select="xyChroma.x"/></xsl:attribute>
      <xsl:attribute name="y"><xsl:value-of select="xyChroma.y"/></xsl:attribute>
    </xsl:element>
  </xsl:template>
</xsl:stylesheet>
