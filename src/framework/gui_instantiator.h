// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "framework/gui_wrapper.h"
#include "framework/xml_in_transform_policy.h"
#include "framework/xml_out_transform_policy.h"
#include "host/gui/gui_registry.h"

namespace Framework {

/// Makes wrappers; enters itself in the page registry while it lives.
template <class Wrapper>
class GUIInstantiator : public GUIInstantiatorBase {
 public:
  explicit GUIInstantiator(const char* name) { GUIPageRegistry().AddInstantiator(name, this); }
  ~GUIInstantiator() override { GUIPageRegistry().RemoveInstantiator(this); }
  GUIInstantiator(const GUIInstantiator&) = delete;
  GUIInstantiator& operator=(const GUIInstantiator&) = delete;

  [[nodiscard]] ToolPropertyPage* CreateInstance(const GUIArguments& /*arguments*/) const override {
    return new Wrapper;
  }
};

/// The row of the page table for a page whose data move by stylesheets and XML archives.
template <class Page, class Data>
using XMLPageInstantiator =
    GUIInstantiator<GUIWrapper<Page, XMLInTransformPolicy<Data>, XMLOutTransformPolicy<Data>>>;

}  // namespace Framework
