// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/project/finding.h"
#include "platform/xml/document.h"

namespace Framework {

/// What the host asks of a page beyond the page operations; the page wrappers implement it.
class PageServices {
 public:
  virtual ~PageServices() = default;

  virtual bool ConfigureInTransform(const std::vector<const char*>& names) = 0;
  virtual bool ConfigureOutTransform(const std::vector<const char*>& names) = 0;
  virtual bool CommitToRunTimeDB() = 0;
  /// Reads the data object from the run-time database without showing it.
  virtual bool ReadFromRunTimeDB() = 0;

  /// Whether the last initialisation read the data and gave them to the page.
  [[nodiscard]] virtual bool DataShown() const = 0;
  /// Whether the stylesheet of either direction is loaded.
  [[nodiscard]] virtual bool InTransformLoaded() const = 0;
  [[nodiscard]] virtual bool OutTransformLoaded() const = 0;

  /// The data object as one element `ModuleOutputs`. Throws std::exception when it cannot be
  /// written.
  [[nodiscard]] virtual platform::xml::Document ExportData() const = 0;
  /// Fills the data object from a document whose document element is `Inputs` or
  /// `ModuleOutputs`, and shows it when the page is shown. Throws std::exception when the
  /// archive refuses; the data object then keeps what it had.
  virtual void ImportData(const platform::xml::Document& document) = 0;
  /// What the page's rules say of the data object.
  [[nodiscard]] virtual Findings CheckData() const = 0;
  /// Why the page's data serve `what` as they do, in words; nothing when the page explains nothing.
  [[nodiscard]] virtual std::optional<std::string> Explain(const std::string& what) const = 0;
};

}  // namespace Framework
