// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_edit.h"

namespace lamp_waveform {

PulseInfo EditedPulse(const PulseInfo& stored, bool isPulse, const PulseValues& values,
                      double rateHz) {
  const PulseValues shown = ValuesOf(stored, rateHz);
  PulseInfo edited = MakePulse(isPulse, stored.m_strCWSeg, values, rateHz);
  if (values.amplitude == shown.amplitude) edited.m_Amp = stored.m_Amp;
  if (values.leadingEdge == shown.leadingEdge) edited.m_LeadEdge = stored.m_LeadEdge;
  if (values.trailingEdge == shown.trailingEdge) edited.m_TrailEdge = stored.m_TrailEdge;
  if (values.width == shown.width) edited.m_Width = stored.m_Width;
  return edited;
}

}  // namespace lamp_waveform
