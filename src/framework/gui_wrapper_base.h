// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>

#include "host/gui/page_services.h"
#include "host/gui/tool_property_page.h"

namespace Framework {

/// Owns a page for the host. It has no dialog of its own: the host shows the wrapped page.
class GUIWrapperBase : public ToolPropertyPage, public PageServices {
 public:
  explicit GUIWrapperBase(std::unique_ptr<ToolPropertyPage> page);
  ~GUIWrapperBase() override;

  bool ConfigureInTransform(const std::vector<const char*>& /*names*/) override { return true; }
  bool ConfigureOutTransform(const std::vector<const char*>& /*names*/) override { return true; }
  [[nodiscard]] bool DataShown() const override { return dataShown_; }

 protected:
  ToolPropertyPage* WrappedPage() override { return page_.get(); }

  std::unique_ptr<ToolPropertyPage> page_;
  std::string firstText_;
  std::string secondText_;
  bool loaded_ = false;
  bool dataShown_ = false;
};

}  // namespace Framework
