// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// What the library gives the host: its classes, its pages in the order the host lists them, and
// the functions the host attaches and detaches it by.

#include "framework/gui_instantiator.h"
#include "host/data/color_wheel_data.h"
#include "host/data/illumination_configuration_data.h"
#include "host/data/lamp_optics_data.h"
#include "host/data/pixmeld_control_data.h"
#include "host/gui/class_registry.h"
#include "host/gui/extension_module.h"
#include "model/gui_inputs_data.h"
#include "pages/color_wheel/color_wheel_page.h"
#include "pages/frame_rates/sys_def_frame_rates_page.h"
#include "pages/illumination_config/illumination_config_page.h"
#include "pages/illuminators/illuminators_page.h"
#include "pages/lamp_aging/slr_pulse_page.h"
#include "pages/lamp_optics/lamp_optics_page.h"
#include "pages/lamp_waveform/sys_def_lamp_waveform_page.h"
#include "pages/pixmeld/pixmeld_page.h"
#include "tool/identity.h"
#include "tool/vesk_sys_def_tool_frame.h"
#include "tool/vesk_sys_def_tool_view.h"
#include "tool/vesk_system_definition_tool.h"
#include "tool/vesk_system_definition_tool_doc.h"

namespace {

namespace ids = VeskSystemDefinition;
using Framework::ClassRegistration;
using Framework::XMLPageInstantiator;

const ClassRegistration<VeskSystemDefinitionTool> kTool(ids::kToolClassName);
const ClassRegistration<VeskSystemDefinitionToolDoc> kDocument(ids::kDocumentClassName);
const ClassRegistration<VeskSysDefToolFrame> kFrame(ids::kFrameClassName);
const ClassRegistration<VeskSysDefToolView> kView(ids::kViewClassName);

const XMLPageInstantiator<SlrPulsePage, LampAgingPageData> kLampAging("SlrPulsePage");
const XMLPageInstantiator<IlluminatorsPage, IlluminatorsPageData> kIlluminators("IlluminatorsPage");
const XMLPageInstantiator<PixmeldPage, PixmeldControlData> kPixmeld("PixmeldPage");
const XMLPageInstantiator<ids::SysDefColorWheelPage, ColorWheelData> kColorWheel("ColorWheelPage");
const XMLPageInstantiator<SysDefFrameRatesPage, SysDefFrameRatesPageData> kFrameRates(
    "FrameRatesPage");
const XMLPageInstantiator<ids::SysDefIllumConfigPage, IlluminationConfigurationData>
    kIlluminationConfig("IlluminatorConfigPage");
const XMLPageInstantiator<SysDefLampOpticsPage, LampOpticsData> kLampOptics("LampOpticsPage");
const XMLPageInstantiator<ids::SysDefLampWaveformPage, GUIInputsData> kLampWaveform(
    "SysDefLampWaveformPage");

const Framework::ExtensionModule& Module() {
  static const Framework::ExtensionModule module{
      "VeskSystemDefinition", {{Framework::kToolClassString, ids::kToolClassName}}};
  return module;
}

}  // namespace

extern "C" {

int OstExtensionInterface() { return Framework::kExtensionInterface; }

bool OstExtensionAttach() { return Framework::RegisterExtensionModule(Module()); }

void OstExtensionDetach() { Framework::UnregisterExtensionModule(Module()); }
}
