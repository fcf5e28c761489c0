// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "host/gui/class_registry.h"

namespace Framework {

/// The document of a tool. The host's tools keep their data in the run-time database, so loading
/// and storing a document of its own is for tools that override them.
class ToolDocument : public DynamicObject {
 public:
  ToolDocument(const char* toolName, const char* docType)
      : toolName_(toolName), docType_(docType) {}

  virtual bool LoadData() { return true; }
  virtual bool StoreData() { return true; }

  [[nodiscard]] const std::string& ToolName() const noexcept { return toolName_; }
  [[nodiscard]] const std::string& DocType() const noexcept { return docType_; }

 private:
  std::string toolName_;
  std::string docType_;
};

}  // namespace Framework
