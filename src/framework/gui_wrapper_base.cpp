// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "framework/gui_wrapper_base.h"

#include <utility>

namespace Framework {

GUIWrapperBase::GUIWrapperBase(std::unique_ptr<ToolPropertyPage> page)
    : ToolPropertyPage("", -1, 0), page_(std::move(page)) {
  SetTitle(page_->Title());
}

GUIWrapperBase::~GUIWrapperBase() = default;

}  // namespace Framework
