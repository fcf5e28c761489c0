// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/xml/document.h"
#include "platform/xml/numeric_fields.h"
#include "platform/xml/relax_ng.h"

class OstProject;

namespace Framework {

/// The schema of the run-time database: one RELAX NG grammar a fragment, in the support files
/// `*.rng`. A fragment without a grammar belongs to another tool and is not judged.
class DatabaseSchema {
 public:
  /// Reads the grammars of the installed data folder and of the project's own support folder, the
  /// latter in place of installed ones of the same file name. Throws OstException naming the file.
  explicit DatabaseSchema(const OstProject* project);

  /// The faults of a database (document element `RunTimeDB`), in document order.
  [[nodiscard]] std::vector<platform::xml::SchemaFault> Validate(
      const platform::xml::Document& database) const;
  /// The fields the grammars give a numeric type.
  [[nodiscard]] const platform::xml::NumericFields& Numbers() const noexcept { return numbers_; }

 private:
  void Read(const std::string& path);

  std::map<std::string, platform::xml::RelaxNgSchema> grammars_;
  platform::xml::NumericFields numbers_;
};

}  // namespace Framework
