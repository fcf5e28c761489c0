// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_waveform/rules/pulse_table.h"

#include "pages/lamp_waveform/rules/pulse_units.h"
#include "platform/text/number.h"

namespace lamp_waveform {
namespace {

std::string Plain(double value) { return platform::FixedText(value, 6); }

std::string DurationText(const char* name, double degrees, double rate) {
  std::string text = std::string(name) + " = ";
  if (rate > 0) text += Plain(MicrosecondsOf(degrees, rate)) + " usecs/";
  return text + Plain(degrees) + " deg\n";
}

}  // namespace

std::string PulseText(const PulseInfo& pulse) { return pulse.m_IsPulse ? "Yes" : "No"; }

std::string OperationText(const PulseInfo& pulse) {
  return pulse.m_IsPulse ? "Edit/Delete..." : "Add...";
}

std::string PulseDescription(const PulseInfo& pulse, double referenceRateHz) {
  if (!pulse.m_IsPulse) {
    return "No Pulse Added:\n\nClick \"Add\" button \nto add pulse for CW segment";
  }
  return "Pulse Details:\n\nAmplitude = " + Plain(pulse.m_Amp * 100) + " %\n" +
         DurationText("Leading Edge", pulse.m_LeadEdge, referenceRateHz) +
         DurationText("Trailing Edge", pulse.m_TrailEdge, referenceRateHz) +
         DurationText("Width", pulse.m_Width, referenceRateHz) + "Alignment = End of segment";
}

TableFit FitOf(std::size_t pulses) noexcept {
  return {.expandRows = pulses >= 6 && pulses <= 13, .showScrollBar = pulses >= 15};
}

}  // namespace lamp_waveform
