// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// The classes that pointers may be written to, by export key, in the order of the registry.

#include "archive/export.h"
#include "model/frame_rates_page_data.h"
#include "model/gui_inputs_data.h"
#include "model/illuminators_page_data.h"
#include "model/lamp_aging_page_data.h"
#include "pages/lamp_aging/slr_pulse_page.h"

namespace {

using zel::archive::class_export;

const class_export<SlrPulsePage> kSlrPulsePage{"SlrPulsePage"};
const class_export<IlluminatorsPageData> kIlluminatorsPageData{"IlluminatorsPageData"};
const class_export<SysDefFrameRatesPageData> kFrameRatesPageData{"SysDefFrameRatesPageData"};
const class_export<LampAgingPageData> kLampAgingPageData{"LampAgingPageData"};
const class_export<SlrPulseAmpData> kSlrPulseAmpData{"SlrPulseAmpData"};
const class_export<SlrPulseAmpDataGroup> kSlrPulseAmpDataGroup{"SlrPulseAmpDataGroup"};
const class_export<VIDarkPulseInfo> kVIDarkPulseInfo{"VIDarkPulseInfo"};
const class_export<PCGroup> kPCGroup{"PCGroup"};
const class_export<PulseInfo> kPulseInfo{"PulseInfo"};
const class_export<LampWaveFormData> kLampWaveFormData{"LampWaveFormData"};
const class_export<LampWaveFormDB> kLampWaveFormDB{"LampWaveFormDB"};
const class_export<xyChroma> kXyChroma{"xyChroma"};
const class_export<GUIInputsData> kGUIInputsData{"GUIInputsData"};

}  // namespace
